#include "scratchaccountset.h"
#include "script/scriptexecutor.h"

#include "db/accountset.h"
#include "db/sqlrun.h"

#include <QTest>

#include <memory>
#include <thread>

using namespace Qt::StringLiterals;
using script::ScriptError;
using script::ScriptExecutor;

namespace {

const QString crlf = u"\r\n"_s;

// The demo company, period 4. Place 1|1 (raw materials, shelf A) holds steel plate (item 1, batch
// lines B2401 and B2402, kilograms), copper wire (item 3) and two shelf-life lines of oil (item 5);
// the small motor (item 12) lies in warehouse 4 and on shelf C of warehouse 5.

// The insert of the entry control for a new item row of warehouse 2.
QString entryInsert(int item, const QString &figures = u"1,1,0,0,0,0,0,0,0,1,1,0"_s)
{
    return u"Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo, FYtdAuxBegQty,FYtdBegBal,"
           "FYtdBegDiff, FYtdAuxReceive,FYtdDebit,FYtdReceiveDiff, FYtdAuxSend,FYtdCredit,FYtdSendDiff, FAuxBegQty,"
           "FBegBal,FBegDiff, FAuxUnitBegQty,FYtdAuxUnitBegQty,FYtdAuxUnitSend, FYtdAuxUnitReceive,FStockInDate,"
           "FSecUnitID,FAuxPropID,FSecCoefficient,FFieldCompose) Values('0',4,2,0,%1,7,'',%2,0,0,0,0,'2024-04-01',0,0,0,"
           "'2|0|4|%1|0')"_s.arg(item)
               .arg(figures);
}

// The head of the deletes of the batch dialogs and the adjustment control, one piece a line.
QString placeDelete(int stock, int place, const QString &itemCondition)
{
    return QStringList{u" Delete from ICInvInitial "_s, u" Where FStockID=%1 And "_s.arg(stock),
                       u"       FSPID=%1 And "_s.arg(place), u"       FPeriod=4 And "_s, u"       "_s + itemCondition}
        .join(crlf);
}

const QString rowsOfShelfA = u"SELECT FItemID, FUnitID, FBatchNo, FAuxBegQty FROM ICInvInitial"
                             " WHERE FStockID = 1 AND FSPID = 1 ORDER BY FItemID, FBatchNo, FAuxBegQty"_s;
const QString lineCount = u"SELECT COUNT(*) FROM ICInvInitial"_s;

} // namespace

// The script executor on the demo account set: what each script of the controls writes, and that
// a refused or failing script leaves the database as it was. Every case runs on SQLite and, when
// LUMO_TEST_PG names a server, on PostgreSQL.
class ScriptExecutorTest : public QObject
{
    Q_OBJECT

private:
    QStringList snapshot() const
    {
        QStringList all = m_set->rows(u"SELECT * FROM ICInvInitial ORDER BY FEntryID"_s);
        for (const char *table : {"ICSerial", "ICSerialFlow", "ICSerial_F1"})
            all += m_set->rows(u"SELECT FSNListID, FSerialNo FROM %1 ORDER BY FSerialNo"_s.arg(QLatin1String(table)));
        return all + m_set->rows(u"SELECT FKey, FValue FROM t_SystemProfile ORDER BY FKey"_s);
    }

    std::unique_ptr<ScratchAccountSet> m_set;

private slots:
    void initTestCase_data()
    {
        addBackends();
    }

    void init()
    {
        QFETCH_GLOBAL(QString, backend);
        REQUIRE_BACKEND(backend);
        m_set = std::make_unique<ScratchAccountSet>(backend);
    }

    void cleanup()
    {
        m_set.reset();
    }

    void writesWhatTheScriptSays_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QStringList>("checks");
        QTest::addColumn<QStringList>("expected"); // per check, its rows joined by "; "

        // What the entry control and the batch dialog write is checked end to end by their own suites.
        QTest::newRow("adjustment batch dialog: period-opening lines only")
            << u" Delete from ICInvInitial  Where FStockID=1 And        FSPID=1 And        FPeriod=4 And"
               "        FItemID=1 and FAuxPropID = 0"_s
                + crlf
                + u" Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo,FAuxBegQty,"
                  "FBegBal,FBegDiff,FBillInterID,FKFDate,FKFPeriod,FAuxPropID)"_s
                + crlf + u" Values('0',4,1,1,1,4,'B9',4,410,-2.5,13,'',0,0)"_s
            << QStringList{u"SELECT FBatchNo, FAuxBegQty, FBegBal, FBegDiff, FBillInterID, FKFDate, FFieldCompose"
                           " FROM ICInvInitial WHERE FItemID = 1"_s}
            << QStringList{u"B9, 4, 410, -2.5, 13, , "_s};

        QTest::newRow("adjustment: changed row deleted and inserted again")
            << placeDelete(4, 0, u"FItemID = 12 And FAuxPropID = 0"_s) + crlf
                + u" Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo,FAuxBegQty,"
                  "FBegBal,FBegDiff,FAuxPropID)"_s
                + crlf + u" Values('0',4,4,0,12,1,'',10,1234.56,0,0)"_s
            << QStringList{u"SELECT FStockID, FAuxBegQty, FBegBal FROM ICInvInitial WHERE FItemID = 12"
                           " ORDER BY FStockID"_s}
            << QStringList{u"4, 10, 1234.56; 5, 80, 168000"_s};

        QTest::newRow("adjustment: deleted rows by item list")
            << placeDelete(1, 1, u"FItemID in(1,3)"_s) << QStringList{rowsOfShelfA}
            << QStringList{u"5, 9, , 400; 5, 9, , 600"_s};

        QTest::newRow("adjustment: unit changed")
            << QStringList{u" Update ICInvInitial Set FUnitID=6"_s, u" Where FStockID=1 And "_s, u"       FSPID=1 And "_s,
                           u"       FPeriod=4 And "_s, u"       FItemID=1 And FAuxPropID = 0"_s}
                   .join(crlf)
            << QStringList{rowsOfShelfA}
            << QStringList{u"1, 6, B2401, 12000; 1, 6, B2402, 8000; 3, 7, , 5000; 5, 9, , 400; 5, 9, , 600"_s};

        QTest::newRow("keywords and names in any case")
            << u"DELETE FROM icinvinitial WHERE fstockid=4 AND FSPID=0 and fperiod=4 And FITEMID=12\r\n"
               "insert INTO IcInvInitial(fbrno,fperiod,fstockid,fspid,fitemid,funitid) VALUES('0',4,4,0,13,2)"_s
            << QStringList{u"SELECT FItemID, FUnitID, FBatchNo FROM ICInvInitial WHERE FStockID = 4 ORDER BY FUnitID"_s}
            << QStringList{u"13, 1, ; 13, 2, "_s};

        // A statement inside a literal is only data: it is stored, never run.
        QTest::newRow("literal holding a statement")
            << u"update icinvinitial set FItemID=12,funitid=1,FFieldCompose='x'' ; delete from ICInvInitial"
               " where 1=1 --',FAuxPropID=0 where FFieldCompose='5|3|4|12|0'"_s
            << QStringList{u"SELECT FFieldCompose FROM ICInvInitial WHERE FStockID = 5 AND FItemID = 12"_s, lineCount}
            << QStringList{u"x' ; delete from ICInvInitial where 1=1 --"_s, u"24"_s};

        // Blank scripts are nothing to do.
        QTest::newRow("blank: empty") << QString() << QStringList{lineCount} << QStringList{u"24"_s};
        QTest::newRow("blank: line ends and blanks") << u"\r\n   \r\n\t\r\n"_s << QStringList{lineCount}
                                                     << QStringList{u"24"_s};
    }

    void writesWhatTheScriptSays()
    {
        QFETCH(QString, script);
        QFETCH(QStringList, checks);
        QFETCH(QStringList, expected);
        ScriptExecutor executor(m_set->db(), SqlDialect::of(m_set->db()));
        try {
            executor.run(script);
        } catch (const ScriptError &error) {
            QFAIL(qPrintable(error.text()));
        }
        QCOMPARE(checks.size(), expected.size());
        for (qsizetype i = 0; i < checks.size(); ++i)
            QCOMPARE(m_set->rows(checks.at(i)).join(u"; "_s), expected.at(i));
    }

    void failedScriptWritesNothing_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<int>("statementNumber");

        // Statement 500 of 600 fails on the database: it names an item the account set does not
        // have, or leaves out a column that must be filled.
        const auto long600 = [](const QString &failing) {
            QStringList statements;
            for (int i = 0; i < 600; ++i)
                statements.append(i == 499 ? failing : entryInsert(1 + i % 16));
            statements.append(u"Delete from ICInvInitial where FFieldCompose='1|1|4|3|0'"_s);
            return statements.join(crlf);
        };
        QTest::newRow("unknown item") << long600(entryInsert(999999)) << 500;
        QTest::newRow("not null") << long600(
            u"Insert into ICInvInitial(FBrNo,FStockID,FSPID,FItemID) Values('0',2,0,1)"_s)
                                  << 500;

        // The others are refused before anything runs; the first statement alone would change the
        // database. Why each is refused is the parser suite's matter.
        const auto refused = [](const QString &statement) {
            return u"Delete from ICInvInitial where FFieldCompose='1|1|4|3|0'\r\n"_s + statement;
        };
        QTest::newRow("drop table") << refused(u"drop table ICInvInitial"_s) << 2;
        QTest::newRow("select") << refused(u"SELECT FScale FROM t_Currency WHERE FCurrencyID=1"_s) << 2;
        // PostgreSQL would refuse it only with a driver error; both backends refuse it alike.
        QTest::newRow("NUL in a text") << refused(u"Update ICInvInitial Set FBegBal=1, FBegDiff=0, FYtdDebit=0, FBatchNo='a"_s
                                                  + QChar(0) + u"' Where FFieldCompose='1|1|4|1|0'"_s) << 2;
        QTest::newRow("refused statement far down")
            << refused(u"Delete ICSerial Where FSNListID In (1)\r\nDelete ICSerial_F2 Where FSNListID In (1)"_s) << 3;
    }

    void failedScriptWritesNothing()
    {
        QFETCH(QString, script);
        QFETCH(int, statementNumber);
        const QStringList before = snapshot();
        ScriptExecutor executor(m_set->db(), SqlDialect::of(m_set->db()));
        try {
            executor.run(script);
            QFAIL("the script was not stopped");
        } catch (const ScriptError &error) {
            QCOMPARE(error.statementNumber(), statementNumber);
            QCOMPARE(error.statementStart(), script.split(crlf).at(statementNumber - 1).simplified().left(60));
            QVERIFY(error.text().contains(QString::number(statementNumber)));
        }
        QCOMPARE(snapshot(), before);
        // The connection is usable again: the transaction was closed.
        executor.run(entryInsert(1));
        QCOMPARE(m_set->rows(u"SELECT COUNT(*) FROM ICInvInitial WHERE FStockID = 2 AND FItemID = 1"_s), QStringList{u"1"_s});
    }

    void sameShapeIsPreparedOnce()
    {
        QStringList statements;
        for (int i = 0; i < 2000; ++i) {
            QString insert = entryInsert(1 + i % 16, u"%1,%2.5,0,0,0,0,0,0,0,%1,%2.5,0"_s.arg(i).arg(i * 10));
            // Letter case and line layout differ, the shape does not.
            statements.append(i % 2 ? insert.toUpper().replace(u"ICINVINITIAL"_s, u"icinvinitial"_s)
                                    : insert.replace(u","_s, u" ,\r\n "_s));
        }
        statements.append(u"Update t_SystemProfile Set FValue='2010' Where FCategory='IC' And FKey='INIBillInterID'"_s);
        ScriptExecutor executor(m_set->db(), SqlDialect::of(m_set->db()));
        executor.run(statements.join(crlf));
        QCOMPARE(executor.preparedFormCount(), 2);
        QCOMPARE(m_set->rows(u"SELECT COUNT(*), SUM(FAuxBegQty) FROM ICInvInitial WHERE FUnitID = 7 AND FStockID = 2"_s),
                 QStringList{u"2000, 1999000"_s});
        QCOMPARE(m_set->rows(u"SELECT FItemID, FBegBal FROM ICInvInitial WHERE FStockID = 2 AND FAuxBegQty = 1999"_s),
                 QStringList{u"16, 19990.5"_s});
        QCOMPARE(m_set->rows(u"SELECT FValue FROM t_SystemProfile WHERE FKey = 'INIBillInterID'"_s), QStringList{u"2010"_s});
    }

    // A save waits for a row another session holds, which then wants a row the save holds:
    // PostgreSQL aborts the save. It runs once more; a second deadlock refuses it, saying why.
    void deadlockedSaveRunsOnceMore_data()
    {
        QTest::addColumn<int>("deadlocks");
        QTest::addColumn<QString>("values"); // FValue of ShareBal and of UnderStock afterwards
        QTest::newRow("once") << 1 << u"a, a"_s;
        QTest::newRow("twice") << 2 << u"1, b"_s;
    }

    void deadlockedSaveRunsOnceMore()
    {
        QFETCH_GLOBAL(QString, backend);
        QFETCH(int, deadlocks);
        if (backend != ScratchAccountSet::Postgres)
            QSKIP("SQLite queues writers and never deadlocks");
        const QString update = u"Update t_SystemProfile Set FValue='%1' Where FCategory='IC' And FKey='%2'"_s;
        const QSqlDatabase db = m_set->db();
        // The save checks for a deadlock long before this session, so it is the one aborted.
        SqlRun::execAll(db, {u"SET deadlock_timeout = '10s'"_s, u"BEGIN"_s, update.arg(u"b"_s, u"UnderStock"_s)});
        std::atomic<int> savePid = 0;
        QString refusal;
        std::thread save([&] {
            const QSqlDatabase own = AccountSet::open(m_set->acctDb()).database();
            SqlRun::exec(own, u"SET deadlock_timeout = '1s'"_s);
            savePid = SqlRun::scalar(own, u"SELECT pg_backend_pid()"_s).toInt();
            try {
                ScriptExecutor(own, SqlDialect::of(own)).run(update.arg(u"a"_s, u"ShareBal"_s) + crlf
                                                             + update.arg(u"a"_s, u"UnderStock"_s));
            } catch (const ScriptError &error) {
                refusal = error.text();
            }
        });
        // Wanting ShareBal while the save waits for UnderStock closes the circle; going back to
        // the savepoint gives ShareBal up again for the next run.
        bool waited = true;
        for (int round = 0; round < deadlocks && waited; ++round) {
            SqlRun::exec(db, u"SAVEPOINT s"_s);
            waited = m_set->awaitLockWait(savePid);
            SqlRun::execAll(db, {update.arg(u"b"_s, u"ShareBal"_s), u"ROLLBACK TO SAVEPOINT s"_s});
        }
        SqlRun::exec(db, u"COMMIT"_s);
        save.join();
        QVERIFY(waited);
        QCOMPARE(refusal.contains(u"死锁"_s), deadlocks > 1);
        QTEST(m_set->rows(u"SELECT FValue FROM t_SystemProfile WHERE FKey IN ('ShareBal', 'UnderStock') ORDER BY FKey"_s)
                  .join(u", "_s),
              "values");
    }
};

QTEST_MAIN(ScriptExecutorTest)
#include "tst_scriptexecutor.moc"
