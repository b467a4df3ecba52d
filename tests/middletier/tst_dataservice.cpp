#include "scratchaccountset.h"
#include "servicecalls.h"

#include "db/sqlrun.h"
#include "frame/automation/progids.h"
#include "mterrors.h"
#include "queries/typelist.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/recordset.h"

#include <QHash>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace ServiceCalls;

namespace {

const QString TreeTypes = u"(500,502,20291,20293)"_s;

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
    const auto rs = recordset(ProgId::MICInitialData, u"FetchStocks"_s, args);
    QList<StockRow> rows;
    if (!rs)
        return rows;
    for (rs->MoveFirst(); !rs->atEnd(); rs->MoveNext()) {
        rows.append({rs->Fields(u"FItemID"_s).toInt(), rs->Fields(u"FParentID"_s).toInt(),
                     rs->Fields(u"FSPID"_s).toInt(), rs->Fields(u"FName"_s).toString(),
                     rs->Fields(u"FIsStockMgr"_s).toInt(), rs->Fields(u"FTypeID"_s).toInt()});
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
        QVERIFY2(!warehousesSeen.contains(row.id), qPrintable(row.name + u" twice"_s));
        warehousesSeen.insert(row.id);
    }
}

const StockRow *findByName(const QList<StockRow> &rows, const QString &name)
{
    const auto it = std::find_if(rows.begin(), rows.end(), [&](const StockRow &row) { return row.name == name; });
    return it == rows.end() ? nullptr : &*it;
}

QVariant firstField(const QVariant &recordset, int field)
{
    const auto rs = takeObject<Recordset>(recordset);
    return rs && !rs->atEnd() ? rs->Fields(field) : QVariant();
}

const QString CoefficientStatement
    = u"select isnull((SELECT t2.FCoefficient AS FCoefficient\r\n"
      " FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID\r\n"
      " WHERE t1.FItemID = %1 AND t2.FMeasureUnitID=%2),0),\r\n"
      " isnull((SELECT ISNULL(t2.FCoefficient,0) AS FCoefficient\r\n"
      " FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID\r\n"
      " WHERE t1.FItemID = %1 AND t2.fmeasureunitid= %3),0)"_s;

} // namespace

// "LumoMICInitial.Data", "LumoConnection.AppConnection" and "LumoEBCGLView.GLData", called
// late-bound by their published names as the controls call them.
class TestDataService : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        publishLogin({});
    }

    void stocksComeParentsFirst_data()
    {
        addBackends();
    }

    void stocksComeParentsFirst()
    {
        QFETCH(QString, backend);
        REQUIRE_BACKEND(backend);
        ScratchAccountSet scratch(backend);
        const QSqlDatabase db = scratch.db();
        // Awkward shapes: a child numbered before its parent, a parent loop, a deleted warehouse,
        // and a child whose parent is of a type the tree leaves out.
        SqlRun::exec(db, u"INSERT INTO t_Stock (FItemID, FParentID, FNumber, FName, FDeleted) VALUES "
                         "(50, 0, '08', '备件仓', 0), (51, 50, '00.1', '备件分仓', 0), (52, 53, '09.1', '循环甲', 0), "
                         "(53, 52, '09.2', '循环乙', 0), (54, 0, '10', '已删除仓', 1), (55, 9, '07.01', '废品分仓', 0)"_s);

        const QList<StockRow> rows = fetchStocks({scratch.propsString(), TreeTypes});
        verifyParentsFirst(rows);
        QVERIFY(!findByName(rows, u"已删除仓"_s));
        QVERIFY2(!findByName(rows, u"废品仓"_s), "type 501 is not asked for");
        QCOMPARE(findByName(rows, u"废品分仓"_s)->parent, 0);
        QCOMPARE(findByName(rows, u"备件分仓"_s)->parent, 50);
        QVERIFY(findByName(rows, u"循环甲"_s) && findByName(rows, u"循环乙"_s));

        const StockRow *raw = findByName(rows, u"原材料仓"_s);
        QCOMPARE(raw->isStockMgr, 1);
        QCOMPARE(findByName(rows, u"半成品仓"_s)->isStockMgr, 0);
        QCOMPARE(findByName(rows, u"代管仓"_s)->type, 502);
        const StockRow *shelf = findByName(rows, u"A区货架"_s);
        QVERIFY(shelf->place > 0);
        QCOMPARE((QList<int>{shelf->id, shelf->isStockMgr, shelf->type}), (QList<int>{raw->id, 0, raw->type}));
        // The place follows its warehouse before any other warehouse does.
        const qsizetype rawAt = raw - rows.constData();
        QCOMPARE(rows.at(rawAt + 1).parent, raw->id);

        // Without a type list every warehouse is listed.
        QVERIFY(findByName(fetchStocks({scratch.propsString()}), u"废品仓"_s));
        const QList<StockRow> consigned = fetchStocks({scratch.propsString(), u" ( 502 ) "_s});
        QCOMPARE(consigned.size(), 1);
        QCOMPARE(consigned.first().name, u"代管仓"_s);
    }

    void typeListsAreParsedOrRefused_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<int>>("types");
        QTest::addColumn<bool>("refused");
        QTest::newRow("tree list") << "(500,502,20291,20293)" << QList<int>{500, 502, 20291, 20293} << false;
        QTest::newRow("blanks") << " ( 500 , 502 ) " << QList<int>{500, 502} << false;
        QTest::newRow("empty: all types") << "" << QList<int>{} << false;
        for (const char *bad : {"500,502", "()", "(500); delete from t_Stock", "(500) or 1=1", "(select FTypeID from t_Stock)",
                                "(-500)", "(99999999999)"})
            QTest::newRow(bad) << QString::fromLatin1(bad) << QList<int>{} << true;
    }

    void typeListsAreParsedOrRefused()
    {
        QFETCH(QString, text);
        QFETCH(bool, refused);
        if (refused) {
            QCOMPARE(errorNumberOf([&] { parseTypeList(text); }), MtError::BadTypeList);
            // The service refuses before it reaches any account set.
            QCOMPARE(errorNumberOf([&] { fetchStocks({u"AcctDB=/nowhere.db"_s, text}); }), MtError::BadTypeList);
            return;
        }
        QTEST(parseTypeList(text), "types");
    }

    void systemParametersAreTyped_data()
    {
        addBackends();
    }

    void systemParametersAreTyped()
    {
        QFETCH(QString, backend);
        REQUIRE_BACKEND(backend);
        ScratchAccountSet scratch(backend);
        const QSqlDatabase db = scratch.db();
        SqlRun::exec(db, u"UPDATE t_SystemProfile SET FValue='true' WHERE FKey='UnderStock'"_s);
        SqlRun::exec(db, u"DELETE FROM t_SystemProfile WHERE FKey='ICClosed'"_s);

        const auto params = dictionary(ProgId::MICInitialData, u"FetchSysParameter"_s, {scratch.propsString()});
        QVERIFY(params);
        // Integers whatever the stored text, a missing row as 0; names in any case.
        const std::pair<const char *, int> expected[]{
            {"currentperiod", 4}, {"PriceDecimal", 4}, {"UnderStock", 1}, {"ICClosed", 0}, {"GLClosed", 1}};
        for (const auto &[key, value] : expected) {
            QCOMPARE(params->Item(QLatin1String(key)).typeId(), QMetaType::Int);
            QCOMPARE(params->Item(QLatin1String(key)).toInt(), value);
        }
        QVERIFY(params->Item(u"INIBillInterID"_s).toInt() > 0);
        QCOMPARE(params->Item(u"CPStartDate"_s).typeId(), QMetaType::QString);
        QCOMPARE(params->Item(u"CPStartDate"_s).toString().left(4), u"0401"_s);
    }

    void measureUnitsCarryTheirGroups()
    {
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        const auto rs = recordset(ProgId::MICInitialData, u"FetchMeasureUnits"_s, {scratch.propsString()});
        QVERIFY(rs);
        QCOMPARE(rs->RecordCount(), 10);
        int lastGroup = 0;
        QHash<QString, double> coefficients;
        for (rs->MoveFirst(); !rs->atEnd(); rs->MoveNext()) {
            QVERIFY(rs->Fields(u"FUnitGroupID"_s).toInt() >= lastGroup);
            lastGroup = rs->Fields(u"FUnitGroupID"_s).toInt();
            coefficients.insert(rs->Fields(u"FName"_s).toString(), rs->Fields(u"FCoefficient"_s).toDouble());
        }
        QCOMPARE((QList<double>{coefficients.value(u"吨"_s), coefficients.value(u"个"_s)}), (QList<double>{1000, 1}));
    }

    void updateWritesAllOrNothing_data()
    {
        addBackends();
    }

    void updateWritesAllOrNothing()
    {
        QFETCH(QString, backend);
        REQUIRE_BACKEND(backend);
        ScratchAccountSet scratch(backend);
        const QSqlDatabase db = scratch.db();
        const auto update
            = [&](const QString &script) { call(ProgId::MICInitialData, u"UpdateINIData"_s, {scratch.propsString(), script}); };
        const auto rowsOfItem
            = [&] { return SqlRun::scalar(db, u"SELECT count(*) FROM ICInvInitial WHERE FItemID=2"_s).toInt(); };
        const int before = rowsOfItem();
        QVERIFY(before > 0);
        // The second statement names an item the account set does not have: nothing of the script lands.
        const QString deleteRow
            = u"Delete from ICInvInitial Where FStockID=2 And FSPID=0 And FPeriod=4 And FItemID = 2\r\n"_s;
        try {
            update(deleteRow
                   + u"Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo,FAuxBegQty,"
                     "FBegBal,FStockInDate,FAuxPropID,FFieldCompose) Values('0',4,2,0,999999,4,'',15,72,'2024-04-01',0,"
                     "'2|0|4|999999|0')"_s);
            QFAIL("a failing statement must raise an error");
        } catch (const LumoError &error) {
            QCOMPARE(error.number(), MtError::ScriptFailed);
            QVERIFY2(error.description().startsWith(u"SQL脚本第2条"_s), qPrintable(error.description()));
        }
        // A statement outside what the controls write is refused before anything runs.
        QCOMPARE(errorNumberOf([&] { update(deleteRow + u"drop table t_ICItem"_s); }), MtError::ScriptFailed);
        QCOMPARE(rowsOfItem(), before);
    }

    void executeReadsOnlyWhatTheControlsSend_data()
    {
        addBackends();
    }

    void executeReadsOnlyWhatTheControlsSend()
    {
        QFETCH(QString, backend);
        REQUIRE_BACKEND(backend);
        ScratchAccountSet scratch(backend);
        const auto connection = CreateObject(ProgId::AppConnection);
        const auto execute = [&](const QString &sql) { return Dispatch::call(connection.get(), u"Execute"_s, {sql}); };

        QCOMPARE(errorNumberOf([&] { execute(u"SELECT FScale FROM t_Currency WHERE FCurrencyID=1"_s); }),
                 MtError::NotLoggedIn);
        publishLogin(scratch.propsString());

        QCOMPARE(firstField(execute(u"SELECT FScale FROM t_Currency WHERE FCurrencyID=1"_s), 0).toInt(), 2);
        QCOMPARE(firstField(execute(u"select  fscale\r\n from T_CURRENCY where FCurrencyID = 3"_s), 0).toInt(), 0);
        // 螺钉 (item 7) in 个 with 箱 as its second unit; 千克 is not in its unit group.
        const auto rs = takeObject<Recordset>(execute(CoefficientStatement.arg(7).arg(1).arg(3)));
        QVERIFY(rs && !rs->atEnd());
        QCOMPARE((QList<double>{rs->Fields(0).toDouble(), rs->Fields(1).toDouble()}), (QList<double>{1, 100}));
        QCOMPARE(firstField(execute(CoefficientStatement.arg(7).arg(4).arg(3)), 0).toDouble(), 0.0);

        // Why a statement is refused is the parser suite's matter.
        for (const QString &sql : {u"SELECT * FROM t_User"_s, u"DELETE FROM t_Currency"_s})
            QCOMPARE(errorNumberOf([&] { execute(sql); }), MtError::StatementRefused);
        QCOMPARE(SqlRun::scalar(scratch.db(), u"SELECT count(*) FROM t_Currency"_s).toInt(), 4);
    }

    void accessFollowsTheLoggedInUser_data()
    {
        QTest::addColumn<int>("user");
        QTest::addColumn<int>("objectType");
        QTest::addColumn<int>("objectId");
        QTest::addColumn<int>("right");
        QTest::addColumn<bool>("allowed");
        QTest::addColumn<bool>("forbidden");
        QTest::newRow("demonstrator prints") << 16 << 1099 << 10 << 32768 << true << false;
        QTest::newRow("demonstrator adjusts") << 16 << 1002 << 16 << 32768 << true << false;
        QTest::newRow("forbidden demonstrator") << 16 << 1099 << 10 << 32768 << false << true;
        QTest::newRow("clerk may not print") << 17 << 1099 << 10 << 32768 << false << false;
        QTest::newRow("clerk imports") << 17 << 1099 << 10 << 32 << true << false;
        QTest::newRow("clerk exports") << 17 << 1099 << 10 << 16 << true << false;
        QTest::newRow("clerk, import and print") << 17 << 1099 << 10 << (32 | 32768) << false << false;
        QTest::newRow("clerk, no row for the object") << 17 << 1002 << 99 << 16 << false << false;
        QTest::newRow("administrator") << 1 << 1002 << 16 << 32768 << true << false;
        QTest::newRow("unknown user") << 99 << 1099 << 10 << 16 << false << false;
    }

    void accessFollowsTheLoggedInUser()
    {
        QFETCH(int, user);
        QFETCH(int, objectType);
        QFETCH(int, objectId);
        QFETCH(int, right);
        QFETCH(bool, forbidden);
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        if (forbidden)
            SqlRun::exec(scratch.db(), u"UPDATE t_User SET FForbidden=1 WHERE FUserID=?"_s, {user});
        publishLogin(scratch.propsString(user, u"操作员"_s));
        QTEST(call(ProgId::GLData, u"AccessCheck"_s, {objectType, objectId, right}).toBool(), "allowed");
    }

    void currencyCarriesItsScale()
    {
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        publishLogin(scratch.propsString());
        const auto gl = CreateObject(ProgId::GLData);
        const auto property = [&](int currency, const char *name) {
            const std::unique_ptr<QObject> object(Dispatch::call(gl.get(), u"GetCurrency"_s, {currency}).value<QObject *>());
            return object ? Dispatch::getProperty(object.get(), QLatin1String(name)) : QVariant();
        };
        QCOMPARE((QStringList{property(1, "ScaleX").toString(), property(1, "Name").toString(), property(1, "Number").toString()}),
                 (QStringList{u"2"_s, u"人民币"_s, u"RMB"_s}));
        const QVariant yen = property(3, "ScaleX");
        QVERIFY(yen.isValid() && yen.toInt() == 0);
        QCOMPARE(errorNumberOf([&] { property(42, "ScaleX"); }), MtError::UnknownCurrency);
    }
};

QTEST_MAIN(TestDataService)
#include "tst_dataservice.moc"
