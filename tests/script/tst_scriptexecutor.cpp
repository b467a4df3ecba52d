#include "testdatabase.h"
#include "script/scriptexecutor.h"

#include <QTest>
#include <memory>

using namespace Qt::StringLiterals;
using script::ScriptError;
using script::ScriptExecutor;

namespace {

const QString crlf = u"\r\n"_s;

// Only the tables the scripts write, shaped as the account set has them; the unique index lets a
// test make one statement of a long script fail.
QStringList schema()
{
    QStringList figures;
    for (const char *column :
         {"FYtdAuxBegQty", "FYtdBegBal", "FYtdBegDiff", "FYtdAuxReceive", "FYtdDebit", "FYtdReceiveDiff", "FYtdAuxSend",
          "FYtdCredit", "FYtdSendDiff", "FAuxBegQty", "FBegBal", "FBegDiff", "FAuxUnitBegQty", "FYtdAuxUnitBegQty",
          "FYtdAuxUnitSend", "FYtdAuxUnitReceive"})
        figures.append(QLatin1String(column) + " DOUBLE PRECISION NOT NULL DEFAULT 0"_L1);
    QStringList statements{
        u"CREATE TABLE ICInvInitial (FBrNo VARCHAR(10) NOT NULL, FPeriod INTEGER NOT NULL, FStockID INTEGER NOT NULL,"
        " FSPID INTEGER NOT NULL, FItemID INTEGER NOT NULL, FUnitID INTEGER NOT NULL DEFAULT 0,"
        " FBatchNo VARCHAR(200) NOT NULL DEFAULT '', %1, FStockInDate VARCHAR(10), FSecUnitID INTEGER NOT NULL DEFAULT "
        "0,"
        " FAuxPropID INTEGER NOT NULL DEFAULT 0, FSecCoefficient DOUBLE PRECISION NOT NULL DEFAULT 0,"
        " FFieldCompose VARCHAR(100) NOT NULL DEFAULT '', FSNListID INTEGER NOT NULL DEFAULT 0,"
        " FBillInterID INTEGER NOT NULL DEFAULT 0, FKFDate VARCHAR(10), FKFPeriod INTEGER NOT NULL DEFAULT 0)"_s.arg(
            figures.join(u", "_s)),
        u"CREATE UNIQUE INDEX ux_icinvinitial_line ON ICInvInitial"
        " (FStockID, FSPID, FPeriod, FItemID, FAuxPropID, FBatchNo, FBillInterID)"_s,
        u"CREATE TABLE t_SystemProfile (FCategory VARCHAR(30) NOT NULL, FKey VARCHAR(60) NOT NULL, FValue VARCHAR(255))"_s,
    };
    for (const char *table : {"ICSerial", "ICSerialFlow", "ICSerial_F1"})
        statements.append(u"CREATE TABLE %1 (FSNListID INTEGER NOT NULL, FSerialNo VARCHAR(40) NOT NULL)"_s.arg(
            QLatin1String(table)));
    return statements;
}

// Warehouse 12 holds item 3057 (one row, serial list 501) and batch item 3058 (lines B1 and B2,
// lists 502 and 503); warehouse 13 holds item 3057 too, which no script of warehouse 12 may touch.
QStringList seed()
{
    QStringList statements{
        u"INSERT INTO ICInvInitial (FBrNo, FPeriod, FStockID, FSPID, FItemID, FUnitID, FBatchNo, FYtdAuxBegQty,"
        " FYtdBegBal, FAuxBegQty, FBegBal, FStockInDate, FFieldCompose, FSNListID, FBillInterID) VALUES"
        " ('0', 1, 12, 0, 3057, 5, '', 10, 1000, 10, 1000, '2024-01-01', '12|0|1|3057|0', 501, 0),"
        " ('0', 1, 12, 0, 3058, 5, 'B1', 2, 200, 2, 200, '2024-01-01', '12|0|1|3058|0', 502, 1),"
        " ('0', 1, 12, 0, 3058, 5, 'B2', 3, 300, 3, 300, '2024-01-01', '12|0|1|3058|0', 503, 2),"
        " ('0', 1, 13, 0, 3057, 5, '', 7, 700, 7, 700, '2024-01-01', '13|0|1|3057|0', 601, 0)"_s,
        u"INSERT INTO t_SystemProfile (FCategory, FKey, FValue) VALUES"
        " ('IC', 'INIBillInterID', '10'), ('IC', 'CurrentPeriod', '1')"_s,
    };
    for (const char *table : {"ICSerial", "ICSerialFlow", "ICSerial_F1"})
        statements.append(u"INSERT INTO %1 (FSNListID, FSerialNo) VALUES (501, 'S501'), (502, 'S502'), (503, 'S503'),"
                          " (601, 'S601')"_s.arg(QLatin1String(table)));
    return statements;
}

QString serialIds(const char *table)
{
    return u"SELECT FSNListID FROM %1 ORDER BY FSNListID"_s.arg(QLatin1String(table));
}

// The insert of the entry control for a new item row.
QString entryInsert(int stock, int item, const QString &figures = u"1,1,0,0,0,0,0,0,0,1,1,0"_s,
                    const QString &stockInDate = u"2024-01-01"_s)
{
    return u"Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo, FYtdAuxBegQty,FYtdBegBal,"
           "FYtdBegDiff, FYtdAuxReceive,FYtdDebit,FYtdReceiveDiff, FYtdAuxSend,FYtdCredit,FYtdSendDiff, FAuxBegQty,"
           "FBegBal,FBegDiff, FAuxUnitBegQty,FYtdAuxUnitBegQty,FYtdAuxUnitSend, FYtdAuxUnitReceive,FStockInDate,"
           "FSecUnitID,FAuxPropID,FSecCoefficient,FFieldCompose) Values('0',1,%1,0,%2,7,'',%3,0,0,0,0,'%4',0,0,0,"
           "'%1|0|1|%2|0')"_s.arg(stock)
               .arg(item)
               .arg(figures, stockInDate);
}

// The head of the deletes of the batch dialogs and the adjustment control, one piece a line.
QString placeDelete(int stock, const QString &itemCondition)
{
    return QStringList{u" Delete from ICInvInitial "_s, u" Where FStockID=%1 And "_s.arg(stock),
                       u"       FSPID=0 And "_s, u"       FPeriod=1 And "_s, u"       "_s + itemCondition}
        .join(crlf);
}

const QString rowsOfWarehouse12 = u"SELECT FItemID, FUnitID, FBatchNo, FAuxBegQty, FBegBal, FFieldCompose FROM"
                                  " ICInvInitial WHERE FStockID = 12 ORDER BY FItemID, FBatchNo"_s;

} // namespace

// The script executor against a real database: what each script of the controls writes, and
// that a refused or failing script leaves the database as it was. Every case runs on SQLite and,
// when LUMO_TEST_PG names a server, on PostgreSQL.
class ScriptExecutorTest : public QObject
{
    Q_OBJECT

private:
    QStringList snapshot() const
    {
        QStringList all = m_db->rows(u"SELECT * FROM ICInvInitial ORDER BY FStockID, FItemID, FBatchNo"_s);
        for (const char *table : {"ICSerial", "ICSerialFlow", "ICSerial_F1"})
            all += m_db->rows(serialIds(table));
        return all + m_db->rows(u"SELECT * FROM t_SystemProfile ORDER BY FKey"_s);
    }

    std::unique_ptr<TestDatabase> m_db;

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("backend");
        QTest::newRow(TestDatabase::sqlite) << QString::fromLatin1(TestDatabase::sqlite);
        QTest::newRow(TestDatabase::postgresql) << QString::fromLatin1(TestDatabase::postgresql);
    }

    void init()
    {
        QFETCH_GLOBAL(QString, backend);
        if (backend == QLatin1String(TestDatabase::postgresql) && TestDatabase::postgresUri().isEmpty())
            QSKIP("LUMO_TEST_PG names no PostgreSQL server");
        m_db = std::make_unique<TestDatabase>(backend);
        QVERIFY2(m_db->isOpen(), qPrintable(m_db->error()));
        QVERIFY2(m_db->exec(schema() + seed()), qPrintable(m_db->error()));
    }

    void cleanup()
    {
        m_db.reset();
    }

    void writesWhatTheScriptSays_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QStringList>("checks");
        QTest::addColumn<QStringList>("expected"); // per check, its rows joined by "; "

        // What the entry control and the batch dialog write is checked end to end by their own suites.
        QTest::newRow("adjustment batch dialog: period-opening lines only")
            << u" Delete from ICInvInitial  Where FStockID=12 And        FSPID=0 And        FPeriod=1 And"
               "        FItemID=3058 and FAuxPropID = 0"_s
                + crlf
                + u" Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo,FAuxBegQty,"
                  "FBegBal,FBegDiff,FBillInterID,FKFDate,FKFPeriod,FAuxPropID)"_s
                + crlf + u" Values('0',1,12,0,3058,5,'B9',4,410,-2.5,13,'',0,0)"_s
            << QStringList{u"SELECT FBatchNo, FAuxBegQty, FBegBal, FBegDiff, FBillInterID, FKFDate, FFieldCompose"
                           " FROM ICInvInitial WHERE FItemID = 3058"_s}
            << QStringList{u"B9, 4, 410, -2.5, 13, , "_s};

        QTest::newRow("adjustment: changed row deleted and inserted again")
            << placeDelete(12, u"FItemID = 3057 And FAuxPropID = 0"_s) + crlf
                + u" Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo,FAuxBegQty,"
                  "FBegBal,FBegDiff,FAuxPropID)"_s
                + crlf + u" Values('0',1,12,0,3057,5,'',10,1234.56,0,0)"_s
            << QStringList{u"SELECT FItemID, FAuxBegQty, FBegBal FROM ICInvInitial WHERE FItemID = 3057"
                           " ORDER BY FStockID"_s}
            << QStringList{u"3057, 10, 1234.56; 3057, 7, 700"_s};

        QTest::newRow("adjustment: deleted rows by item list")
            << placeDelete(12, u"FItemID in(3057,3058)"_s) << QStringList{u"SELECT FStockID, FItemID FROM ICInvInitial"_s}
            << QStringList{u"13, 3057"_s};

        QTest::newRow("adjustment: unit changed")
            << QStringList{u" Update ICInvInitial Set FUnitID=9"_s, u" Where FStockID=12 And "_s, u"       FSPID=0 And "_s,
                           u"       FPeriod=1 And "_s, u"       FItemID=3058 And FAuxPropID = 0"_s}
                   .join(crlf)
            << QStringList{rowsOfWarehouse12}
            << QStringList{u"3057, 5, , 10, 1000, 12|0|1|3057|0; 3058, 9, B1, 2, 200, 12|0|1|3058|0;"
                           " 3058, 9, B2, 3, 300, 12|0|1|3058|0"_s};

        QTest::newRow("keywords and names in any case")
            << u"DELETE FROM icinvinitial WHERE fstockid=13 AND FSPID=0 and fperiod=1 And FITEMID=3057\r\n"
               "insert INTO IcInvInitial(fbrno,fperiod,fstockid,fspid,fitemid,funitid) VALUES('0',1,13,0,3060,5)"_s
            << QStringList{u"SELECT FItemID, FUnitID, FBatchNo FROM ICInvInitial WHERE FStockID = 13"_s}
            << QStringList{u"3060, 5, "_s};

        // A statement inside a literal is only data: it is stored, never run.
        QTest::newRow("literal holding a statement")
            << u"update icinvinitial set FItemID=3057,funitid=5,FFieldCompose='x'' ; delete from ICInvInitial"
               " where 1=1 --',FAuxPropID=0 where FFieldCompose='13|0|1|3057|0'"_s
            << QStringList{u"SELECT FFieldCompose FROM ICInvInitial WHERE FStockID = 13"_s,
                           u"SELECT COUNT(*) FROM ICInvInitial"_s}
            << QStringList{u"x' ; delete from ICInvInitial where 1=1 --"_s, u"4"_s};

        // Blank scripts are nothing to do.
        const QStringList four{u"SELECT COUNT(*) FROM ICInvInitial"_s};
        QTest::newRow("blank: empty") << QString() << four << QStringList{u"4"_s};
        QTest::newRow("blank: line ends and blanks") << u"\r\n   \r\n\t\r\n"_s << four << QStringList{u"4"_s};
    }

    void writesWhatTheScriptSays()
    {
        QFETCH(QString, script);
        QFETCH(QStringList, checks);
        QFETCH(QStringList, expected);
        ScriptExecutor executor(m_db->db(), m_db->dialect());
        try {
            executor.run(script);
        } catch (const ScriptError &error) {
            QFAIL(qPrintable(error.text()));
        }
        QCOMPARE(checks.size(), expected.size());
        for (qsizetype i = 0; i < checks.size(); ++i)
            QCOMPARE(m_db->rows(checks.at(i)).join(u"; "_s), expected.at(i));
    }

    void failedScriptWritesNothing_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<int>("statementNumber");

        // Statement 500 of 600 fails on the database: it repeats the first line's key, or leaves out a
        // column that must be filled.
        const auto long600 = [](const QString &failing) {
            QStringList statements;
            for (int i = 0; i < 600; ++i)
                statements.append(i == 499 ? failing : entryInsert(20, 5000 + i));
            statements.append(u"Delete from ICInvInitial where FFieldCompose='12|0|1|3057|0'"_s);
            return statements.join(crlf);
        };
        QTest::newRow("unique key") << long600(entryInsert(20, 5000)) << 500;
        QTest::newRow("not null") << long600(
            u"Insert into ICInvInitial(FBrNo,FStockID,FSPID,FItemID) Values('0',20,0,9999)"_s)
                                  << 500;

        // The others are refused before anything runs; the first statement alone would change the
        // database. Why each is refused is the parser suite's matter.
        const auto refused = [](const QString &statement) {
            return u"Delete from ICInvInitial where FFieldCompose='12|0|1|3058|0'\r\n"_s + statement;
        };
        QTest::newRow("drop table") << refused(u"drop table ICInvInitial"_s) << 2;
        QTest::newRow("select") << refused(u"SELECT FScale FROM t_Currency WHERE FCurrencyID=1"_s) << 2;
        QTest::newRow("refused statement far down")
            << refused(u"Delete ICSerial Where FSNListID In (501)\r\nDelete ICSerial_F2 Where FSNListID In (501)"_s) << 3;
    }

    void failedScriptWritesNothing()
    {
        QFETCH(QString, script);
        QFETCH(int, statementNumber);
        const QStringList before = snapshot();
        ScriptExecutor executor(m_db->db(), m_db->dialect());
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
        executor.run(entryInsert(20, 7000));
        QCOMPARE(m_db->rows(u"SELECT COUNT(*) FROM ICInvInitial WHERE FStockID = 20"_s), QStringList{u"1"_s});
    }

    void sameShapeIsPreparedOnce()
    {
        QStringList statements;
        for (int i = 0; i < 2000; ++i) {
            QString insert = entryInsert(30, 10000 + i, u"%1,%2.5,0,0,0,0,0,0,0,%1,%2.5,0"_s.arg(i).arg(i * 10));
            // Letter case and line layout differ, the shape does not.
            statements.append(i % 2 ? insert.toUpper().replace(u"ICINVINITIAL"_s, u"icinvinitial"_s)
                                    : insert.replace(u","_s, u" ,\r\n "_s));
        }
        statements.append(u"Update t_SystemProfile Set FValue='2010' Where FCategory='IC' And FKey='INIBillInterID'"_s);
        ScriptExecutor executor(m_db->db(), m_db->dialect());
        executor.run(statements.join(crlf));
        QCOMPARE(executor.preparedFormCount(), 2);
        QCOMPARE(m_db->rows(u"SELECT COUNT(*), SUM(FAuxBegQty) FROM ICInvInitial WHERE FStockID = 30"_s),
                 QStringList{u"2000, 1999000"_s});
        QCOMPARE(m_db->rows(u"SELECT FBegBal FROM ICInvInitial WHERE FItemID = 11999"_s), QStringList{u"19990.5"_s});
    }
};

QTEST_MAIN(ScriptExecutorTest)
#include "tst_scriptexecutor.moc"
