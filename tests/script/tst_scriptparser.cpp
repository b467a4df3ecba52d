#include "script/readstatement.h"
#include "script/scripterror.h"
#include "script/scriptparser.h"

#include <QTest>

Q_DECLARE_METATYPE(SqlBackend)

using namespace Qt::StringLiterals;
using script::ScriptError;

namespace {

// A value with its type, so a test sees an integer bound as an integer and a text as a text.
QStringList typed(const QVariantList &values)
{
    QStringList result;
    for (const QVariant &value : values)
        result.append(QLatin1String(value.typeName()) + QLatin1Char(' ') + value.toString());
    return result;
}

} // namespace

// Parsing scripts and read statements without a database: the bound SQL and typed values of each
// statement shape, statement numbering, and the reasons a statement is refused.
class ScriptParserTest : public QObject
{
    Q_OBJECT

private slots:
    void boundSql_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<SqlBackend>("backend");
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QStringList>("values");

        const QString serialDelete = u"Delete ICSerial Where FSNListID In (Select Distinct FSNListID From ICInvinitial Where FStockID=12 And FSPID=0"
            " And FPeriod=1 And FItemID = 3057 And FAuxPropID = 0)"_s;
        const QStringList placeValues{"qlonglong 12", "qlonglong 0", "qlonglong 1", "qlonglong 3057", "qlonglong 0"};
        QTest::newRow("serial delete without FROM")
            << serialDelete << SqlBackend::SQLite
            << u"DELETE FROM ICSerial WHERE FSNListID IN (SELECT DISTINCT FSNListID FROM ICInvInitial WHERE"
                              " FStockID = ? AND FSPID = ? AND FPeriod = ? AND FItemID = ? AND FAuxPropID = ?)"_s
            << placeValues;
        QTest::newRow("serial delete on PostgreSQL")
            << serialDelete << SqlBackend::PostgreSQL
            << u"DELETE FROM icserial WHERE fsnlistid IN (SELECT DISTINCT fsnlistid FROM icinvinitial WHERE"
                              " fstockid = ? AND fspid = ? AND fperiod = ? AND fitemid = ? AND fauxpropid = ?)"_s
            << placeValues;
        QTest::newRow("grouped conditions and an id list")
            << u"delete from ICInvInitial where (FStockID=12 and FSPID=0) and FPeriod=1 and FItemID in(7,8,9)"_s
            << SqlBackend::SQLite
            << u"DELETE FROM ICInvInitial WHERE (FStockID = ? AND FSPID = ?) AND FPeriod = ? AND FItemID IN (?, ?, ?)"_s
            << QStringList{"qlonglong 12", "qlonglong 0", "qlonglong 1", "qlonglong 7", "qlonglong 8", "qlonglong 9"};
        // Each literal takes the kind of its column: the suite's database converted them the same way.
        QTest::newRow("literals typed by their column")
            << u"update icinvinitial set FBatchNo=123, FBegBal='12.50', FPeriod=2.0, FStockInDate='',"
                              " FKFDate='2024-02-29' where FFieldCompose='1|0|1|2|0'"_s
            << SqlBackend::SQLite
            << u"UPDATE ICInvInitial SET FBatchNo = ?, FBegBal = ?, FPeriod = ?, FStockInDate = ?, FKFDate = ?"
                              " WHERE FFieldCompose = ?"_s
            << QStringList{"QString 123", "double 12.5", "qlonglong 2", "QString ", "QString 2024-02-29", "QString 1|0|1|2|0"};
        QTest::newRow("negative and fractional numbers")
            << u"Insert into ICInvInitial(FItemID,FBegBal,FBegDiff,FYtdDebit) Values(-1,-.5,0.125,7.)"_s
            << SqlBackend::SQLite << u"INSERT INTO ICInvInitial (FItemID, FBegBal, FBegDiff, FYtdDebit) VALUES (?, ?, ?, ?)"_s
            << QStringList{"qlonglong -1", "double -0.5", "double 0.125", "double 7"};
        QTest::newRow("quotes and non-ASCII text inside a literal")
            << u"Insert into ICInvInitial(FBatchNo) Values('O''Brien 批号--/*;')"_s << SqlBackend::SQLite
            << u"INSERT INTO ICInvInitial (FBatchNo) VALUES (?)"_s << QStringList{"QString O'Brien 批号--/*;"};
    }

    void boundSql()
    {
        QFETCH(QString, text);
        QFETCH(SqlBackend, backend);
        QFETCH(QString, sql);
        QFETCH(QStringList, values);
        const QList<script::Statement> statements = script::parseScript(text, SqlDialect::of(backend));
        QCOMPARE(statements.size(), 1);
        QCOMPARE(statements.first().sql, sql);
        QCOMPARE(typed(statements.first().values), values);
    }

    void statementsAreNumberedAndQuoted()
    {
        const QString script = u" Delete from ICInvInitial \r\n Where FStockID=12 And \r\n       FSPID=0 And \r\n       FPeriod=1 And \r\n"
            "       FItemID=3058 and \r\n       FAuxPropID=0\r\n"
            "Delete ICSerial Where FSNListID In (503) Delete ICSerialFlow Where FSNListID In (503)\r\n"_s;
        const QList<script::Statement> statements = script::parseScript(script);
        QCOMPARE(statements.size(), 3);
        QCOMPARE(statements.at(0).number, 1);
        QCOMPARE(statements.at(0).start, u"Delete from ICInvInitial Where FStockID=12 And FSPID=0 And F"_s);
        QCOMPARE(statements.at(1).start, u"Delete ICSerial Where FSNListID In (503)"_s);
        QCOMPARE(statements.at(2).number, 3);
        QCOMPARE(statements.at(2).table, u"ICSerialFlow"_s);
        QVERIFY(statements.at(2).kind == script::StatementKind::Delete);

        try {
            script::parseScript(script + u"Delete ICSerial_F1 Where FSNListID In (503) or 1=1"_s);
            QFAIL("OR was accepted");
        } catch (const ScriptError &error) {
            QCOMPARE(error.statementNumber(), 4);
            QCOMPARE(error.statementStart(), u"Delete ICSerial_F1 Where FSNListID In (503) or 1=1"_s);
        }
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("statementNumber");
        QTest::addColumn<QString>("named"); // what the message must name

        QTest::newRow("text into an integer column") << u"Insert into ICInvInitial(FItemID) Values('abc')"_s << 1 << "FItemID";
        QTest::newRow("fraction into an integer column") << u"Insert into ICInvInitial(FItemID) Values(1.5)"_s << 1 << "1.5";
        QTest::newRow("exponent") << u"Insert into ICInvInitial(FBegBal) Values(1e5)"_s << 1 << "1e5";
        QTest::newRow("impossible date") << u"Insert into ICInvInitial(FKFDate) Values('2024-13-01')"_s << 1 << "2024-13-01";
        QTest::newRow("NULL") << u"Insert into ICInvInitial(FBatchNo) Values(NULL)"_s << 1 << "NULL";
        QTest::newRow("fewer values") << u"Insert into ICInvInitial(FItemID,FUnitID) Values(1)"_s << 1 << "(2)";
        QTest::newRow("column twice") << u"Insert into ICInvInitial(FItemID,fitemid) Values(1,2)"_s << 1 << "FItemID";
        QTest::newRow("unterminated literal") << u"Insert into ICInvInitial(FBatchNo) Values('abc)"_s << 1 << "'abc)";
        QTest::newRow("double-quoted name") << u"Delete from ICInvInitial where \"FFieldCompose\"='a'"_s << 1 << "\"";
        QTest::newRow("full-width digit") << u"Delete from ICInvInitial where FItemID=１"_s << 1 << "１";
        QTest::newRow("key column of the profile") << u"update t_SystemProfile set FCategory='x' where FCategory='IC' and FKey='k'"_s << 1 << "FCategory";
        QTest::newRow("profile row not named") << u"update t_SystemProfile set FValue='1' where FCategory='IC'"_s << 1 << "FKey";
        QTest::newRow("delete on the profile") << u"delete from t_SystemProfile where FCategory='IC' and FKey='k'"_s << 1 << "DELETE";
        QTest::newRow("update without WHERE") << u"update ICInvInitial set FBegBal=1"_s << 1 << "WHERE";
        QTest::newRow("sub-select of another table") << u"Delete ICSerial Where FSNListID In (Select FSNListID From t_ICItem Where FItemID=1)"_s << 1 << "t_ICItem";
        QTest::newRow("sub-select of another column") << u"Delete ICSerial Where FSNListID In (Select FItemID From ICInvInitial Where FFieldCompose='x')"_s << 1 << "FSNListID";
        QTest::newRow("sub-select without key") << u"Delete ICSerial Where FSNListID In (Select FSNListID From ICInvInitial Where FPeriod=1)"_s << 1 << "FFieldCompose";
        QTest::newRow("column compared with column") << u"Delete from ICInvInitial where FFieldCompose=FBatchNo"_s << 1 << "FBatchNo";
        QTest::newRow("LIKE") << u"Delete from ICInvInitial where FFieldCompose like 'x%'"_s << 1 << "like";
        QTest::newRow("second statement of another kind") << u"Delete from ICInvInitial where FFieldCompose='a'\r\nexec xp_cmdshell 'x'"_s << 2 << "exec";
        QTest::newRow("drop table") << u"drop table ICInvInitial"_s << 1 << "drop";
        QTest::newRow("another table") << u"delete from t_ICItem where 1=1"_s << 1 << "t_ICItem";
        QTest::newRow("line comment") << u"-- delete from ICInvInitial where FItemID=1"_s << 1 << "注释";
        QTest::newRow("comment after a statement") << u"Update t_SystemProfile Set FValue='1' Where FCategory='IC' And FKey='INIBillInterID' /* x */"_s << 1 << "注释";
        QTest::newRow("select") << u"SELECT FScale FROM t_Currency WHERE FCurrencyID=1"_s << 1 << "SELECT";
        QTest::newRow("unknown column") << u"update ICInvInitial set FBogus=1 where FFieldCompose='x'"_s << 1 << "FBogus";
        QTest::newRow("no key in the condition") << u"Delete from ICInvInitial where FPeriod=1"_s << 1 << "FFieldCompose";
        QTest::newRow("insert into a serial table") << u"Insert into ICSerial(FSNListID) Values(1)"_s << 1 << "INSERT";
        QTest::newRow("table not written") << u"Delete ICSerial_F2 Where FSNListID In (501)"_s << 1 << "ICSerial_F2";
        QTest::newRow("semicolon") << u"Delete from ICInvInitial where FFieldCompose='a';\r\nDelete from ICInvInitial where FFieldCompose='b'"_s << 1 << ";";
        QTest::newRow("NUL in a text") << u"Insert into ICInvInitial(FBatchNo) Values('a"_s + QChar(0) + u"b')"_s << 1 << "U+0000";
        QTest::newRow("line end in a text") << u"Insert into ICInvInitial(FBatchNo) Values('a\nb')"_s << 1 << "U+000A";
        // Bounded so that a hostile text can neither exhaust the stack nor take minutes to prepare.
        QTest::newRow("deep nesting") << u"Delete from ICInvInitial where "_s + QString(10000, u'(') << 1 << "64";
        QStringList ids(1001, u"1"_s);
        QTest::newRow("long IN list") << u"Delete ICSerial Where FSNListID In (%1)"_s.arg(ids.join(u',')) << 1 << "1000";
        QStringList terms(1001, u"FFieldCompose='a'"_s);
        QTest::newRow("long condition") << u"Delete from ICInvInitial where "_s + terms.join(u" and "_s) << 1 << "1000";
    }

    void refusals()
    {
        QFETCH(QString, text);
        QFETCH(int, statementNumber);
        QFETCH(QString, named);
        try {
            script::parseScript(text);
            QFAIL("the script was accepted");
        } catch (const ScriptError &error) {
            QCOMPARE(error.statementNumber(), statementNumber);
            QVERIFY2(error.message().contains(named, Qt::CaseInsensitive), qPrintable(error.message()));
            QVERIFY(QString::fromUtf8(error.what()).contains(error.message()));
        }
    }

    void readStatementRefusals_data()
    {
        QTest::addColumn<QString>("text");
        const QString coefficients = u"select isnull((SELECT t2.FCoefficient AS FCoefficient\r\n FROM t_ICItem t1 INNER JOIN"
                                     " t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID\r\n WHERE t1.FItemID = %1 AND"
                                     " t2.FMeasureUnitID=5),0),\r\n isnull((SELECT ISNULL(t2.FCoefficient,0) AS FCoefficient"
                                     "\r\n FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID"
                                     "\r\n WHERE t1.FItemID = %1 AND t2.fmeasureunitid= 6),0)"_s;
        QTest::newRow("empty") << QString();
        QTest::newRow("widened condition") << "SELECT FScale FROM t_Currency WHERE FCurrencyID=1 or 1=1";
        QTest::newRow("quoted id") << "SELECT FScale FROM t_Currency WHERE FCurrencyID='1'";
        QTest::newRow("fractional id") << "SELECT FScale FROM t_Currency WHERE FCurrencyID=1.5";
        QTest::newRow("second statement") << "SELECT FScale FROM t_Currency WHERE FCurrencyID=1; drop table t_Currency";
        QTest::newRow("comment") << "SELECT FScale FROM t_Currency WHERE FCurrencyID=1 --";
        QTest::newRow("other column") << "SELECT FName FROM t_Currency WHERE FCurrencyID=1";
        QTest::newRow("other table") << "SELECT FScale FROM t_User WHERE FCurrencyID=1";
        QTest::newRow("a write") << "Update t_SystemProfile Set FValue='1' Where FCategory='IC' And FKey='INIBillInterID'";
        QTest::newRow("sub-select in place of an id") << coefficients.arg(u"(SELECT 1)"_s);
        QTest::newRow("unit coefficient cut short") << coefficients.arg(3057).section(u"),0),"_s, 0, 0);
    }

    // What Execute accepts runs in the data service's suite; everything else is refused here.
    void readStatementRefusals()
    {
        QFETCH(QString, text);
        try {
            script::checkRead(text);
            QFAIL("the statement was accepted");
        } catch (const ScriptError &error) {
            QCOMPARE(error.statementNumber(), 1);
            QCOMPARE(error.statementStart(), text.simplified().left(60));
        }
    }
};

QTEST_MAIN(ScriptParserTest)
#include "tst_scriptparser.moc"
