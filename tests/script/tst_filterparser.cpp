#include "tst_filterparser.h"

#include "script/filtererror.h"
#include "script/filterparser.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QTest>

using script::FieldKind;
using script::FilterParser;

namespace {

// The item level of the entry view, declared as the data set's query names its columns.
script::FilterFields itemFields()
{
    return {
        {QStringLiteral("FNumber"), QStringLiteral("r.FNumber"), FieldKind::Text},
        {QStringLiteral("FShortNumber"), QStringLiteral("r.FShortNumber"), FieldKind::Text},
        {QStringLiteral("FItemName"), QStringLiteral("r.FItemName"), FieldKind::Text},
        {QStringLiteral("FName"), QStringLiteral("r.FItemName"), FieldKind::Text},
        {QStringLiteral("FModel"), QStringLiteral("r.FModel"), FieldKind::Text},
        {QStringLiteral("FInitBegQty"), QStringLiteral("r.FInitBegQty"), FieldKind::Number},
        {QStringLiteral("FInitBegBal"), QStringLiteral("r.FInitBegBal"), FieldKind::Number},
        {QStringLiteral("FDC"), QStringLiteral("r.FDC"), FieldKind::Number},
        {QStringLiteral("FKFDate"), QStringLiteral("r.FKFDate"), FieldKind::Date},
        {QStringLiteral("t1.FPrice"), QStringLiteral("r.FPrice"), FieldKind::Number},
    };
}

} // namespace

void FilterParserTest::init()
{
    m_db = std::make_unique<TestDatabase>(QString::fromLatin1(TestDatabase::sqlite));
    QVERIFY2(m_db->isOpen(), qPrintable(m_db->error()));
    QVERIFY2(m_db->exec({
                 QStringLiteral("CREATE TABLE ItemRows (FItemID INTEGER, FNumber VARCHAR(40), FShortNumber VARCHAR(40),"
                                " FItemName VARCHAR(80), FModel VARCHAR(40), FInitBegQty DOUBLE PRECISION,"
                                " FInitBegBal DOUBLE PRECISION, FDC INTEGER, FKFDate VARCHAR(10), FPrice DOUBLE PRECISION)"),
                 QStringLiteral("INSERT INTO ItemRows VALUES"
                                " (1, '01.001', '001', '钢板', 'A', 150, 1500, 1, '2024-01-05', 12.5),"
                                " (2, '01.002', '002', '钢管', 'B', 80, 800, -1, '2024-02-10', 8),"
                                " (3, '02.001', '003', '铝板', 'A', 200, 2600, 1, '', 13),"
                                " (4, '02.010', '010', 'O''Brien锁', 'C', 0, 0, -1, '2023-12-31', 10)"),
             }),
             qPrintable(m_db->error()));
}

void FilterParserTest::cleanup()
{
    m_db.reset();
}

QList<int> FilterParserTest::select(const QString &filter, const QString &sort) const
{
    const FilterParser parser(itemFields());
    const script::BoundSql where = parser.where(filter);
    const QString orderBy = parser.orderBy(sort);
    QString sql = QStringLiteral("SELECT r.FItemID FROM ItemRows r");
    if (!where.isEmpty())
        sql += QLatin1String(" WHERE ") + where.sql;
    sql += QLatin1String(" ORDER BY ") + (orderBy.isEmpty() ? QStringLiteral("r.FItemID") : orderBy);
    QSqlQuery query(m_db->db());
    if (!query.prepare(sql))
        qWarning() << sql << query.lastError().text();
    for (qsizetype i = 0; i < where.values.size(); ++i)
        query.bindValue(int(i), where.values.at(i));
    QList<int> ids;
    if (!query.exec())
        qWarning() << sql << query.lastError().text();
    while (query.next())
        ids.append(query.value(0).toInt());
    return ids;
}

void FilterParserTest::filters_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QList<int>>("ids");

    QTest::newRow("no filter") << QString() << QList<int>{1, 2, 3, 4};
    QTest::newRow("find/filter dialog: contains and greater")
        << QStringLiteral("FItemName LIKE '%钢%' AND FInitBegQty>100 ") << QList<int>{1};
    QTest::newRow("find/filter dialog: credit direction") << QStringLiteral("FDC=-1 ") << QList<int>{2, 4};
    QTest::newRow("find/filter dialog: not equal, less") << QStringLiteral("FInitBegQty<>0 AND FInitBegQty<150 ") << QList<int>{2};
    QTest::newRow("filter dialog: nothing chosen") << QStringLiteral(" where 1=1 and ") << QList<int>{1, 2, 3, 4};
    QTest::newRow("filter dialog: like and quoted number")
        << QStringLiteral(" where 1=1 and FNumber like '%01%' and  t1.FPrice > '10'  ") << QList<int>{1, 3};
    QTest::newRow("filter dialog: upper-case LIKE, or")
        << QStringLiteral(" where 1=1 and FNumber LIKE '01%' or  FModel = 'C'  ") << QList<int>{1, 2, 4};
    QTest::newRow("filter dialog: connective after the last line")
        << QStringLiteral(" where 1=1 and FModel = 'A'  and  ") << QList<int>{1, 3};
    QTest::newRow("filter dialog: not like, at least") << QStringLiteral(" where 1=1 and FItemName not like '%板%' and FInitBegQty >= '0' ")
                                                       << QList<int>{2, 4};
    QTest::newRow("parentheses") << QStringLiteral("(FModel='A' or FModel='B') and FInitBegBal>=1000") << QList<int>{1, 3};
    QTest::newRow("date as mmddyyyy") << QStringLiteral("FKFDate='01052024'") << QList<int>{1};
    QTest::newRow("date typed with slashes") << QStringLiteral("FKFDate>'2024/1/31'") << QList<int>{2};
    QTest::newRow("field name in any case, doubled quote") << QStringLiteral("fitemname = 'O''Brien锁'") << QList<int>{4};
    // The injection with its quote doubled is one literal: it matches no name.
    QTest::newRow("injection bound as data") << QStringLiteral("FItemName='x'' or 1=1 --'") << QList<int>{};
    QTest::newRow("injection in a LIKE bound as data") << QStringLiteral("FItemName LIKE '%x'' or ''1''=''1%'") << QList<int>{};
}

void FilterParserTest::filters()
{
    QFETCH(QString, filter);
    QFETCH(QList<int>, ids);
    try {
        QCOMPARE(select(filter), ids);
    } catch (const script::FilterError &error) {
        QFAIL(qPrintable(error.text()));
    }
}

void FilterParserTest::refusedFilters_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("named"); // what the message must name

    QTest::newRow("unknown field") << QStringLiteral("FBogus=1") << "FBogus";
    QTest::newRow("undeclared column of the table") << QStringLiteral("FItemID=1") << "FItemID";
    QTest::newRow("injection with a bare quote") << QStringLiteral("FItemName='x' or 1=1 --'") << "1";
    QTest::newRow("tautology after a condition") << QStringLiteral(" where 1=1 and FModel='A' or 1=1 ") << "1";
    QTest::newRow("unknown operator !=") << QStringLiteral("FInitBegQty != 10") << "!";
    QTest::newRow("unknown operator IN") << QStringLiteral("FModel IN ('A')") << "IN";
    QTest::newRow("second statement") << QStringLiteral("FInitBegQty > 10; delete from ItemRows") << ";";
    QTest::newRow("comment") << QStringLiteral("FInitBegQty > 10 /* x */") << "";
    QTest::newRow("field as value") << QStringLiteral("FInitBegQty > FInitBegBal") << "FInitBegBal";
    QTest::newRow("function") << QStringLiteral("upper(FItemName)='A'") << "upper";
    QTest::newRow("text for a number field") << QStringLiteral("FInitBegQty > 'abc'") << "abc";
    QTest::newRow("impossible date") << QStringLiteral("FKFDate = '2024-13-45'") << "2024-13-45";
    QTest::newRow("LIKE without text") << QStringLiteral("FItemName LIKE 5") << "LIKE";
    QTest::newRow("dangling parenthesis") << QStringLiteral("(FModel='A'") << "";
}

void FilterParserTest::refusedFilters()
{
    QFETCH(QString, filter);
    QFETCH(QString, named);
    try {
        select(filter);
        QFAIL("the filter was accepted");
    } catch (const script::FilterError &error) {
        QVERIFY2(error.message().contains(named, Qt::CaseInsensitive), qPrintable(error.message()));
    }
    QCOMPARE(select(QString()), (QList<int>{1, 2, 3, 4}));
}

void FilterParserTest::sorts_data()
{
    QTest::addColumn<QString>("sort");
    QTest::addColumn<QList<int>>("ids");

    QTest::newRow("find/filter dialog") << QStringLiteral("FModel ASC ,FName DESC ") << QList<int>{3, 1, 2, 4};
    QTest::newRow("filter dialog") << QStringLiteral("FDC Asc,t1.FPrice Desc") << QList<int>{4, 2, 3, 1};
    QTest::newRow("direction left out") << QStringLiteral("FInitBegBal") << QList<int>{4, 2, 1, 3};
    QTest::newRow("nothing") << QStringLiteral("  ") << QList<int>{1, 2, 3, 4};
}

void FilterParserTest::sorts()
{
    QFETCH(QString, sort);
    QFETCH(QList<int>, ids);
    QCOMPARE(select(QString(), sort), ids);
}

void FilterParserTest::refusedSorts_data()
{
    QTest::addColumn<QString>("sort");

    QTest::newRow("unknown field") << QStringLiteral("FBogus ASC");
    QTest::newRow("second statement") << QStringLiteral("FNumber; drop table ItemRows");
    QTest::newRow("missing comma") << QStringLiteral("FNumber ASC FModel");
    QTest::newRow("trailing comma") << QStringLiteral("FNumber ASC,");
    QTest::newRow("sub-select") << QStringLiteral("(select 1)");
    QTest::newRow("position number") << QStringLiteral("1 DESC");
}

void FilterParserTest::refusedSorts()
{
    QFETCH(QString, sort);
    QVERIFY_THROWS_EXCEPTION(script::FilterError, FilterParser(itemFields()).orderBy(sort));
}
