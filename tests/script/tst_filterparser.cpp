#include "script/filtererror.h"
#include "script/filterparser.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>

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
        QSqlQuery query(QSqlDatabase::database(u"filters"_s));
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

private slots:
    // The filters only read: one table in memory serves every case.
    void initTestCase()
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"filters"_s);
        db.setDatabaseName(u":memory:"_s);
        QVERIFY(db.open());
        QSqlQuery query(db);
        QVERIFY(query.exec(u"CREATE TABLE ItemRows (FItemID INTEGER, FNumber VARCHAR(40), FShortNumber VARCHAR(40),"
                           " FItemName VARCHAR(80), FModel VARCHAR(40), FInitBegQty DOUBLE PRECISION,"
                           " FInitBegBal DOUBLE PRECISION, FDC INTEGER, FKFDate VARCHAR(10), FPrice DOUBLE PRECISION)"_s));
        QVERIFY(query.exec(u"INSERT INTO ItemRows VALUES"
                           " (1, '01.001', '001', '钢板', 'A', 150, 1500, 1, '2024-01-05', 12.5),"
                           " (2, '01.002', '002', '钢管', 'B', 80, 800, -1, '2024-02-10', 8),"
                           " (3, '02.001', '003', '铝板', 'A', 200, 2600, 1, '', 13),"
                           " (4, '02.010', '010', 'O''Brien锁', 'C', 0, 0, -1, '2023-12-31', 10)"_s));
    }

    void filters_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QList<int>>("ids");
        QTest::addColumn<QString>("refusal"); // what the message of a refused filter names; null: accepted
        const auto accept = [](const char *name, const QString &filter, const QList<int> &ids) {
            QTest::newRow(name) << filter << ids << QString();
        };
        const auto refuse = [](const char *name, const QString &filter, const QString &named) {
            QTest::newRow(name) << filter << QList<int>{} << named;
        };

        accept("no filter", QString(), {1, 2, 3, 4});
        accept("find/filter dialog: contains and greater", "FItemName LIKE '%钢%' AND FInitBegQty>100 ", {1});
        accept("find/filter dialog: credit direction", "FDC=-1 ", {2, 4});
        accept("find/filter dialog: not equal, less", "FInitBegQty<>0 AND FInitBegQty<150 ", {2});
        accept("filter dialog: nothing chosen", " where 1=1 and ", {1, 2, 3, 4});
        accept("filter dialog: like and quoted number", " where 1=1 and FNumber like '%01%' and  t1.FPrice > '10'  ", {1, 3});
        accept("filter dialog: upper-case LIKE, or", " where 1=1 and FNumber LIKE '01%' or  FModel = 'C'  ", {1, 2, 4});
        accept("filter dialog: connective after the last line", " where 1=1 and FModel = 'A'  and  ", {1, 3});
        accept("filter dialog: not like, at least", " where 1=1 and FItemName not like '%板%' and FInitBegQty >= '0' ", {2, 4});
        accept("parentheses", "(FModel='A' or FModel='B') and FInitBegBal>=1000", {1, 3});
        accept("date as mmddyyyy", "FKFDate='01052024'", {1});
        accept("date typed with slashes", "FKFDate>'2024/1/31'", {2});
        accept("field name in any case, doubled quote", "fitemname = 'O''Brien锁'", {4});
        // The injection with its quote doubled is one literal: it matches no name.
        accept("injection bound as data", "FItemName='x'' or 1=1 --'", {});
        accept("injection in a LIKE bound as data", "FItemName LIKE '%x'' or ''1''=''1%'", {});

        refuse("unknown field", "FBogus=1", "FBogus");
        refuse("undeclared column of the table", "FItemID=1", "FItemID");
        refuse("injection with a bare quote", "FItemName='x' or 1=1 --'", "1");
        refuse("tautology after a condition", " where 1=1 and FModel='A' or 1=1 ", "1");
        refuse("unknown operator !=", "FInitBegQty != 10", "!");
        refuse("unknown operator IN", "FModel IN ('A')", "IN");
        refuse("second statement", "FInitBegQty > 10; delete from ItemRows", ";");
        refuse("comment", "FInitBegQty > 10 /* x */", "");
        refuse("field as value", "FInitBegQty > FInitBegBal", "FInitBegBal");
        refuse("function", "upper(FItemName)='A'", "upper");
        refuse("text for a number field", "FInitBegQty > 'abc'", "abc");
        refuse("impossible date", "FKFDate = '2024-13-45'", "2024-13-45");
        refuse("LIKE without text", "FItemName LIKE 5", "LIKE");
        refuse("dangling parenthesis", "(FModel='A'", "");
        refuse("deep nesting", QString(20000, u'(') + "FModel='A'", "64");
        refuse("long condition", QStringList(1001, u"FModel='A'"_s).join(u" or "_s), "1000");
    }

    void filters()
    {
        QFETCH(QString, filter);
        QFETCH(QList<int>, ids);
        QFETCH(QString, refusal);
        try {
            QCOMPARE(select(filter), ids);
            QVERIFY2(refusal.isNull(), "the filter was accepted");
        } catch (const script::FilterError &error) {
            QVERIFY2(!refusal.isNull() && error.message().contains(refusal, Qt::CaseInsensitive),
                     qPrintable(error.message()));
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
        QTest::newRow("long sort list") << QStringList(1001, u"FModel"_s).join(u',') << QList<int>{};
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
