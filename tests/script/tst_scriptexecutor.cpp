#include "tst_scriptexecutor.h"

#include "script/readstatement.h"
#include "script/scriptexecutor.h"

#include <QSqlQuery>
#include <QSqlRecord>
#include <QTest>

using script::ScriptError;
using script::ScriptExecutor;

namespace {

const QString crlf = QStringLiteral("\r\n");

QStringList figureColumns()
{
    return {QStringLiteral("FYtdAuxBegQty"), QStringLiteral("FYtdBegBal"), QStringLiteral("FYtdBegDiff"),
            QStringLiteral("FYtdAuxReceive"), QStringLiteral("FYtdDebit"), QStringLiteral("FYtdReceiveDiff"),
            QStringLiteral("FYtdAuxSend"), QStringLiteral("FYtdCredit"), QStringLiteral("FYtdSendDiff"),
            QStringLiteral("FAuxBegQty"), QStringLiteral("FBegBal"), QStringLiteral("FBegDiff"),
            QStringLiteral("FAuxUnitBegQty"), QStringLiteral("FYtdAuxUnitBegQty"), QStringLiteral("FYtdAuxUnitSend"),
            QStringLiteral("FYtdAuxUnitReceive")};
}

// Only the tables the scripts write, shaped as the account set has them; the unique index lets a
// test make one statement of a long script fail.
QStringList schema()
{
    QStringList figures;
    for (const QString &column : figureColumns())
        figures.append(column + QLatin1String(" DOUBLE PRECISION NOT NULL DEFAULT 0"));
    return {
        QStringLiteral("CREATE TABLE ICInvInitial (FBrNo VARCHAR(10) NOT NULL, FPeriod INTEGER NOT NULL,"
                       " FStockID INTEGER NOT NULL, FSPID INTEGER NOT NULL, FItemID INTEGER NOT NULL,"
                       " FUnitID INTEGER NOT NULL DEFAULT 0, FBatchNo VARCHAR(200) NOT NULL DEFAULT '', %1,"
                       " FStockInDate VARCHAR(10), FSecUnitID INTEGER NOT NULL DEFAULT 0,"
                       " FAuxPropID INTEGER NOT NULL DEFAULT 0, FSecCoefficient DOUBLE PRECISION NOT NULL DEFAULT 0,"
                       " FFieldCompose VARCHAR(100) NOT NULL DEFAULT '', FSNListID INTEGER NOT NULL DEFAULT 0,"
                       " FBillInterID INTEGER NOT NULL DEFAULT 0, FKFDate VARCHAR(10),"
                       " FKFPeriod INTEGER NOT NULL DEFAULT 0)")
            .arg(figures.join(QLatin1String(", "))),
        QStringLiteral("CREATE UNIQUE INDEX ux_icinvinitial_line ON ICInvInitial"
                       " (FStockID, FSPID, FPeriod, FItemID, FAuxPropID, FBatchNo, FBillInterID)"),
        QStringLiteral("CREATE TABLE ICSerial (FSNListID INTEGER NOT NULL, FSerialNo VARCHAR(40) NOT NULL)"),
        QStringLiteral("CREATE TABLE ICSerialFlow (FSNListID INTEGER NOT NULL, FSerialNo VARCHAR(40) NOT NULL)"),
        QStringLiteral("CREATE TABLE ICSerial_F1 (FSNListID INTEGER NOT NULL, FSerialNo VARCHAR(40) NOT NULL)"),
        QStringLiteral("CREATE TABLE t_SystemProfile (FCategory VARCHAR(30) NOT NULL, FKey VARCHAR(60) NOT NULL,"
                       " FValue VARCHAR(255))"),
    };
}

// Warehouse 12 holds item 3057 (one row, serial list 501) and batch item 3058 (lines B1 and B2,
// lists 502 and 503); warehouse 13 holds item 3057 too, which no script of warehouse 12 may touch.
QStringList seed()
{
    QStringList statements{
        QStringLiteral("INSERT INTO ICInvInitial (FBrNo, FPeriod, FStockID, FSPID, FItemID, FUnitID, FBatchNo,"
                       " FYtdAuxBegQty, FYtdBegBal, FAuxBegQty, FBegBal, FStockInDate, FFieldCompose, FSNListID,"
                       " FBillInterID) VALUES"
                       " ('0', 1, 12, 0, 3057, 5, '', 10, 1000, 10, 1000, '2024-01-01', '12|0|1|3057|0', 501, 0),"
                       " ('0', 1, 12, 0, 3058, 5, 'B1', 2, 200, 2, 200, '2024-01-01', '12|0|1|3058|0', 502, 1),"
                       " ('0', 1, 12, 0, 3058, 5, 'B2', 3, 300, 3, 300, '2024-01-01', '12|0|1|3058|0', 503, 2),"
                       " ('0', 1, 13, 0, 3057, 5, '', 7, 700, 7, 700, '2024-01-01', '13|0|1|3057|0', 601, 0)"),
        QStringLiteral("INSERT INTO t_SystemProfile (FCategory, FKey, FValue) VALUES"
                       " ('IC', 'INIBillInterID', '10'), ('IC', 'CurrentPeriod', '1')"),
    };
    for (const char *table : {"ICSerial", "ICSerialFlow", "ICSerial_F1"}) {
        statements.append(QStringLiteral("INSERT INTO %1 (FSNListID, FSerialNo) VALUES"
                                         " (501, 'S501'), (502, 'S502'), (503, 'S503'), (601, 'S601')")
                              .arg(QLatin1String(table)));
    }
    return statements;
}

QString serialIds(const char *table)
{
    return QStringLiteral("SELECT FSNListID FROM %1 ORDER BY FSNListID").arg(QLatin1String(table));
}

// The insert of the entry control for a new item row.
QString entryInsert(int stock, int item, const QString &figures, const QString &stockInDate)
{
    return QStringLiteral("Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo,"
                          " FYtdAuxBegQty,FYtdBegBal,FYtdBegDiff, FYtdAuxReceive,FYtdDebit,FYtdReceiveDiff,"
                          " FYtdAuxSend,FYtdCredit,FYtdSendDiff, FAuxBegQty,FBegBal,FBegDiff,"
                          " FAuxUnitBegQty,FYtdAuxUnitBegQty,FYtdAuxUnitSend, FYtdAuxUnitReceive,FStockInDate,"
                          "FSecUnitID,FAuxPropID,FSecCoefficient,FFieldCompose)"
                          " Values('0',1,%1,0,%2,7,'',%3,0,0,0,0,'%4',0,0,0,'%1|0|1|%2|0')")
        .arg(stock)
        .arg(item)
        .arg(figures, stockInDate);
}

// The insert of the batch dialog for one detail line, with its indented continuation lines.
QString batchLineInsert(const QString &values)
{
    const QString indent(26, QLatin1Char(' '));
    const QStringList continuation{
        QStringLiteral("FYtdAuxBegQty,FYtdBegBal,FYtdBegDiff,"),   QStringLiteral("FYtdAuxReceive,FYtdDebit,FYtdReceiveDiff,"),
        QStringLiteral("FYtdAuxSend,FYtdCredit,FYtdSendDiff,"),    QStringLiteral("FAuxBegQty,FBegBal,FBegDiff,FBillInterID,"),
        QStringLiteral("FKFDate,FKFPeriod,"),                      QStringLiteral("FAuxUnitBegQty,FYtdAuxUnitBegQty,FYtdAuxUnitSend,"),
        QStringLiteral("FYtdAuxUnitReceive,FStockInDate,FSecUnitID,FAuxPropID,FSecCoefficient,FSNListID,FFieldCompose)"),
    };
    QString text = QStringLiteral(" Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo,");
    for (const QString &line : continuation)
        text += crlf + indent + line;
    return text + crlf + QStringLiteral(" Values('0',") + values;
}

// The head of the deletes of the batch dialogs and the adjustment control, one piece a line.
QString placeDelete(int stock, const QString &itemCondition)
{
    return QStringList{QStringLiteral(" Delete from ICInvInitial "), QStringLiteral(" Where FStockID=%1 And ").arg(stock),
                       QStringLiteral("       FSPID=0 And "), QStringLiteral("       FPeriod=1 And "),
                       QStringLiteral("       ") + itemCondition}
        .join(crlf);
}

QString serialDeletesFor(int stock, int item)
{
    const QString select = QStringLiteral("(Select Distinct FSNListID From ICInvinitial Where FStockID=%1 And FSPID=0"
                                          " And FPeriod=1 And FItemID = %2 And FAuxPropID = 0)")
                               .arg(stock)
                               .arg(item);
    return QStringList{QStringLiteral("Delete ICSerial Where FSNListID In ") + select,
                       QStringLiteral("Delete ICSerialFlow Where FSNListID In ") + select,
                       QStringLiteral("Delete ICSerial_F1 Where FSNListID In ") + select}
        .join(crlf);
}

const QString rowsOfWarehouse12 = QStringLiteral(
    "SELECT FItemID, FUnitID, FBatchNo, FAuxBegQty, FBegBal, FFieldCompose FROM ICInvInitial WHERE FStockID = 12"
    " ORDER BY FItemID, FBatchNo");

} // namespace

void ScriptExecutorTest::initTestCase_data()
{
    QTest::addColumn<QString>("backend");
    QTest::newRow(TestDatabase::sqlite) << QString::fromLatin1(TestDatabase::sqlite);
    QTest::newRow(TestDatabase::postgresql) << QString::fromLatin1(TestDatabase::postgresql);
}

void ScriptExecutorTest::init()
{
    QFETCH_GLOBAL(QString, backend);
    if (backend == QLatin1String(TestDatabase::postgresql) && TestDatabase::postgresUri().isEmpty())
        QSKIP("LUMO_TEST_PG names no PostgreSQL server");
    m_db = std::make_unique<TestDatabase>(backend);
    QVERIFY2(m_db->isOpen(), qPrintable(m_db->error()));
    QVERIFY2(m_db->exec(schema() + seed()), qPrintable(m_db->error()));
}

void ScriptExecutorTest::cleanup()
{
    m_db.reset();
}

QStringList ScriptExecutorTest::snapshot() const
{
    QStringList all = m_db->rows(QStringLiteral("SELECT * FROM ICInvInitial ORDER BY FStockID, FItemID, FBatchNo"));
    for (const char *table : {"ICSerial", "ICSerialFlow", "ICSerial_F1"})
        all += m_db->rows(serialIds(table));
    all += m_db->rows(QStringLiteral("SELECT * FROM t_SystemProfile ORDER BY FKey"));
    return all;
}

void ScriptExecutorTest::writesWhatTheScriptSays_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QStringList>("checks");
    QTest::addColumn<QStringList>("expected"); // per check, its rows joined by "; "

    QTest::newRow("entry: insert of a new item row")
        << entryInsert(12, 4001, QStringLiteral("100,2500.5,0,40,1000,0,20,500,0,120,3000.5,0.25"), QStringLiteral("2024-01-01"))
        << QStringList{QStringLiteral("SELECT FBrNo, FBatchNo, FYtdAuxBegQty, FYtdBegBal, FAuxBegQty, FBegBal, FBegDiff,"
                                      " FStockInDate, FUnitID, FFieldCompose FROM ICInvInitial WHERE FItemID = 4001")}
        << QStringList{QStringLiteral("0, , 100, 2500.5, 120, 3000.5, 0.25, 2024-01-01, 7, 12|0|1|4001|0")};

    QTest::newRow("entry: update moves a loaded row to its new key")
        << QStringLiteral("update icinvinitial set FItemID=3059, funitid=6 ,FStockInDate='2024-02-01',FYtdAuxBegQty=11,"
                          "FYtdBegBal=1100,FYtdBegDiff=0,FYtdAuxReceive=1,FYtdDebit=100,FYtdReceiveDiff=0,FYtdAuxSend=0,"
                          "FYtdCredit=0,FYtdSendDiff=0,FAuxBegQty=12,FBegBal=1200,FBegDiff=0,FAuxUnitBegQty=0,"
                          "FYtdAuxUnitBegQty=0,FYtdAuxUnitSend=0,FYtdAuxUnitReceive=0,FFieldCompose='12|0|1|3059|0' ,"
                          "FAuxPropID=0 where FFieldCompose='12|0|1|3057|0'")
        << QStringList{rowsOfWarehouse12, QStringLiteral("SELECT FItemID, FBegBal FROM ICInvInitial WHERE FStockID = 13")}
        << QStringList{QStringLiteral("3058, 5, B1, 2, 200, 12|0|1|3058|0; 3058, 5, B2, 3, 300, 12|0|1|3058|0;"
                                      " 3059, 6, , 12, 1200, 12|0|1|3059|0"),
                       QStringLiteral("3057, 700")};

    QTest::newRow("entry: update of a batch item keeps its figures")
        << QStringLiteral("update icinvinitial set FItemID=3058,funitid=8,FFieldCompose='12|0|1|3058|0',FAuxPropID=0"
                          " where FFieldCompose='12|0|1|3058|0'")
        << QStringList{rowsOfWarehouse12}
        << QStringList{QStringLiteral("3057, 5, , 10, 1000, 12|0|1|3057|0; 3058, 8, B1, 2, 200, 12|0|1|3058|0;"
                                      " 3058, 8, B2, 3, 300, 12|0|1|3058|0")};

    QTest::newRow("entry: deleted item loses its serial numbers first")
        << serialDeletesFor(12, 3058) + crlf
               + QStringLiteral("Delete from ICInvInitial Where FStockID=12 And FSPID=0 And FPeriod=1 And FItemID = 3058"
                                " And FAuxPropID = 0")
        << QStringList{rowsOfWarehouse12, serialIds("ICSerial"), serialIds("ICSerialFlow"), serialIds("ICSerial_F1")}
        << QStringList{QStringLiteral("3057, 5, , 10, 1000, 12|0|1|3057|0"), QStringLiteral("501; 601"),
                       QStringLiteral("501; 601"), QStringLiteral("501; 601")};

    QTest::newRow("entry: record number written back")
        << QStringLiteral("Update t_SystemProfile Set FValue='12' Where FCategory='IC' And FKey='INIBillInterID'")
        << QStringList{QStringLiteral("SELECT FKey, FValue FROM t_SystemProfile ORDER BY FKey")}
        << QStringList{QStringLiteral("CurrentPeriod, 1; INIBillInterID, 12")};

    QTest::newRow("batch dialog: lines rewritten, deleted line's serials cleared")
        << QStringList{placeDelete(12, QStringLiteral("FItemID=3058 and ")) + crlf + QStringLiteral("       FAuxPropID=0"),
                       QStringLiteral(" Delete from ICInvInitial where FFieldCompose='12|0|1|3058|0'"),
                       batchLineInsert(QStringLiteral("1,12,0,3058,5,'B1',2,200,0,0,0,0,0,0,0,2,200,0,11,'2023-12-20',180,"
                                                      "0,0,0,0,'2024-01-01',0,0,0,502,'12|0|1|3058|0')")),
                       batchLineInsert(QStringLiteral("1,12,0,3058,5,'O''Brien',4,400.75,0,0,0,0,0,0,0,4,400.75,0,12,"
                                                      "'2023-12-21',90,0,0,0,0,'2024-01-02',0,0,0,0,'12|0|1|3058|0')")),
                       QStringLiteral("Delete ICSerial Where FSNListID In (503)"),
                       QStringLiteral("Delete ICSerialFlow Where FSNListID In (503)"),
                       QStringLiteral("Delete ICSerial_F1 Where FSNListID In (503)")}
               .join(crlf)
        << QStringList{QStringLiteral("SELECT FBatchNo, FBillInterID, FKFDate, FKFPeriod, FAuxBegQty, FBegBal, FSNListID,"
                                      " FStockInDate FROM ICInvInitial WHERE FItemID = 3058 ORDER BY FBatchNo"),
                       serialIds("ICSerial"), serialIds("ICSerial_F1")}
        << QStringList{QStringLiteral("B1, 11, 2023-12-20, 180, 2, 200, 502, 2024-01-01;"
                                      " O'Brien, 12, 2023-12-21, 90, 4, 400.75, 0, 2024-01-02"),
                       QStringLiteral("501; 502; 601"), QStringLiteral("501; 502; 601")};

    QTest::newRow("adjustment batch dialog: period-opening lines only")
        << QStringLiteral(" Delete from ICInvInitial  Where FStockID=12 And        FSPID=0 And        FPeriod=1 And"
                          "        FItemID=3058 and FAuxPropID = 0")
               + crlf
               + QStringLiteral(" Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo,FAuxBegQty,"
                                "FBegBal,FBegDiff,FBillInterID,FKFDate,FKFPeriod,FAuxPropID)")
               + crlf + QStringLiteral(" Values('0',1,12,0,3058,5,'B9',4,410,-2.5,13,'',0,0)")
        << QStringList{QStringLiteral("SELECT FBatchNo, FAuxBegQty, FBegBal, FBegDiff, FBillInterID, FKFDate, FFieldCompose"
                                      " FROM ICInvInitial WHERE FItemID = 3058")}
        << QStringList{QStringLiteral("B9, 4, 410, -2.5, 13, , ")};

    QTest::newRow("adjustment: changed row deleted and inserted again")
        << placeDelete(12, QStringLiteral("FItemID = 3057 And FAuxPropID = 0")) + crlf
               + QStringLiteral(" Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo,FAuxBegQty,"
                                "FBegBal,FBegDiff,FAuxPropID)")
               + crlf + QStringLiteral(" Values('0',1,12,0,3057,5,'',10,1234.56,0,0)")
        << QStringList{QStringLiteral("SELECT FItemID, FAuxBegQty, FBegBal FROM ICInvInitial WHERE FItemID = 3057"
                                      " ORDER BY FStockID")}
        << QStringList{QStringLiteral("3057, 10, 1234.56; 3057, 7, 700")};

    QTest::newRow("adjustment: deleted rows by item list")
        << placeDelete(12, QStringLiteral("FItemID in(3057,3058)"))
        << QStringList{QStringLiteral("SELECT FStockID, FItemID FROM ICInvInitial")}
        << QStringList{QStringLiteral("13, 3057")};

    QTest::newRow("adjustment: unit changed")
        << QStringList{QStringLiteral(" Update ICInvInitial Set FUnitID=9"), QStringLiteral(" Where FStockID=12 And "),
                       QStringLiteral("       FSPID=0 And "), QStringLiteral("       FPeriod=1 And "),
                       QStringLiteral("       FItemID=3058 And FAuxPropID = 0")}
               .join(crlf)
        << QStringList{rowsOfWarehouse12}
        << QStringList{QStringLiteral("3057, 5, , 10, 1000, 12|0|1|3057|0; 3058, 9, B1, 2, 200, 12|0|1|3058|0;"
                                      " 3058, 9, B2, 3, 300, 12|0|1|3058|0")};

    QTest::newRow("keywords and names in any case")
        << QStringLiteral("DELETE FROM icinvinitial WHERE fstockid=13 AND FSPID=0 and fperiod=1 And FITEMID=3057\r\n"
                          "insert INTO IcInvInitial(fbrno,fperiod,fstockid,fspid,fitemid,funitid) VALUES('0',1,13,0,3060,5)")
        << QStringList{QStringLiteral("SELECT FItemID, FUnitID, FBatchNo FROM ICInvInitial WHERE FStockID = 13")}
        << QStringList{QStringLiteral("3060, 5, ")};

    // A statement inside a literal is only data: it is stored, never run.
    QTest::newRow("literal holding a statement")
        << QStringLiteral("update icinvinitial set FItemID=3057,funitid=5,FFieldCompose='x'' ; delete from ICInvInitial"
                          " where 1=1 --',FAuxPropID=0 where FFieldCompose='13|0|1|3057|0'")
        << QStringList{QStringLiteral("SELECT FFieldCompose FROM ICInvInitial WHERE FStockID = 13"),
                       QStringLiteral("SELECT COUNT(*) FROM ICInvInitial")}
        << QStringList{QStringLiteral("x' ; delete from ICInvInitial where 1=1 --"), QStringLiteral("4")};
}

void ScriptExecutorTest::writesWhatTheScriptSays()
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
        QCOMPARE(m_db->rows(checks.at(i)).join(QLatin1String("; ")), expected.at(i));
}

void ScriptExecutorTest::failingStatementRollsEverythingBack_data()
{
    QTest::addColumn<QString>("failing");
    // The 500th statement repeats the first line's key / leaves out a column that must be filled.
    QTest::newRow("unique key") << entryInsert(20, 5000, QStringLiteral("1,1,0,0,0,0,0,0,0,1,1,0"), QStringLiteral("2024-01-01"));
    QTest::newRow("not null") << QStringLiteral("Insert into ICInvInitial(FBrNo,FStockID,FSPID,FItemID) Values('0',20,0,9999)");
}

void ScriptExecutorTest::failingStatementRollsEverythingBack()
{
    QFETCH(QString, failing);
    QStringList statements;
    for (int i = 0; i < 600; ++i) {
        statements.append(i == 499 ? failing
                                   : entryInsert(20, 5000 + i, QStringLiteral("1,1,0,0,0,0,0,0,0,1,1,0"),
                                                 QStringLiteral("2024-01-01")));
    }
    statements.append(QStringLiteral("Delete from ICInvInitial where FFieldCompose='12|0|1|3057|0'"));
    const QStringList before = snapshot();
    ScriptExecutor executor(m_db->db(), m_db->dialect());
    try {
        executor.run(statements.join(crlf));
        QFAIL("the failing statement was not reported");
    } catch (const ScriptError &error) {
        QCOMPARE(error.statementNumber(), 500);
        QCOMPARE(error.statementStart(), failing.simplified().left(60));
        QVERIFY(!error.message().isEmpty());
        QVERIFY(error.text().contains(QLatin1String("500")));
    }
    QCOMPARE(snapshot(), before);
    // The connection is usable again: the transaction was closed.
    executor.run(entryInsert(20, 7000, QStringLiteral("1,1,0,0,0,0,0,0,0,1,1,0"), QStringLiteral("2024-01-01")));
    QCOMPARE(m_db->rows(QStringLiteral("SELECT COUNT(*) FROM ICInvInitial WHERE FStockID = 20")), QStringList{"1"});
}

void ScriptExecutorTest::refusedScriptWritesNothing_data()
{
    QTest::addColumn<QString>("refused");
    QTest::addColumn<int>("statementNumber");

    QTest::newRow("drop table") << QStringLiteral("drop table ICInvInitial") << 2;
    QTest::newRow("another table") << QStringLiteral("delete from t_ICItem where 1=1") << 2;
    QTest::newRow("second statement after ;")
        << QStringLiteral("update ICInvInitial set FBegBal=1 where FFieldCompose='12|0|1|3057|0'; delete from ICInvInitial"
                          " where 1=1")
        << 2;
    QTest::newRow("line comment") << QStringLiteral("-- delete from ICInvInitial where FItemID=1") << 2;
    QTest::newRow("comment after a statement")
        << QStringLiteral("Update t_SystemProfile Set FValue='1' Where FCategory='IC' And FKey='INIBillInterID' /* x */")
        << 2;
    QTest::newRow("select") << QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID=1") << 2;
    QTest::newRow("create") << QStringLiteral("create table x (a int)") << 2;
    QTest::newRow("alter") << QStringLiteral("alter table ICInvInitial add FBogus int") << 2;
    QTest::newRow("unknown column") << QStringLiteral("update ICInvInitial set FBogus=1 where FFieldCompose='x'") << 2;
    QTest::newRow("or widens the condition")
        << QStringLiteral("Delete from ICInvInitial where FFieldCompose='x' or 1=1") << 2;
    QTest::newRow("no key in the condition") << QStringLiteral("Delete from ICInvInitial where FPeriod=1") << 2;
    QTest::newRow("insert into a serial table") << QStringLiteral("Insert into ICSerial(FSNListID) Values(1)") << 2;
    QTest::newRow("refused statement far down")
        << QStringLiteral("Delete ICSerial Where FSNListID In (501)\r\nDelete ICSerial_F2 Where FSNListID In (501)") << 3;
}

void ScriptExecutorTest::refusedScriptWritesNothing()
{
    QFETCH(QString, refused);
    QFETCH(int, statementNumber);
    // The first statement alone would change the database; with a refused one after it, nothing runs.
    const QString script = QStringLiteral("Delete from ICInvInitial where FFieldCompose='12|0|1|3058|0'\r\n") + refused;
    const QStringList before = snapshot();
    ScriptExecutor executor(m_db->db(), m_db->dialect());
    try {
        executor.run(script);
        QFAIL("the script was not refused");
    } catch (const ScriptError &error) {
        QCOMPARE(error.statementNumber(), statementNumber);
    }
    QCOMPARE(snapshot(), before);
    QCOMPARE(executor.preparedFormCount(), 0);
}

void ScriptExecutorTest::blankScriptIsNoOp_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("empty") << QString();
    QTest::newRow("line ends and blanks") << QStringLiteral("\r\n   \r\n\t\r\n");
}

void ScriptExecutorTest::blankScriptIsNoOp()
{
    QFETCH(QString, script);
    const QStringList before = snapshot();
    ScriptExecutor executor(m_db->db(), m_db->dialect());
    executor.run(script);
    QCOMPARE(snapshot(), before);
    QCOMPARE(executor.preparedFormCount(), 0);
}

void ScriptExecutorTest::sameShapeIsPreparedOnce()
{
    QStringList statements;
    for (int i = 0; i < 2000; ++i) {
        QString insert = entryInsert(30, 10000 + i, QStringLiteral("%1,%2.5,0,0,0,0,0,0,0,%1,%2.5,0").arg(i).arg(i * 10),
                                     QStringLiteral("2024-01-01"));
        // Letter case and line layout differ, the shape does not.
        statements.append(i % 2 ? insert.toUpper().replace(QLatin1String("ICINVINITIAL"), QLatin1String("icinvinitial"))
                                : insert.replace(QLatin1String(","), QLatin1String(" ,\r\n ")));
    }
    statements.append(QStringLiteral("Update t_SystemProfile Set FValue='2010' Where FCategory='IC' And FKey='INIBillInterID'"));
    ScriptExecutor executor(m_db->db(), m_db->dialect());
    executor.run(statements.join(crlf));
    QCOMPARE(executor.preparedFormCount(), 2);
    QCOMPARE(m_db->rows(QStringLiteral("SELECT COUNT(*), SUM(FAuxBegQty) FROM ICInvInitial WHERE FStockID = 30")),
             QStringList{QStringLiteral("2000, 1999000")});
    QCOMPARE(m_db->rows(QStringLiteral("SELECT FBegBal FROM ICInvInitial WHERE FItemID = 11999")),
             QStringList{QStringLiteral("19990.5")});
}

void ScriptExecutorTest::readStatementsRunOnBackend()
{
    QVERIFY2(m_db->exec({
                 QStringLiteral("CREATE TABLE t_Currency (FCurrencyID INTEGER NOT NULL, FScale INTEGER NOT NULL)"),
                 QStringLiteral("CREATE TABLE t_ICItem (FItemID INTEGER NOT NULL, FUnitGroupID INTEGER NOT NULL)"),
                 QStringLiteral("CREATE TABLE t_MeasureUnit (FMeasureUnitID INTEGER NOT NULL, FUnitGroupID INTEGER NOT NULL,"
                                " FCoefficient DOUBLE PRECISION)"),
                 QStringLiteral("INSERT INTO t_Currency (FCurrencyID, FScale) VALUES (1, 2), (2, 4)"),
                 QStringLiteral("INSERT INTO t_ICItem (FItemID, FUnitGroupID) VALUES (3057, 1)"),
                 QStringLiteral("INSERT INTO t_MeasureUnit (FMeasureUnitID, FUnitGroupID, FCoefficient) VALUES"
                                " (5, 1, 1), (6, 1, 12), (7, 1, NULL), (9, 2, 1000)"),
             }),
             qPrintable(m_db->error()));
    const auto run = [this](const QString &text) {
        const script::ReadStatement read = script::checkRead(text, m_db->dialect());
        QSqlQuery query(m_db->db());
        query.prepare(read.sql);
        for (qsizetype i = 0; i < read.values.size(); ++i)
            query.bindValue(int(i), read.values.at(i));
        QStringList fields;
        if (query.exec() && query.next()) {
            for (int i = 0; i < query.record().count(); ++i)
                fields.append(QString::number(query.value(i).toDouble()));
        }
        return fields.join(QLatin1String(", "));
    };
    QCOMPARE(run(QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID=1")), QStringLiteral("2"));
    const QString coefficients = QStringLiteral(
        "select isnull((SELECT t2.FCoefficient AS FCoefficient\r\n FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON"
        " t1.FUnitGroupID=t2.FUnitGroupID\r\n WHERE t1.FItemID = %1 AND t2.FMeasureUnitID=%2),0),\r\n isnull((SELECT"
        " ISNULL(t2.FCoefficient,0) AS FCoefficient\r\n FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON"
        " t1.FUnitGroupID=t2.FUnitGroupID\r\n WHERE t1.FItemID = %1 AND t2.fmeasureunitid= %3),0)");
    QCOMPARE(run(coefficients.arg(3057).arg(5).arg(6)), QStringLiteral("1, 12"));
    // A unit of another group, or a unit without a coefficient, counts 0.
    QCOMPARE(run(coefficients.arg(3057).arg(9).arg(7)), QStringLiteral("0, 0"));
}
