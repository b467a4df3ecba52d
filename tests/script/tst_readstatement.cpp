#include "tst_readstatement.h"

#include "script/readstatement.h"
#include "script/scripterror.h"

#include <QTest>

Q_DECLARE_METATYPE(SqlBackend)

namespace {

QString coefficientStatement(const QString &item, const QString &unit, const QString &secondUnit)
{
    return QStringList{QStringLiteral("select isnull((SELECT t2.FCoefficient AS FCoefficient"),
                       QStringLiteral(" FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID"),
                       QStringLiteral(" WHERE t1.FItemID = ") + item + QStringLiteral(" AND t2.FMeasureUnitID=") + unit
                           + QStringLiteral("),0),"),
                       QStringLiteral(" isnull((SELECT ISNULL(t2.FCoefficient,0) AS FCoefficient"),
                       QStringLiteral(" FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID"),
                       QStringLiteral(" WHERE t1.FItemID = ") + item + QStringLiteral(" AND t2.fmeasureunitid= ") + secondUnit
                           + QStringLiteral("),0)")}
        .join(QLatin1String("\r\n"));
}

} // namespace

void ReadStatementTest::accepted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<SqlBackend>("backend");
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<QString>("sqlStart");

    QTest::newRow("scale") << QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID=1") << SqlBackend::SQLite
                           << QVariantList{1} << QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID = ?");
    QTest::newRow("scale, other case and layout")
        << QStringLiteral("select fscale\r\nfrom T_CURRENCY   where FCURRENCYID = 2 ") << SqlBackend::PostgreSQL
        << QVariantList{2} << QStringLiteral("select fscale from t_currency where fcurrencyid = ?");
    QTest::newRow("unit coefficients") << coefficientStatement("3057", "5", "6") << SqlBackend::SQLite
                                       << QVariantList{3057, 5, 3057, 6} << QStringLiteral("SELECT ifnull((SELECT t2.FCoefficient");
    QTest::newRow("unit coefficients on PostgreSQL")
        << coefficientStatement("3057", "5", "0") << SqlBackend::PostgreSQL << QVariantList{3057, 5, 3057, 0}
        << QStringLiteral("select coalesce((select t2.fcoefficient");
}

void ReadStatementTest::accepted()
{
    QFETCH(QString, text);
    QFETCH(SqlBackend, backend);
    QFETCH(QVariantList, values);
    QFETCH(QString, sqlStart);
    const script::ReadStatement read = script::checkRead(text, SqlDialect::of(backend));
    QVERIFY2(read.sql.startsWith(sqlStart), qPrintable(read.sql));
    QCOMPARE(read.sql.count(QLatin1Char('?')), values.size());
    QVERIFY(!read.sql.contains(QLatin1String("isnull"), Qt::CaseInsensitive));
    QCOMPARE(read.values, values);
}

void ReadStatementTest::refused_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString();
    QTest::newRow("widened condition") << QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID=1 or 1=1");
    QTest::newRow("quoted id") << QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID='1'");
    QTest::newRow("fractional id") << QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID=1.5");
    QTest::newRow("second statement") << QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID=1; drop table t_Currency");
    QTest::newRow("comment") << QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID=1 --");
    QTest::newRow("other column") << QStringLiteral("SELECT FName FROM t_Currency WHERE FCurrencyID=1");
    QTest::newRow("other table") << QStringLiteral("SELECT FScale FROM t_User WHERE FCurrencyID=1");
    QTest::newRow("a write") << QStringLiteral("Update t_SystemProfile Set FValue='1' Where FCategory='IC' And FKey='INIBillInterID'");
    QTest::newRow("sub-select in place of an id") << coefficientStatement("(SELECT 1)", "5", "6");
    QTest::newRow("unit coefficient cut short") << coefficientStatement("3057", "5", "6").section(QLatin1String("),0),"), 0, 0);
}

void ReadStatementTest::refused()
{
    QFETCH(QString, text);
    try {
        script::checkRead(text);
        QFAIL("the statement was accepted");
    } catch (const script::ScriptError &error) {
        QCOMPARE(error.statementNumber(), 1);
        QCOMPARE(error.statementStart(), text.simplified().left(60));
    }
}
