#include "tst_scriptparser.h"

#include "script/scripterror.h"
#include "script/scriptparser.h"

#include <QTest>

Q_DECLARE_METATYPE(SqlBackend)

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

void ScriptParserTest::boundSql_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<SqlBackend>("backend");
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QStringList>("values");

    const QString serialDelete = QStringLiteral(
        "Delete ICSerial Where FSNListID In (Select Distinct FSNListID From ICInvinitial Where FStockID=12 And FSPID=0"
        " And FPeriod=1 And FItemID = 3057 And FAuxPropID = 0)");
    const QStringList placeValues{"qlonglong 12", "qlonglong 0", "qlonglong 1", "qlonglong 3057", "qlonglong 0"};
    QTest::newRow("serial delete without FROM")
        << serialDelete << SqlBackend::SQLite
        << QStringLiteral("DELETE FROM ICSerial WHERE FSNListID IN (SELECT DISTINCT FSNListID FROM ICInvInitial WHERE"
                          " FStockID = ? AND FSPID = ? AND FPeriod = ? AND FItemID = ? AND FAuxPropID = ?)")
        << placeValues;
    QTest::newRow("serial delete on PostgreSQL")
        << serialDelete << SqlBackend::PostgreSQL
        << QStringLiteral("DELETE FROM icserial WHERE fsnlistid IN (SELECT DISTINCT fsnlistid FROM icinvinitial WHERE"
                          " fstockid = ? AND fspid = ? AND fperiod = ? AND fitemid = ? AND fauxpropid = ?)")
        << placeValues;
    QTest::newRow("grouped conditions and an id list")
        << QStringLiteral("delete from ICInvInitial where (FStockID=12 and FSPID=0) and FPeriod=1 and FItemID in(7,8,9)")
        << SqlBackend::SQLite
        << QStringLiteral("DELETE FROM ICInvInitial WHERE (FStockID = ? AND FSPID = ?) AND FPeriod = ? AND FItemID IN (?, ?, ?)")
        << QStringList{"qlonglong 12", "qlonglong 0", "qlonglong 1", "qlonglong 7", "qlonglong 8", "qlonglong 9"};
    // Each literal takes the kind of its column: the suite's database converted them the same way.
    QTest::newRow("literals typed by their column")
        << QStringLiteral("update icinvinitial set FBatchNo=123, FBegBal='12.50', FPeriod=2.0, FStockInDate='',"
                          " FKFDate='2024-02-29' where FFieldCompose='1|0|1|2|0'")
        << SqlBackend::SQLite
        << QStringLiteral("UPDATE ICInvInitial SET FBatchNo = ?, FBegBal = ?, FPeriod = ?, FStockInDate = ?, FKFDate = ?"
                          " WHERE FFieldCompose = ?")
        << QStringList{"QString 123", "double 12.5", "qlonglong 2", "QString ", "QString 2024-02-29", "QString 1|0|1|2|0"};
    QTest::newRow("negative and fractional numbers")
        << QStringLiteral("Insert into ICInvInitial(FItemID,FBegBal,FBegDiff,FYtdDebit) Values(-1,-.5,0.125,7.)")
        << SqlBackend::SQLite << QStringLiteral("INSERT INTO ICInvInitial (FItemID, FBegBal, FBegDiff, FYtdDebit) VALUES (?, ?, ?, ?)")
        << QStringList{"qlonglong -1", "double -0.5", "double 0.125", "double 7"};
    QTest::newRow("quotes and non-ASCII text inside a literal")
        << QStringLiteral("Insert into ICInvInitial(FBatchNo) Values('O''Brien 批号--/*;')") << SqlBackend::SQLite
        << QStringLiteral("INSERT INTO ICInvInitial (FBatchNo) VALUES (?)") << QStringList{"QString O'Brien 批号--/*;"};
}

void ScriptParserTest::boundSql()
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

void ScriptParserTest::statementsAreNumberedAndQuoted()
{
    const QString script = QStringLiteral(
        " Delete from ICInvInitial \r\n Where FStockID=12 And \r\n       FSPID=0 And \r\n       FPeriod=1 And \r\n"
        "       FItemID=3058 and \r\n       FAuxPropID=0\r\n"
        "Delete ICSerial Where FSNListID In (503) Delete ICSerialFlow Where FSNListID In (503)\r\n");
    const QList<script::Statement> statements = script::parseScript(script);
    QCOMPARE(statements.size(), 3);
    QCOMPARE(statements.at(0).number, 1);
    QCOMPARE(statements.at(0).start, QStringLiteral("Delete from ICInvInitial Where FStockID=12 And FSPID=0 And F"));
    QCOMPARE(statements.at(1).start, QStringLiteral("Delete ICSerial Where FSNListID In (503)"));
    QCOMPARE(statements.at(2).number, 3);
    QCOMPARE(statements.at(2).table, QStringLiteral("ICSerialFlow"));
    QVERIFY(statements.at(2).kind == script::StatementKind::Delete);

    try {
        script::parseScript(script + QStringLiteral("Delete ICSerial_F1 Where FSNListID In (503) or 1=1"));
        QFAIL("OR was accepted");
    } catch (const ScriptError &error) {
        QCOMPARE(error.statementNumber(), 4);
        QCOMPARE(error.statementStart(), QStringLiteral("Delete ICSerial_F1 Where FSNListID In (503) or 1=1"));
    }
}

void ScriptParserTest::refusals_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("statementNumber");
    QTest::addColumn<QString>("named"); // what the message must name

    QTest::newRow("text into an integer column") << QStringLiteral("Insert into ICInvInitial(FItemID) Values('abc')") << 1 << "FItemID";
    QTest::newRow("fraction into an integer column") << QStringLiteral("Insert into ICInvInitial(FItemID) Values(1.5)") << 1 << "1.5";
    QTest::newRow("exponent") << QStringLiteral("Insert into ICInvInitial(FBegBal) Values(1e5)") << 1 << "1e5";
    QTest::newRow("impossible date") << QStringLiteral("Insert into ICInvInitial(FKFDate) Values('2024-13-01')") << 1 << "2024-13-01";
    QTest::newRow("NULL") << QStringLiteral("Insert into ICInvInitial(FBatchNo) Values(NULL)") << 1 << "NULL";
    QTest::newRow("fewer values") << QStringLiteral("Insert into ICInvInitial(FItemID,FUnitID) Values(1)") << 1 << "(2)";
    QTest::newRow("column twice") << QStringLiteral("Insert into ICInvInitial(FItemID,fitemid) Values(1,2)") << 1 << "FItemID";
    QTest::newRow("unterminated literal") << QStringLiteral("Insert into ICInvInitial(FBatchNo) Values('abc)") << 1 << "'abc)";
    QTest::newRow("double-quoted name") << QStringLiteral("Delete from ICInvInitial where \"FFieldCompose\"='a'") << 1 << "\"";
    QTest::newRow("full-width digit") << QStringLiteral("Delete from ICInvInitial where FItemID=１") << 1 << "１";
    QTest::newRow("key column of the profile") << QStringLiteral("update t_SystemProfile set FCategory='x' where FCategory='IC' and FKey='k'") << 1 << "FCategory";
    QTest::newRow("profile row not named") << QStringLiteral("update t_SystemProfile set FValue='1' where FCategory='IC'") << 1 << "FKey";
    QTest::newRow("delete on the profile") << QStringLiteral("delete from t_SystemProfile where FCategory='IC' and FKey='k'") << 1 << "DELETE";
    QTest::newRow("update without WHERE") << QStringLiteral("update ICInvInitial set FBegBal=1") << 1 << "WHERE";
    QTest::newRow("sub-select of another table") << QStringLiteral("Delete ICSerial Where FSNListID In (Select FSNListID From t_ICItem Where FItemID=1)") << 1 << "t_ICItem";
    QTest::newRow("sub-select of another column") << QStringLiteral("Delete ICSerial Where FSNListID In (Select FItemID From ICInvInitial Where FFieldCompose='x')") << 1 << "FSNListID";
    QTest::newRow("sub-select without key") << QStringLiteral("Delete ICSerial Where FSNListID In (Select FSNListID From ICInvInitial Where FPeriod=1)") << 1 << "FFieldCompose";
    QTest::newRow("column compared with column") << QStringLiteral("Delete from ICInvInitial where FFieldCompose=FBatchNo") << 1 << "FBatchNo";
    QTest::newRow("LIKE") << QStringLiteral("Delete from ICInvInitial where FFieldCompose like 'x%'") << 1 << "like";
    QTest::newRow("second statement of another kind") << QStringLiteral("Delete from ICInvInitial where FFieldCompose='a'\r\nexec xp_cmdshell 'x'") << 2 << "exec";
    QTest::newRow("semicolon") << QStringLiteral("Delete from ICInvInitial where FFieldCompose='a';\r\nDelete from ICInvInitial where FFieldCompose='b'") << 1 << ";";
}

void ScriptParserTest::refusals()
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

void ScriptParserTest::blankScriptHasNoStatements()
{
    QVERIFY(script::parseScript(QStringLiteral(" \r\n\t\r\n")).isEmpty());
}
