#include "scratchaccountset.h"

#include "db/sqlrun.h"
#include "db/transaction.h"
#include "demo/demovolume.h"
#include "dialect/sqldialect.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

int count(const QSqlDatabase &db, const QString &sql)
{
    return SqlRun::scalar(db, sql).toInt();
}

} // namespace

// The demo company and the generated volume: what the controls and the measurements rely on.
class TestDemoData : public QObject
{
    Q_OBJECT

private slots:
    // Every case runs on each backend; one that cannot be reached here is skipped.
    void initTestCase_data()
    {
        addBackends();
    }

    void init()
    {
        QFETCH_GLOBAL(QString, backend);
        REQUIRE_BACKEND(backend);
    }

    // What the other suites show of the demo (places, batch and shelf-life lines, serial numbers) they
    // check themselves; here are the rules its rows must keep among each other.
    void rowsAgreeWithEachOther()
    {
        QFETCH_GLOBAL(QString, backend);
        ScratchAccountSet scratch(backend);
        const QSqlDatabase db = scratch.db();
        QSet<int> tracks;
        QSqlQuery query = SqlRun::exec(db, u"SELECT DISTINCT FTrack FROM t_ICItem"_s);
        while (query.next())
            tracks.insert(query.value(0).toInt());
        QCOMPARE(tracks, (QSet<int>{76, 77, 78, 79, 80, 81, 20308}));
        // Lines of one item share their composed key; an item row of an unmanaged item has no batch.
        QCOMPARE(count(db, u"SELECT count(*) FROM ICInvInitial v JOIN t_ICItem i ON i.FItemID=v.FItemID "
                           "WHERE i.FBatchManager=0 AND i.FISKFPeriod=0 AND v.FBatchNo<>''"_s), 0);
        QCOMPARE(count(db, u"SELECT count(*) FROM ICInvInitial WHERE FFieldCompose <> (CAST(FStockID AS VARCHAR(20)) "
                           "|| '|' || CAST(FSPID AS VARCHAR(20)) || '|' || CAST(FPeriod AS VARCHAR(20)) || '|' || "
                           "CAST(FItemID AS VARCHAR(20)) || '|' || CAST(FAuxPropID AS VARCHAR(20)))"_s), 0);
        // New lines are numbered on from the record number.
        QCOMPARE(count(db, u"SELECT max(FBillInterID) FROM ICInvInitial"_s),
                 count(db, u"SELECT CAST(FValue AS INTEGER) FROM t_SystemProfile WHERE FKey='INIBillInterID'"_s));
        // Every serial number belongs to a list an initial balance carries, in all three tables.
        for (const QString &table : {u"ICSerial"_s, u"ICSerialFlow"_s, u"ICSerial_F1"_s}) {
            QCOMPARE(count(db, u"SELECT count(*) FROM %1 s WHERE NOT EXISTS "
                               "(SELECT 1 FROM ICInvInitial v WHERE v.FSNListID=s.FSNListID)"_s.arg(table)), 0);
        }
    }

    void linesKeepTheBalanceRule()
    {
        QFETCH_GLOBAL(QString, backend);
        ScratchAccountSet scratch(backend);
        // year start = opening + issued - received, for quantities, amounts and secondary quantities
        QSqlQuery lines = SqlRun::exec(scratch.db(), u"SELECT FYtdAuxBegQty, FAuxBegQty, FYtdAuxSend, FYtdAuxReceive, "
                                                     "FYtdBegBal, FBegBal, FYtdCredit, FYtdDebit, FYtdAuxUnitBegQty, "
                                                     "FAuxUnitBegQty, FYtdAuxUnitSend, FYtdAuxUnitReceive, FEntryID "
                                                     "FROM ICInvInitial"_s);
        int checked = 0;
        while (lines.next()) {
            for (int group = 0; group < 3; ++group) {
                const int at = group * 4;
                const double expected
                    = lines.value(at + 1).toDouble() + lines.value(at + 2).toDouble() - lines.value(at + 3).toDouble();
                QVERIFY2(qAbs(lines.value(at).toDouble() - expected) < 0.011,
                         qPrintable(u"line %1, group %2"_s.arg(lines.value(12).toInt()).arg(group)));
            }
            ++checked;
        }
        QVERIFY(checked > 20);
    }

    void generatesVolume()
    {
        QFETCH_GLOBAL(QString, backend);
        ScratchAccountSet scratch(backend);
        const QSqlDatabase db = scratch.db();
        const SqlDialect &dialect = SqlDialect::of(db);
        const int before = count(db, u"SELECT count(*) FROM ICInvInitial"_s);
        {
            Transaction transaction(db);
            // The generated rows take several insert statements on each backend, the last one shorter.
            DemoVolume(db, dialect).seed(350, 3, 4, 2024);
            transaction.commit();
        }
        QCOMPARE(count(db, u"SELECT count(*) FROM ICInvInitial"_s), before + 350 * 3);
        QCOMPARE(count(db, u"SELECT count(DISTINCT FItemID) FROM t_ICItem WHERE FNumber LIKE '99.%'"_s), 350);
        QCOMPARE(count(db, u"SELECT count(*) FROM t_Stock WHERE FNumber LIKE '90.%'"_s), 3);
        // Each generated item has exactly one row per generated warehouse.
        QCOMPARE(count(db, u"SELECT count(*) FROM (SELECT v.FItemID FROM ICInvInitial v JOIN t_Stock s "
                           "ON s.FItemID=v.FStockID WHERE s.FNumber LIKE '90.%' GROUP BY v.FItemID HAVING count(*)<>3) x"_s),
                 0);
        // Ids written by the demo leave the automatic numbering intact.
        SqlRun::exec(db, u"INSERT INTO t_Stock (FNumber, FName) VALUES ('88', '新仓库')"_s);
        QVERIFY(count(db, u"SELECT FItemID FROM t_Stock WHERE FNumber='88'"_s) > 3);
    }
};

QTEST_MAIN(TestDemoData)
#include "tst_demodata.moc"
