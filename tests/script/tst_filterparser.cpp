#include "testdatabase.h"
#include "script/filtererror.h"
#include "script/filterparser.h"

#include <QSqlQuery>
#include <QTest>
#include <memory>

using namespace Qt::StringLiterals;
using script::FieldKind;
using script::FilterParser;

namespace {

// The item level of the entry view, declared as the data set's query names its columns.
script::FilterFields itemFields()
{
    return {
        {u"FNumber"_s, u"r.FNumber"_s, FieldKind::Text},
        {u"FShortNumber"_s, u"r.FShortNumber"_s, FieldKind::Text},
        {u"FItemName"_s, u"r.FItemName"_s, FieldKind::Text},
        {u"FName"_s, u"r.FItemName"_s, FieldKind::Text},
        {u"FModel"_s, u"r.FModel"_s, FieldKind::Text},
        {u"FInitBegQty"_s, u"r.FInitBegQty"_s, FieldKind::Number},
        {u"FInitBegBal"_s, u"r.FInitBegBal"_s, FieldKind::Number},
        {u"FDC"_s, u"r.FDC"_s, FieldKind::Number},
        {u"FKFDate"_s, u"r.FKFDate"_s, FieldKind::Date},
        {u"t1.FPrice"_s, u"r.FPrice"_s, FieldKind::Number},
    };
}

} // namespace

// Filter and sort texts of the find/filter/sort dialog and of the filter dialog, run against a
// small table: they select the right rows, and anything outside the declared fields and operators
// is refused or compared as plain data.
class FilterParserTest : public QObject
{
    Q_OBJECT

private:
    QList<int> select(const QString &filter, const QString &sort = {}) const
    {
        const FilterParser parser(itemFields());
        const script::BoundSql where = parser.where(filter);
        const QString orderBy = parser.orderBy(sort);
        QSqlQuery query(m_db->db());
        query.prepare(u"SELECT r.FItemID FROM ItemRows r "_s + (where.isEmpty() ? QString() : u"WHERE "_s + where.sql)
                      + u" ORDER BY "_s + (orderBy.isEmpty() ? u"r.FItemID"_s : orderBy));
        for (qsizetype i = 0; i < where.values.size(); ++i)
            query.bindValue(int(i), where.values.at(i));
        QList<int> ids;
        if (!query.exec())
            ids.append(-1); // matches no expected list
        while (query.next())
            ids.append(query.value(0).toInt());
        return ids;
    }

    std::unique_ptr<TestDatabase> m_db;

private slots:
    void init()
    {
        m_db = std::make_unique<TestDatabase>(QString::fromLatin1(TestDatabase::sqlite));
        QVERIFY2(m_db->isOpen(), qPrintable(m_db->error()));
        QVERIFY2(m_db->exec({
                     u"CREATE TABLE ItemRows (FItemID INTEGER, FNumber VARCHAR(40), FShortNumber VARCHAR(40),"
                                    " FItemName VARCHAR(80), FModel VARCHAR(40), FInitBegQty DOUBLE PRECISION,"
                                    " FInitBegBal DOUBLE PRECISION, FDC INTEGER, FKFDate VARCHAR(10), FPrice DOUBLE PRECISION)"_s,
                     u"INSERT INTO ItemRows VALUES"
                                    " (1, '01.001', '001', '钢板', 'A', 150, 1500, 1, '2024-01-05', 12.5),"
                                    " (2, '01.002', '002', '钢管', 'B', 80, 800, -1, '2024-02-10', 8),"
                                    " (3, '02.001', '003', '铝板', 'A', 200, 2600, 1, '', 13),"
                                    " (4, '02.010', '010', 'O''Brien锁', 'C', 0, 0, -1, '2023-12-31', 10)"_s,
                 }),
                 qPrintable(m_db->error()));
    }

    void cleanup()
    {
        m_db.reset();
    }

    void filters_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QList<int>>("ids");

        QTest::newRow("no filter") << QString() << QList<int>{1, 2, 3, 4};
        QTest::newRow("find/filter dialog: contains and greater")
            << "FItemName LIKE '%钢%' AND FInitBegQty>100 " << QList<int>{1};
        QTest::newRow("find/filter dialog: credit direction") << "FDC=-1 " << QList<int>{2, 4};
        QTest::newRow("find/filter dialog: not equal, less") << "FInitBegQty<>0 AND FInitBegQty<150 " << QList<int>{2};
        QTest::newRow("filter dialog: nothing chosen") << " where 1=1 and " << QList<int>{1, 2, 3, 4};
        QTest::newRow("filter dialog: like and quoted number")
            << " where 1=1 and FNumber like '%01%' and  t1.FPrice > '10'  " << QList<int>{1, 3};
        QTest::newRow("filter dialog: upper-case LIKE, or")
            << " where 1=1 and FNumber LIKE '01%' or  FModel = 'C'  " << QList<int>{1, 2, 4};
        QTest::newRow("filter dialog: connective after the last line")
            << " where 1=1 and FModel = 'A'  and  " << QList<int>{1, 3};
        QTest::newRow("filter dialog: not like, at least") << " where 1=1 and FItemName not like '%板%' and FInitBegQty >= '0' "
                                                           << QList<int>{2, 4};
        QTest::newRow("parentheses") << "(FModel='A' or FModel='B') and FInitBegBal>=1000" << QList<int>{1, 3};
        QTest::newRow("date as mmddyyyy") << "FKFDate='01052024'" << QList<int>{1};
        QTest::newRow("date typed with slashes") << "FKFDate>'2024/1/31'" << QList<int>{2};
        QTest::newRow("field name in any case, doubled quote") << "fitemname = 'O''Brien锁'" << QList<int>{4};
        // The injection with its quote doubled is one literal: it matches no name.
        QTest::newRow("injection bound as data") << "FItemName='x'' or 1=1 --'" << QList<int>{};
        QTest::newRow("injection in a LIKE bound as data") << "FItemName LIKE '%x'' or ''1''=''1%'" << QList<int>{};
    }

    void filters()
    {
        QFETCH(QString, filter);
        QFETCH(QList<int>, ids);
        try {
            QCOMPARE(select(filter), ids);
        } catch (const script::FilterError &error) {
            QFAIL(qPrintable(error.text()));
        }
    }

    void refusedFilters_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("named"); // what the message must name

        QTest::newRow("unknown field") << "FBogus=1" << "FBogus";
        QTest::newRow("undeclared column of the table") << "FItemID=1" << "FItemID";
        QTest::newRow("injection with a bare quote") << "FItemName='x' or 1=1 --'" << "1";
        QTest::newRow("tautology after a condition") << " where 1=1 and FModel='A' or 1=1 " << "1";
        QTest::newRow("unknown operator !=") << "FInitBegQty != 10" << "!";
        QTest::newRow("unknown operator IN") << "FModel IN ('A')" << "IN";
        QTest::newRow("second statement") << "FInitBegQty > 10; delete from ItemRows" << ";";
        QTest::newRow("comment") << "FInitBegQty > 10 /* x */" << "";
        QTest::newRow("field as value") << "FInitBegQty > FInitBegBal" << "FInitBegBal";
        QTest::newRow("function") << "upper(FItemName)='A'" << "upper";
        QTest::newRow("text for a number field") << "FInitBegQty > 'abc'" << "abc";
        QTest::newRow("impossible date") << "FKFDate = '2024-13-45'" << "2024-13-45";
        QTest::newRow("LIKE without text") << "FItemName LIKE 5" << "LIKE";
        QTest::newRow("dangling parenthesis") << "(FModel='A'" << "";
    }

    void refusedFilters()
    {
        QFETCH(QString, filter);
        QFETCH(QString, named);
        try {
            select(filter);
            QFAIL("the filter was accepted");
        } catch (const script::FilterError &error) {
            QVERIFY2(error.message().contains(named, Qt::CaseInsensitive), qPrintable(error.message()));
        }
    }

    void sorts_data()
    {
        QTest::addColumn<QString>("sort");
        QTest::addColumn<QList<int>>("ids"); // empty: refused

        QTest::newRow("find/filter dialog") << "FModel ASC ,FName DESC " << QList<int>{3, 1, 2, 4};
        QTest::newRow("filter dialog") << "FDC Asc,t1.FPrice Desc" << QList<int>{4, 2, 3, 1};
        QTest::newRow("direction left out") << "FInitBegBal" << QList<int>{4, 2, 1, 3};
        QTest::newRow("nothing") << "  " << QList<int>{1, 2, 3, 4};
        for (const char *refused : {"FBogus ASC", "FNumber; drop table ItemRows", "FNumber ASC FModel", "FNumber ASC,",
                                    "(select 1)", "1 DESC"})
            QTest::newRow(refused) << QString::fromLatin1(refused) << QList<int>{};
    }

    void sorts()
    {
        QFETCH(QString, sort);
        QFETCH(QList<int>, ids);
        if (ids.isEmpty())
            QVERIFY_THROWS_EXCEPTION(script::FilterError, FilterParser(itemFields()).orderBy(sort));
        else
            QCOMPARE(select(QString(), sort), ids);
    }
};

QTEST_MAIN(FilterParserTest)
#include "tst_filterparser.moc"
