#include "tst_dataservice.h"

#include "scratchaccountset.h"
#include "servicecalls.h"

#include "db/sqlrun.h"
#include "mterrors.h"
#include "queries/stockquery.h"
#include "queries/typelist.h"
#include "frame/automation/progids.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/recordset.h"

#include <QHash>
#include <QTest>

using ServiceCalls::errorNumberOf;
using ServiceCalls::publishLogin;

namespace {

const QString TreeTypes = QStringLiteral("(500,502,20291,20293)");

struct StockRow
{
    int id;
    int parent;
    int place;
    QString name;
    int isStockMgr;
    int type;
};

QList<StockRow> fetchStocks(const QVariantList &args)
{
    const auto data = CreateObject(ProgId::MICInitialData);
    const auto rs = takeObject<Recordset>(Dispatch::call(data.get(), QStringLiteral("FetchStocks"), args));
    QList<StockRow> rows;
    if (!rs)
        return rows;
    for (rs->MoveFirst(); !rs->atEnd(); rs->MoveNext()) {
        rows.append({rs->Fields(QStringLiteral("FItemID")).toInt(), rs->Fields(QStringLiteral("FParentID")).toInt(),
                     rs->Fields(QStringLiteral("FSPID")).toInt(), rs->Fields(QStringLiteral("FName")).toString(),
                     rs->Fields(QStringLiteral("FIsStockMgr")).toInt(), rs->Fields(QStringLiteral("FTypeID")).toInt()});
    }
    return rows;
}

// The tree adds a node under its parent's key, so every parent must already be there.
void verifyParentsFirst(const QList<StockRow> &rows)
{
    QSet<int> warehousesSeen;
    for (const StockRow &row : rows) {
        if (row.place != 0) {
            QCOMPARE(row.parent, row.id);
            QVERIFY2(warehousesSeen.contains(row.id), qPrintable(row.name));
            continue;
        }
        if (row.parent != 0)
            QVERIFY2(warehousesSeen.contains(row.parent), qPrintable(row.name));
        QVERIFY2(!warehousesSeen.contains(row.id), qPrintable(row.name + QStringLiteral(" twice")));
        warehousesSeen.insert(row.id);
    }
}

const StockRow *findByName(const QList<StockRow> &rows, const QString &name)
{
    for (const StockRow &row : rows) {
        if (row.name == name)
            return &row;
    }
    return nullptr;
}

QVariant firstField(const QVariant &recordset, int field)
{
    const auto rs = takeObject<Recordset>(recordset);
    return rs && !rs->atEnd() ? rs->Fields(field) : QVariant();
}

const QString CoefficientStatement =
    QStringLiteral("select isnull((SELECT t2.FCoefficient AS FCoefficient\r\n"
                   " FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID\r\n"
                   " WHERE t1.FItemID = %1 AND t2.FMeasureUnitID=%2),0),\r\n"
                   " isnull((SELECT ISNULL(t2.FCoefficient,0) AS FCoefficient\r\n"
                   " FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID\r\n"
                   " WHERE t1.FItemID = %1 AND t2.fmeasureunitid= %3),0)");

} // namespace

void TestDataService::cleanup()
{
    publishLogin({});
}

void TestDataService::stocksComeParentsFirst_data()
{
    addBackendColumn();
    addBackendRows();
}

void TestDataService::stocksComeParentsFirst()
{
    QFETCH(QString, backend);
    REQUIRE_BACKEND(backend);
    ScratchAccountSet scratch(backend);
    const QSqlDatabase db = scratch.db();
    // Awkward shapes: a child numbered before its parent, a parent loop, a deleted warehouse,
    // and a child whose parent is of a type the tree leaves out.
    SqlRun::exec(
        db, QStringLiteral("INSERT INTO t_Stock (FItemID, FParentID, FNumber, FName) VALUES (50, 0, '08', '备件仓')"));
    SqlRun::exec(
        db,
        QStringLiteral("INSERT INTO t_Stock (FItemID, FParentID, FNumber, FName) VALUES (51, 50, '00.1', '备件分仓')"));
    SqlRun::exec(db, QStringLiteral(
                         "INSERT INTO t_Stock (FItemID, FParentID, FNumber, FName) VALUES (52, 53, '09.1', '循环甲')"));
    SqlRun::exec(db, QStringLiteral(
                         "INSERT INTO t_Stock (FItemID, FParentID, FNumber, FName) VALUES (53, 52, '09.2', '循环乙')"));
    SqlRun::exec(
        db, QStringLiteral("INSERT INTO t_Stock (FItemID, FNumber, FName, FDeleted) VALUES (54, '10', '已删除仓', 1)"));
    SqlRun::exec(
        db,
        QStringLiteral("INSERT INTO t_Stock (FItemID, FParentID, FNumber, FName) VALUES (55, 9, '07.01', '废品分仓')"));

    const QList<StockRow> rows = fetchStocks({scratch.propsString(), TreeTypes});
    verifyParentsFirst(rows);
    QVERIFY(!findByName(rows, QStringLiteral("已删除仓")));
    QVERIFY2(!findByName(rows, QStringLiteral("废品仓")), "type 501 is not asked for");
    QCOMPARE(findByName(rows, QStringLiteral("废品分仓"))->parent, 0);
    QCOMPARE(findByName(rows, QStringLiteral("备件分仓"))->parent, 50);
    QVERIFY(findByName(rows, QStringLiteral("循环甲")) && findByName(rows, QStringLiteral("循环乙")));

    const StockRow *raw = findByName(rows, QStringLiteral("原材料仓"));
    QCOMPARE(raw->isStockMgr, 1);
    QCOMPARE(findByName(rows, QStringLiteral("半成品仓"))->isStockMgr, 0);
    QCOMPARE(findByName(rows, QStringLiteral("代管仓"))->type, 502);
    const StockRow *shelf = findByName(rows, QStringLiteral("A区货架"));
    QVERIFY(shelf->place > 0);
    QCOMPARE(shelf->id, raw->id);
    QCOMPARE(shelf->isStockMgr, 0);
    QCOMPARE(shelf->type, raw->type);
    // The place follows its warehouse before any other warehouse does.
    const qsizetype rawAt = raw - rows.constData();
    QCOMPARE(rows.at(rawAt + 1).parent, raw->id);

    // Without a type list every warehouse is listed.
    QVERIFY(findByName(fetchStocks({scratch.propsString()}), QStringLiteral("废品仓")));
    const QList<StockRow> consigned = fetchStocks({scratch.propsString(), QStringLiteral(" ( 502 ) ")});
    QCOMPARE(consigned.size(), 1);
    QCOMPARE(consigned.first().name, QStringLiteral("代管仓"));
}

void TestDataService::stockFieldsKeepTheirNames()
{
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    const auto data = CreateObject(ProgId::MICInitialData);
    const auto rs = takeObject<Recordset>(
        Dispatch::call(data.get(), QStringLiteral("FetchStocks"), {scratch.propsString(), TreeTypes}));
    QVERIFY(rs);
    QCOMPARE(rs->fieldNames(), StockQuery::Fields);
    QVERIFY(rs->RecordCount() > 8);
}

void TestDataService::typeListsAreParsedOrRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("types");
    QTest::addColumn<bool>("refused");
    QTest::newRow("tree list") << "(500,502,20291,20293)" << QList<int>{500, 502, 20291, 20293} << false;
    QTest::newRow("blanks") << " ( 500 , 502 ) " << QList<int>{500, 502} << false;
    QTest::newRow("empty: all types") << "" << QList<int>{} << false;
    QTest::newRow("no parentheses") << "500,502" << QList<int>{} << true;
    QTest::newRow("empty list") << "()" << QList<int>{} << true;
    QTest::newRow("statement") << "(500); delete from t_Stock" << QList<int>{} << true;
    QTest::newRow("condition") << "(500) or 1=1" << QList<int>{} << true;
    QTest::newRow("sub-select") << "(select FTypeID from t_Stock)" << QList<int>{} << true;
    QTest::newRow("sign") << "(-500)" << QList<int>{} << true;
    QTest::newRow("too large") << "(99999999999)" << QList<int>{} << true;
}

void TestDataService::typeListsAreParsedOrRefused()
{
    QFETCH(QString, text);
    QFETCH(bool, refused);
    if (refused) {
        QCOMPARE(errorNumberOf([&] { parseTypeList(text); }), MtError::BadTypeList);
        // The service refuses before it reaches any account set.
        const auto data = CreateObject(ProgId::MICInitialData);
        QCOMPARE(
            errorNumberOf([&] {
                Dispatch::call(data.get(), QStringLiteral("FetchStocks"), {QStringLiteral("AcctDB=/nowhere.db"), text});
            }),
            MtError::BadTypeList);
        return;
    }
    QTEST(parseTypeList(text), "types");
}

void TestDataService::systemParametersAreTyped_data()
{
    addBackendColumn();
    addBackendRows();
}

void TestDataService::systemParametersAreTyped()
{
    QFETCH(QString, backend);
    REQUIRE_BACKEND(backend);
    ScratchAccountSet scratch(backend);
    const QSqlDatabase db = scratch.db();
    SqlRun::exec(db, QStringLiteral("UPDATE t_SystemProfile SET FValue='true' WHERE FKey='UnderStock'"));
    SqlRun::exec(db, QStringLiteral("DELETE FROM t_SystemProfile WHERE FKey='ICClosed'"));

    const auto data = CreateObject(ProgId::MICInitialData);
    const auto params = takeObject<Dictionary>(
        Dispatch::call(data.get(), QStringLiteral("FetchSysParameter"), {scratch.propsString()}));
    QVERIFY(params);
    for (const QString &key :
         {QStringLiteral("CurrentPeriod"), QStringLiteral("QtyDecimal"), QStringLiteral("PriceDecimal"),
          QStringLiteral("AuditChoice"), QStringLiteral("ShareBal"), QStringLiteral("UnderStock"),
          QStringLiteral("ICClosed"), QStringLiteral("INIBillInterID"), QStringLiteral("GLClosed"),
          QStringLiteral("GLCurrentPeriod"), QStringLiteral("GLInitClosed"), QStringLiteral("ShowFilterFormByInit")}) {
        QVERIFY2(params->Exists(key), qPrintable(key));
        QCOMPARE(params->Item(key).typeId(), QMetaType::Int);
    }
    QCOMPARE(params->Item(QStringLiteral("currentperiod")).toInt(), 4);
    QCOMPARE(params->Item(QStringLiteral("PriceDecimal")).toInt(), 4);
    QCOMPARE(params->Item(QStringLiteral("UnderStock")).toInt(), 1);
    QCOMPARE(params->Item(QStringLiteral("ICClosed")).toInt(), 0);
    QCOMPARE(params->Item(QStringLiteral("GLClosed")).toInt(), 1);
    QVERIFY(params->Item(QStringLiteral("INIBillInterID")).toInt() > 0);
    QCOMPARE(params->Item(QStringLiteral("CPStartDate")).typeId(), QMetaType::QString);
    QCOMPARE(params->Item(QStringLiteral("CPStartDate")).toString().left(4), QStringLiteral("0401"));
}

void TestDataService::measureUnitsCarryTheirGroups()
{
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    const auto data = CreateObject(ProgId::MICInitialData);
    const auto rs =
        takeObject<Recordset>(Dispatch::call(data.get(), QStringLiteral("FetchMeasureUnits"), {scratch.propsString()}));
    QVERIFY(rs);
    QCOMPARE(rs->fieldNames(),
             (QStringList{QStringLiteral("FMeasureUnitID"), QStringLiteral("FUnitGroupID"), QStringLiteral("FNumber"),
                          QStringLiteral("FName"), QStringLiteral("FCoefficient")}));
    QCOMPARE(rs->RecordCount(), 10);
    int lastGroup = 0;
    QHash<QString, double> coefficients;
    for (rs->MoveFirst(); !rs->atEnd(); rs->MoveNext()) {
        QVERIFY(rs->Fields(1).toInt() >= lastGroup);
        lastGroup = rs->Fields(1).toInt();
        coefficients.insert(rs->Fields(3).toString(), rs->Fields(4).toDouble());
    }
    QCOMPARE(coefficients.value(QStringLiteral("吨")), 1000.0);
    QCOMPARE(coefficients.value(QStringLiteral("个")), 1.0);
}

void TestDataService::updateWritesAllOrNothing_data()
{
    addBackendColumn();
    addBackendRows();
}

void TestDataService::updateWritesAllOrNothing()
{
    QFETCH(QString, backend);
    REQUIRE_BACKEND(backend);
    ScratchAccountSet scratch(backend);
    const QSqlDatabase db = scratch.db();
    const auto data = CreateObject(ProgId::MICInitialData);
    const auto rowsOfItem = [&](int item) {
        return SqlRun::scalar(db, QStringLiteral("SELECT count(*) FROM ICInvInitial WHERE FItemID=%1").arg(item))
            .toInt();
    };

    // A new item row of 圆钢 at 半成品仓, as the entry grid saves it, and the record number.
    const QString insert = QStringLiteral(
        "Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo, FYtdAuxBegQty,FYtdBegBal,"
        "FYtdBegDiff, FYtdAuxReceive,FYtdDebit,FYtdReceiveDiff, FYtdAuxSend,FYtdCredit,FYtdSendDiff, "
        "FAuxBegQty,FBegBal,"
        "FBegDiff, FAuxUnitBegQty,FYtdAuxUnitBegQty,FYtdAuxUnitSend, FYtdAuxUnitReceive,FStockInDate,FSecUnitID,"
        "FAuxPropID,FSecCoefficient,FFieldCompose) Values('0',4,2,0,2,4,'',10,48,0,5,24,0,0,0,0,15,72,0,0,0,0,0,"
        "'2024-04-01',0,0,0,'2|0|4|2|0')");
    const QString script =
        insert + QStringLiteral("\r\n Update t_SystemProfile Set FValue='57'\r\n Where FCategory='IC' "
                                "And FKey='INIBillInterID'\r\n");
    const int before = rowsOfItem(2);
    Dispatch::call(data.get(), QStringLiteral("UpdateINIData"), {scratch.propsString(), script});
    QCOMPARE(rowsOfItem(2), before + 1);
    QCOMPARE(SqlRun::scalar(db, QStringLiteral("SELECT FBegBal FROM ICInvInitial WHERE FFieldCompose='2|0|4|2|0'"))
                 .toDouble(),
             72.0);
    const auto params = takeObject<Dictionary>(
        Dispatch::call(data.get(), QStringLiteral("FetchSysParameter"), {scratch.propsString()}));
    QCOMPARE(params->Item(QStringLiteral("INIBillInterID")).toInt(), 57);

    // The second statement names an item the account set does not have: nothing of the script lands.
    const QString failing =
        QStringLiteral("Delete from ICInvInitial Where FStockID=2 And FSPID=0 And FPeriod=4 And "
                       "FItemID = 2 And FAuxPropID = 0\r\n") +
        QString(insert).replace(QStringLiteral("Values('0',4,2,0,2,"), QStringLiteral("Values('0',4,2,0,999999,"));
    try {
        Dispatch::call(data.get(), QStringLiteral("UpdateINIData"), {scratch.propsString(), failing});
        QFAIL("a failing statement must raise an error");
    } catch (const LumoError &error) {
        QCOMPARE(error.number(), MtError::ScriptFailed);
        QVERIFY2(error.description().startsWith(QStringLiteral("SQL脚本第2条")), qPrintable(error.description()));
    }
    QCOMPARE(rowsOfItem(2), before + 1);

    // A statement outside what the controls write is refused before anything runs.
    QCOMPARE(errorNumberOf([&] {
                 Dispatch::call(data.get(), QStringLiteral("UpdateINIData"),
                                {scratch.propsString(), QStringLiteral("Delete from ICInvInitial Where FStockID=2 And "
                                                                       "FSPID=0 And FPeriod=4 And FItemID = 2\r\n"
                                                                       "drop table t_ICItem")});
             }),
             MtError::ScriptFailed);
    QCOMPARE(rowsOfItem(2), before + 1);
}

void TestDataService::executeReadsOnlyWhatTheControlsSend_data()
{
    addBackendColumn();
    addBackendRows();
}

void TestDataService::executeReadsOnlyWhatTheControlsSend()
{
    QFETCH(QString, backend);
    REQUIRE_BACKEND(backend);
    ScratchAccountSet scratch(backend);
    const auto connection = CreateObject(ProgId::AppConnection);
    const auto execute = [&](const QString &sql) {
        return Dispatch::call(connection.get(), QStringLiteral("Execute"), {sql});
    };

    QCOMPARE(errorNumberOf([&] { execute(QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID=1")); }),
             MtError::NotLoggedIn);
    publishLogin(scratch.propsString());

    QCOMPARE(firstField(execute(QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID=1")), 0).toInt(), 2);
    QCOMPARE(firstField(execute(QStringLiteral("select  fscale\r\n from T_CURRENCY where FCurrencyID = 3")), 0).toInt(),
             0);
    // 螺钉 (item 7) in 个 with 箱 as its second unit; 千克 is not in its unit group.
    const QVariant both = execute(CoefficientStatement.arg(7).arg(1).arg(3));
    const auto rs = takeObject<Recordset>(both);
    QVERIFY(rs && !rs->atEnd());
    QCOMPARE(rs->Fields(0).toDouble(), 1.0);
    QCOMPARE(rs->Fields(1).toDouble(), 100.0);
    QCOMPARE(firstField(execute(CoefficientStatement.arg(7).arg(4).arg(3)), 0).toDouble(), 0.0);

    for (const QString &sql : {QStringLiteral("SELECT * FROM t_User"), QStringLiteral("DELETE FROM t_Currency"),
                               QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID=1; DROP TABLE t_User"),
                               QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID=1 OR 1=1")})
        QCOMPARE(errorNumberOf([&] { execute(sql); }), MtError::StatementRefused);
    QCOMPARE(SqlRun::scalar(scratch.db(), QStringLiteral("SELECT count(*) FROM t_Currency")).toInt(), 4);
}

void TestDataService::accessFollowsTheLoggedInUser_data()
{
    QTest::addColumn<int>("user");
    QTest::addColumn<int>("objectType");
    QTest::addColumn<int>("objectId");
    QTest::addColumn<int>("right");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("demonstrator prints") << 16 << 1099 << 10 << 32768 << true;
    QTest::newRow("demonstrator adjusts") << 16 << 1002 << 16 << 32768 << true;
    QTest::newRow("clerk may not print") << 17 << 1099 << 10 << 32768 << false;
    QTest::newRow("clerk imports") << 17 << 1099 << 10 << 32 << true;
    QTest::newRow("clerk exports") << 17 << 1099 << 10 << 16 << true;
    QTest::newRow("clerk, import and print") << 17 << 1099 << 10 << (32 | 32768) << false;
    QTest::newRow("clerk, no row for the object") << 17 << 1002 << 99 << 16 << false;
    QTest::newRow("administrator") << 1 << 1002 << 16 << 32768 << true;
    QTest::newRow("unknown user") << 99 << 1099 << 10 << 16 << false;
}

void TestDataService::accessFollowsTheLoggedInUser()
{
    QFETCH(int, user);
    QFETCH(int, objectType);
    QFETCH(int, objectId);
    QFETCH(int, right);
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    publishLogin(scratch.propsString(user, QStringLiteral("操作员")));
    const auto gl = CreateObject(ProgId::GLData);
    QTEST(Dispatch::call(gl.get(), QStringLiteral("AccessCheck"), {objectType, objectId, right}).toBool(), "allowed");
}

void TestDataService::forbiddenUserHasNoRights()
{
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    SqlRun::exec(scratch.db(), QStringLiteral("UPDATE t_User SET FForbidden=1 WHERE FUserID=16"));
    publishLogin(scratch.propsString());
    const auto gl = CreateObject(ProgId::GLData);
    QVERIFY(!Dispatch::call(gl.get(), QStringLiteral("AccessCheck"), {1099, 10, 32768}).toBool());
}

void TestDataService::currencyCarriesItsScale()
{
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    publishLogin(scratch.propsString());
    const auto gl = CreateObject(ProgId::GLData);
    const std::unique_ptr<QObject> home(
        Dispatch::call(gl.get(), QStringLiteral("GetCurrency"), {1}).value<QObject *>());
    QVERIFY(home);
    QCOMPARE(Dispatch::getProperty(home.get(), QStringLiteral("ScaleX")).toInt(), 2);
    QCOMPARE(Dispatch::getProperty(home.get(), QStringLiteral("Name")).toString(), QStringLiteral("人民币"));
    QCOMPARE(Dispatch::getProperty(home.get(), QStringLiteral("Number")).toString(), QStringLiteral("RMB"));
    const std::unique_ptr<QObject> yen(Dispatch::call(gl.get(), QStringLiteral("GetCurrency"), {3}).value<QObject *>());
    QCOMPARE(Dispatch::getProperty(yen.get(), QStringLiteral("ScaleX")).toInt(), 0);
    QCOMPARE(errorNumberOf([&] { Dispatch::call(gl.get(), QStringLiteral("GetCurrency"), {42}); }),
             MtError::UnknownCurrency);
}
