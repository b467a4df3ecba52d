#include "tst_ledgerdata.h"

#include "scratchaccountset.h"
#include "servicecalls.h"

#include "db/sqlrun.h"
#include "demo/democompany.h"
#include "queries/dataerrors.h"
#include "frame/automation/progids.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/recordset.h"

#include <QTest>

using namespace ServiceCalls;

namespace {

constexpr int Period = DemoCompany::CurrentPeriod;
constexpr int RawMaterialAcct = 1;
constexpr int GoodsAcct = 3;
constexpr int SuppliesAcct = 5;
constexpr int PayablesAcct = 7;
constexpr int MotorSmall = 12;
constexpr int Piece = 1;
constexpr int Box = 2;
constexpr int SemiFinished = 2;
// The ledger's opening balance of finished goods is this much above the inventory's.
constexpr double GoodsDifference = 1280;

const QString Data = ProgId::MICInitialData;
const QString GL = ProgId::GLData;
// Every inventory account of the demo: the items' accounts and the cost-difference account.
const QStringList InventoryAccounts{QStringLiteral("1403"), QStringLiteral("1404"), QStringLiteral("1405"),
                                    QStringLiteral("1408"), QStringLiteral("1411")};

QStringList texts(const QVariantList &values)
{
    QStringList list;
    for (const QVariant &value : values)
        list.append(value.toString());
    return list;
}

// The record of the account with the code, as a field -> value map.
QVariantMap accountRecord(Recordset &rs, const QString &number)
{
    for (rs.MoveFirst(); !rs.atEnd(); rs.MoveNext()) {
        if (rs.Fields(QStringLiteral("FNumber")).toString() == number) {
            QVariantMap record;
            for (const QString &field : rs.fieldNames())
                record.insert(field, rs.Fields(field));
            return record;
        }
    }
    return {};
}

std::unique_ptr<Recordset> accounts(const ScratchAccountSet &scratch, const QString &filter = {},
                                    const QString &sort = {})
{
    return recordset(Data, QStringLiteral("FetchYtdAccounts"), {scratch.propsString(), Period, filter, sort});
}

void addBalance(const QSqlDatabase &db, int period, int unit, double qty, double amount)
{
    SqlRun::exec(db,
                 QStringLiteral("INSERT INTO ICInvInitial (FPeriod, FStockID, FItemID, FUnitID, FBatchNo, FYtdAuxBegQty, "
                                "FYtdBegBal, FAuxBegQty, FBegBal, FFieldCompose) VALUES (?,?,?,?,'',?,?,?,?,?)"),
                 {period, SemiFinished, MotorSmall, unit, qty, amount, qty, amount,
                  QStringLiteral("%1|0|%2|%3|0").arg(SemiFinished).arg(period).arg(MotorSmall)});
}

int currentYear(const QSqlDatabase &db)
{
    return SqlRun::scalar(db, QStringLiteral("SELECT FValue FROM t_SystemProfile WHERE FKey='CurrentYear'")).toInt();
}

// The ledger's balance rows of an account, as text, to see that nothing changed.
QString ledgerOf(const QSqlDatabase &db, int account)
{
    QSqlQuery query = SqlRun::exec(db,
                                   QStringLiteral("SELECT FYear, FPeriod, FCurrencyID, FDetailID, FBeginBalance, "
                                                  "FYtdDebit, FYtdCredit, FEndBalance FROM t_Balance WHERE "
                                                  "FAccountID=? ORDER BY FYear, FPeriod, FCurrencyID"),
                                   {account});
    QStringList rows;
    while (query.next()) {
        QStringList values;
        for (int c = 0; c < 8; ++c)
            values.append(query.value(c).toString());
        rows.append(values.join(QLatin1Char(',')));
    }
    return rows.join(QLatin1Char(';'));
}

} // namespace

void TestLedgerData::cleanup()
{
    publishLogin({});
}

void TestLedgerData::accountSumsFollowTheBalances()
{
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    const QSqlDatabase db = scratch.db();
    const auto before = accounts(scratch);
    QCOMPARE(texts(column(*before, QStringLiteral("FNumber"))), InventoryAccounts);
    const QVariantMap goods = accountRecord(*before, QStringLiteral("1405"));
    const QVariantMap raw = accountRecord(*before, QStringLiteral("1403"));
    QCOMPARE(accountRecord(*before, QStringLiteral("1404")).value(QStringLiteral("FIsCostDiff")).toInt(), 1);
    QCOMPARE(goods.value(QStringLiteral("FIsCostDiff")).toInt(), 0);

    // 10 pieces for 1000 and a box (10 pieces) for 100 of a finished good; a row of another
    // period does not count.
    addBalance(db, Period, Piece, 10, 1000);
    addBalance(db, Period, Box, 1, 100);
    addBalance(db, Period - 1, Piece, 500, 50000);
    const auto after = accounts(scratch);
    const QVariantMap goodsAfter = accountRecord(*after, QStringLiteral("1405"));
    QCOMPARE(goodsAfter.value(QStringLiteral("FSumBegBal")).toDouble(),
             goods.value(QStringLiteral("FSumBegBal")).toDouble() + 1100);
    QCOMPARE(goodsAfter.value(QStringLiteral("FSumYtdBegBal")).toDouble(),
             goods.value(QStringLiteral("FSumYtdBegBal")).toDouble() + 1100);
    QCOMPARE(goodsAfter.value(QStringLiteral("FSumBaseBegQty")).toDouble(),
             goods.value(QStringLiteral("FSumBaseBegQty")).toDouble() + 20);
    QCOMPARE(accountRecord(*after, QStringLiteral("1403")), raw);
}

void TestLedgerData::accountFiltersSelectOnlyWhatTheySay_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("sort");
    QTest::addColumn<QStringList>("numbers");
    QTest::newRow("one code") << "FNumber = '1405'" << "" << QStringList{QStringLiteral("1405")};
    QTest::newRow("on a sum") << "FIsCostDiff = 1" << "" << QStringList{QStringLiteral("1404")};
    QStringList backwards = InventoryAccounts;
    std::reverse(backwards.begin(), backwards.end());
    QTest::newRow("sorted backwards") << "" << "FNumber DESC" << backwards;
    QTest::newRow("always true") << "FNumber = '1405' OR 1=1" << "" << QStringList{};
    QTest::newRow("unknown field") << "FPassword = ''" << "" << QStringList{};
    QTest::newRow("statement in the sort") << "" << "FNumber; DELETE FROM t_Account" << QStringList{};
}

void TestLedgerData::accountFiltersSelectOnlyWhatTheySay()
{
    QFETCH(QString, filter);
    QFETCH(QString, sort);
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    const auto rs = accounts(scratch, filter, sort);
    QVERIFY(rs);
    QTEST(texts(column(*rs, QStringLiteral("FNumber"))), "numbers");
    QCOMPARE(SqlRun::scalar(scratch.db(), QStringLiteral("SELECT count(*) FROM t_Account")).toInt(), 7);
}

void TestLedgerData::reconciliationPagesWithTotals_data()
{
    addBackendColumn();
    addBackendRows();
}

void TestLedgerData::reconciliationPagesWithTotals()
{
    QFETCH(QString, backend);
    REQUIRE_BACKEND(backend);
    ScratchAccountSet scratch(backend);
    const auto all = accounts(scratch);
    double begBal = 0;
    for (const QVariant &value : column(*all, QStringLiteral("FSumBegBal")))
        begBal += value.toDouble();

    QStringList seen;
    for (int index = 1; index <= 3; ++index) {
        const auto page = dictionary(Data, QStringLiteral("FetchYtdCheckAcctData"),
                                     {scratch.propsString(), Period, 0, 2, index, QString()});
        QVERIFY(page);
        QCOMPARE(page->Item(QStringLiteral("TotalPages")).toInt(), 3);
        QCOMPARE(page->Item(QStringLiteral("RecordCount")).toInt(), InventoryAccounts.size());
        const auto rows = takeObject<Recordset>(page->Item(QStringLiteral("Rows")));
        const auto totals = takeObject<Recordset>(page->Item(QStringLiteral("Totals")));
        QCOMPARE(totals->RecordCount(), 1);
        QVERIFY(qAbs(totals->Fields(QStringLiteral("FInitBegBal")).toDouble() - begBal) < 1e-6);
        for (rows->MoveFirst(); !rows->atEnd(); rows->MoveNext()) {
            const QString number = rows->Fields(QStringLiteral("FNumber")).toString();
            seen.append(number);
            const double diff = rows->Fields(QStringLiteral("FICGLDiff")).toDouble();
            QVERIFY(qAbs(diff - (rows->Fields(QStringLiteral("FSumBegBal")).toDouble()
                                 - rows->Fields(QStringLiteral("FGLSumEndBal")).toDouble())) < 1e-6);
            // The demo's ledger agrees except on finished goods.
            if (number == QStringLiteral("1405"))
                QVERIFY2(qAbs(diff + GoodsDifference) < 1e-6, qPrintable(QString::number(diff)));
            else if (number == QStringLiteral("1403"))
                QVERIFY2(qAbs(diff) < 1e-6, qPrintable(QString::number(diff)));
        }
    }
    QCOMPARE(seen, InventoryAccounts);

    // One account, without totals.
    const auto one = dictionary(Data, QStringLiteral("FetchYtdCheckAcctData"),
                                {scratch.propsString(), Period, GoodsAcct, 10, 1, QString(), QString(), QString(),
                                 QString(), false});
    const auto rows = takeObject<Recordset>(one->Item(QStringLiteral("Rows")));
    const auto totals = takeObject<Recordset>(one->Item(QStringLiteral("Totals")));
    QCOMPARE(texts(column(*rows, QStringLiteral("FNumber"))), QStringList{QStringLiteral("1405")});
    QCOMPARE(totals->RecordCount(), 0);
}

void TestLedgerData::transferWritesTheLedgerBalance_data()
{
    QTest::addColumn<int>("account");
    QTest::addColumn<QString>("number");
    QTest::addColumn<int>("dc");
    QTest::addColumn<int>("scale");
    QTest::addColumn<double>("ytdBegBal");
    QTest::addColumn<double>("begBal");
    QTest::addColumn<double>("storedBegin");
    QTest::addColumn<double>("storedEnd");
    QTest::newRow("debit, half a cent up") << RawMaterialAcct << "1403" << 1 << 2 << 1234.565 << 2.675 << 1234.57 << 2.68;
    QTest::newRow("debit, half away from zero") << RawMaterialAcct << "1403" << 1 << 0 << -2.5 << 2.5 << -3.0 << 3.0;
    QTest::newRow("credit kept debit-positive") << PayablesAcct << "2202" << -1 << 2 << 500.0 << 800.0 << -500.0 << -800.0;
    QTest::newRow("no scale: as given") << RawMaterialAcct << " 1403 " << 1 << -1 << 1.23456 << 7.0 << 1.23456 << 7.0;
}

void TestLedgerData::transferWritesTheLedgerBalance()
{
    QFETCH(int, account);
    QFETCH(QString, number);
    QFETCH(int, dc);
    QFETCH(int, scale);
    QFETCH(double, ytdBegBal);
    QFETCH(double, begBal);
    QFETCH(double, storedBegin);
    QFETCH(double, storedEnd);
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    const QSqlDatabase db = scratch.db();
    const int answer = call(Data, QStringLiteral("StartTransferBalace"),
                            {scratch.propsString(), 0, 0, 0, account, number, QStringLiteral("科目"), dc, scale,
                             ytdBegBal, 10.0, 20.0, begBal, 0})
                           .toInt();
    QCOMPARE(answer, 1);
    // Year and period 0 are the inventory's current ones; the earlier balance is replaced.
    QSqlQuery row = SqlRun::exec(db,
                                 QStringLiteral("SELECT FBeginBalance, FYtdDebit, FYtdCredit, FEndBalance, FDetailID "
                                                "FROM t_Balance WHERE FYear=? AND FPeriod=? AND FAccountID=? AND "
                                                "FCurrencyID=1"),
                                 {currentYear(db), Period, account});
    QVERIFY(row.next());
    QCOMPARE(row.value(0).toDouble(), storedBegin);
    QCOMPARE(row.value(1).toDouble(), 10.0);
    QCOMPARE(row.value(2).toDouble(), 20.0);
    QCOMPARE(row.value(3).toDouble(), storedEnd);
    QCOMPARE(row.value(4).toInt(), 0);
    QVERIFY(!row.next());
}

void TestLedgerData::transferRefusesUnmatchedItems_data()
{
    QTest::addColumn<int>("ledgerDetail"); // the account's own combination
    QTest::addColumn<int>("detail");       // the one passed
    QTest::addColumn<QString>("number");
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("error");
    QTest::newRow("items match") << 3 << 3 << "1411" << 1 << 0;
    QTest::newRow("items passed, account has none") << 0 << 3 << "1411" << -1 << 0;
    QTest::newRow("account has items, none passed") << 3 << 0 << "1411" << -1 << 0;
    QTest::newRow("other items") << 3 << 4 << "1411" << -1 << 0;
    QTest::newRow("code changed") << 0 << 0 << "1412" << 0 << DataError::UnknownAccount;
}

void TestLedgerData::transferRefusesUnmatchedItems()
{
    QFETCH(int, ledgerDetail);
    QFETCH(int, detail);
    QFETCH(QString, number);
    QFETCH(int, answer);
    QFETCH(int, error);
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    const QSqlDatabase db = scratch.db();
    SqlRun::exec(db, QStringLiteral("UPDATE t_Account SET FDetailID=? WHERE FAccountID=?"), {ledgerDetail, SuppliesAcct});
    const QString before = ledgerOf(db, SuppliesAcct);
    int result = 0;
    QCOMPARE(errorNumberOf([&] {
                 result = call(Data, QStringLiteral("StartTransferBalace"),
                               {scratch.propsString(), 0, 0, 0, SuppliesAcct, number, QStringLiteral("周转材料"), 1, 2,
                                99.0, 0.0, 0.0, 99.0, detail})
                              .toInt();
             }),
             error);
    QCOMPARE(result, answer);
    if (answer == 1)
        QVERIFY(ledgerOf(db, SuppliesAcct) != before);
    else
        QCOMPARE(ledgerOf(db, SuppliesAcct), before);
}

void TestLedgerData::auxiliaryPropertiesAreCounted()
{
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    const QSqlDatabase db = scratch.db();
    QCOMPARE(call(Data, QStringLiteral("CheckItemAuxNum"), {scratch.propsString()}).toInt(), 6);
    SqlRun::exec(db, QStringLiteral("DELETE FROM t_AuxItem"));
    QCOMPARE(call(Data, QStringLiteral("CheckItemAuxNum"), {scratch.propsString()}).toInt(), 0);

    const auto classes = recordset(Data, QStringLiteral("FetchAuxProp"), {scratch.propsString()});
    QCOMPARE(classes->fieldNames(), (QStringList{QStringLiteral("fname"), QStringLiteral("fitemclassid")}));
    QCOMPARE(texts(column(*classes, QStringLiteral("fname"))),
             (QStringList{QStringLiteral("颜色尺码"), QStringLiteral("等级")}));
    // In number order, not in id order.
    SqlRun::exec(db, QStringLiteral("UPDATE t_AuxClass SET FNumber='00' WHERE FItemClassID=2"));
    const auto renumbered = recordset(Data, QStringLiteral("FetchAuxProp"), {scratch.propsString()});
    QCOMPARE(column(*renumbered, QStringLiteral("fitemclassid")).first().toInt(), 2);
}

void TestLedgerData::fieldListsOfferTheFilterFields_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("error");
    QTest::newRow("conditions") << "FVisForQuest" << 0;
    QTest::newRow("sorting, any case") << "fvisfororder" << 0;
    QTest::newRow("unknown kind") << "FVisForAll" << DataError::BadFieldListKind;
    QTest::newRow("empty") << "" << DataError::BadFieldListKind;
}

void TestLedgerData::fieldListsOfferTheFilterFields()
{
    QFETCH(QString, kind);
    QFETCH(int, error);
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    std::unique_ptr<Recordset> fields;
    QCOMPARE(errorNumberOf([&] {
                 fields = recordset(Data, QStringLiteral("GetSortByFields"), {scratch.propsString(), kind});
             }),
             error);
    if (error != 0)
        return;
    QVERIFY(fields->RecordCount() > 10);
    // Every field offered is one the item rows can be filtered and sorted by: the semi-finished
    // goods warehouse keeps its rows under each.
    for (fields->MoveFirst(); !fields->atEnd(); fields->MoveNext()) {
        const QString name = fields->Fields(QStringLiteral("FieldName")).toString();
        QVERIFY(!fields->Fields(QStringLiteral("Name")).toString().isEmpty());
        const auto page = dictionary(Data, QStringLiteral("FetchYtdInitialData"),
                                     {scratch.propsString(), SemiFinished, 0, Period, 50, 1, QString(), QString(),
                                      QString(), name + QStringLiteral(" DESC"), false});
        QVERIFY2(page->Item(QStringLiteral("RecordCount")).toInt() > 0, qPrintable(name));
        takeObject<Recordset>(page->Item(QStringLiteral("Rows")));
        takeObject<Recordset>(page->Item(QStringLiteral("Totals")));
    }
}

void TestLedgerData::fieldListsFollowTheAccountSet()
{
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    const QString insert = QStringLiteral("INSERT INTO t_FieldList (FDataSet, FFieldName, FName, FVisForQuest, "
                                          "FVisForOrder, FIndex) VALUES (?,?,?,?,?,?)");
    const QSqlDatabase db = scratch.db();
    SqlRun::exec(db, insert, {QStringLiteral("ICInitial"), QStringLiteral("fnumber"), QStringLiteral("代码"), 1, 0, 2});
    SqlRun::exec(db, insert, {QStringLiteral("ICInitial"), QStringLiteral("FItemName"), QStringLiteral("名称"), 1, 1, 1});
    SqlRun::exec(db, insert, {QStringLiteral("ICInitial"), QStringLiteral("FNoSuch"), QStringLiteral("无"), 1, 1, 0});
    SqlRun::exec(db, insert, {QStringLiteral("Other"), QStringLiteral("FModel"), QStringLiteral("型号"), 1, 1, 0});

    const auto quest = recordset(Data, QStringLiteral("GetSortByFields"), {scratch.propsString(), QStringLiteral("FVisForQuest")});
    QCOMPARE(texts(column(*quest, QStringLiteral("FieldName"))),
             (QStringList{QStringLiteral("FItemName"), QStringLiteral("FNumber")}));
    QCOMPARE(texts(column(*quest, QStringLiteral("Name"))), (QStringList{QStringLiteral("名称"), QStringLiteral("代码")}));
    const auto order = recordset(Data, QStringLiteral("GetSortByFields"), {scratch.propsString(), QStringLiteral("FVisForOrder")});
    QCOMPARE(texts(column(*order, QStringLiteral("FieldName"))), QStringList{QStringLiteral("FItemName")});
}

void TestLedgerData::loginFindsTheUser_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<int>("userId");
    QTest::addColumn<int>("error");
    QTest::newRow("demonstrator") << "演示员" << 16 << 0;
    QTest::newRow("blanks around") << " 查询员 " << 17 << 0;
    QTest::newRow("unknown") << "nobody" << 0 << DataError::UnknownUser;
    QTest::newRow("quote") << "' OR ''='" << 0 << DataError::UnknownUser;
    QTest::newRow("forbidden") << "禁用员" << 0 << DataError::ForbiddenUser;
}

void TestLedgerData::loginFindsTheUser()
{
    QFETCH(QString, user);
    QFETCH(int, error);
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    SqlRun::exec(scratch.db(), QStringLiteral("INSERT INTO t_User (FUserID, FName, FForbidden) VALUES (30, '禁用员', 1)"));
    int id = 0;
    QCOMPARE(errorNumberOf([&] { id = call(GL, QStringLiteral("Login"), {scratch.acctDb(), user}).toInt(); }), error);
    QTEST(id, "userId");
}

void TestLedgerData::itemLookupHonoursClassAndPattern_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("numbers");
    QTest::addColumn<int>("error");
    QTest::newRow("virtual items") << "x2.FErpClsID=5" << "" << QStringList{QStringLiteral("9.01.001")} << 0;
    QTest::newRow("by name") << "x2.FErpClsID in (1,2,3,7,9)" << "电动机"
                             << QStringList{QStringLiteral("3.01.001"), QStringLiteral("3.01.002")} << 0;
    QTest::newRow("by code part") << "" << "1.04" << QStringList{QStringLiteral("1.04.001"), QStringLiteral("1.04.002")} << 0;
    QTest::newRow("class excludes") << "x2.FErpClsID<>5" << "9.01" << QStringList{} << 0;
    QTest::newRow("self-made by name") << "FErpClsID = 2" << "转子" << QStringList{QStringLiteral("2.01.002")} << 0;
    QTest::newRow("quote in the pattern") << "" << "' OR '1'='1" << QStringList{} << 0;
    QTest::newRow("condition always true") << "1=1" << "" << QStringList{} << DataError::BadErpClassCondition;
    QTest::newRow("statement in the condition") << "x2.FErpClsID in (1); DELETE FROM t_ICItem" << ""
                                                << QStringList{} << DataError::BadErpClassCondition;
}

void TestLedgerData::itemLookupHonoursClassAndPattern()
{
    QFETCH(QString, condition);
    QFETCH(QString, pattern);
    QFETCH(int, error);
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    publishLogin(scratch.propsString());
    std::unique_ptr<Recordset> items;
    QCOMPARE(errorNumberOf([&] { items = recordset(GL, QStringLiteral("LookupItems"), {condition, pattern}); }), error);
    QCOMPARE(SqlRun::scalar(scratch.db(), QStringLiteral("SELECT count(*) FROM t_ICItem")).toInt(), 18);
    if (error != 0)
        return;
    QTEST(texts(column(*items, QStringLiteral("FNumber"))), "numbers");
}

void TestLedgerData::unitLookupOffersTheItemsGroup()
{
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    publishLogin(scratch.propsString());
    const auto numbers = [](int item) {
        return texts(column(*recordset(GL, QStringLiteral("LookupUnits"), {item}), QStringLiteral("FNumber")));
    };
    // 螺钉 counts in pieces: 个, 盒 and 箱 of the quantity group.
    constexpr int Screw = 7;
    QCOMPARE(numbers(Screw), (QStringList{QStringLiteral("1001"), QStringLiteral("1002"), QStringLiteral("1003")}));
    SqlRun::exec(scratch.db(), QStringLiteral("UPDATE t_MeasureUnit SET FConversation=0 WHERE FMeasureUnitID=?"), {Box});
    QCOMPARE(numbers(Screw), (QStringList{QStringLiteral("1001"), QStringLiteral("1003")}));
    QCOMPARE(numbers(999), QStringList{});
}

void TestLedgerData::accountLookupMatchesCodeOrName_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("numbers");
    QTest::newRow("code part") << "14"
                               << QStringList{QStringLiteral("1403"), QStringLiteral("1404"), QStringLiteral("1405"),
                                              QStringLiteral("1408"), QStringLiteral("1411"), QStringLiteral("1471")};
    QTest::newRow("name part") << "应付" << QStringList{QStringLiteral("2202")};
    QTest::newRow("quote") << "' OR ''='" << QStringList{};
}

void TestLedgerData::accountLookupMatchesCodeOrName()
{
    QFETCH(QString, pattern);
    ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
    publishLogin(scratch.propsString());
    QTEST(texts(column(*recordset(GL, QStringLiteral("LookupAccounts"), {pattern}), QStringLiteral("FNumber"))),
          "numbers");
    QCOMPARE(recordset(GL, QStringLiteral("LookupAccounts"), {QString()})->RecordCount(), 7);
}
