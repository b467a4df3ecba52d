#include "scratchaccountset.h"
#include "servicecalls.h"

#include "db/sqlrun.h"
#include "demo/democompany.h"
#include "mterrors.h"
#include "queries/dataerrors.h"
#include "frame/automation/progids.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/recordset.h"

#include "itemlookupmodel.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Qt::StringLiterals;

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
const QStringList InventoryAccounts{u"1403"_s, u"1404"_s, u"1405"_s, u"1408"_s, u"1411"_s};

QStringList texts(const QVariantList &values)
{
    return QVariant(values).toStringList();
}

// The record of the account with the code, as a field -> value map.
QVariantMap accountRecord(Recordset &rs, const QString &number)
{
    for (rs.MoveFirst(); !rs.atEnd(); rs.MoveNext()) {
        if (rs.Fields(u"FNumber"_s).toString() == number) {
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
    return recordset(Data, u"FetchYtdAccounts"_s, {scratch.propsString(), Period, filter, sort});
}

void addBalance(const QSqlDatabase &db, int period, int unit, double qty, double amount)
{
    SqlRun::exec(db, u"INSERT INTO ICInvInitial (FPeriod, FStockID, FItemID, FUnitID, FBatchNo, FYtdAuxBegQty, "
                       "FYtdBegBal, FAuxBegQty, FBegBal, FFieldCompose) VALUES (?,?,?,?,'',?,?,?,?,?)"_s,
                 {period, SemiFinished, MotorSmall, unit, qty, amount, qty, amount,
                  u"%1|0|%2|%3|0"_s.arg(SemiFinished).arg(period).arg(MotorSmall)});
}

int currentYear(const QSqlDatabase &db)
{
    return SqlRun::scalar(db, u"SELECT FValue FROM t_SystemProfile WHERE FKey='CurrentYear'"_s).toInt();
}

// The ledger's balance rows of an account, to see that nothing changed.
const QString LedgerRows = u"SELECT FYear, FPeriod, FCurrencyID, FDetailID, FBeginBalance, FYtdDebit, FYtdCredit, FEndBalance "
                           "FROM t_Balance WHERE FAccountID=? ORDER BY FYear, FPeriod, FCurrencyID"_s;

} // namespace

// The account-level members of "LumoMICInitial.Data" (inventory sums per account,
// reconciliation, transfer to the ledger), its small look-ups (auxiliary properties, the filter
// dialog's field lists) and the log-in and look-up data of "LumoEBCGLView.GLData".
class TestLedgerData : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        publishLogin({});
    }

    void accountSumsFollowTheBalances()
    {
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        const QSqlDatabase db = scratch.db();
        const auto before = accounts(scratch);
        QCOMPARE(texts(column(*before, u"FNumber"_s)), InventoryAccounts);
        const QVariantMap goods = accountRecord(*before, u"1405"_s);
        const QVariantMap raw = accountRecord(*before, u"1403"_s);

        // 10 pieces for 1000 and a box (10 pieces) for 100 of a finished good; a row of another
        // period does not count.
        addBalance(db, Period, Piece, 10, 1000);
        addBalance(db, Period, Box, 1, 100);
        addBalance(db, Period - 1, Piece, 500, 50000);
        const QVariantMap goodsAfter = accountRecord(*accounts(scratch), u"1405"_s);
        const std::pair<const char *, double> added[]{{"FSumBegBal", 1100}, {"FSumYtdBegBal", 1100}, {"FSumBaseBegQty", 20}};
        for (const auto &[field, amount] : added)
            QCOMPARE(goodsAfter.value(QLatin1String(field)).toDouble(), goods.value(QLatin1String(field)).toDouble() + amount);
        QCOMPARE(accountRecord(*accounts(scratch), u"1403"_s), raw);
    }

    void accountFiltersSelectOnlyWhatTheySay_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("sort");
        QTest::addColumn<QStringList>("numbers"); // empty: refused with an error the user sees
        QTest::newRow("one code") << "FNumber = '1405'" << "" << QStringList{u"1405"_s};
        QTest::newRow("on a sum") << "FIsCostDiff = 1" << "" << QStringList{u"1404"_s};
        QStringList backwards = InventoryAccounts;
        std::reverse(backwards.begin(), backwards.end());
        QTest::newRow("sorted backwards") << "" << "FNumber DESC" << backwards;
        QTest::newRow("always true") << "FNumber = '1405' OR 1=1" << "" << QStringList{};
        QTest::newRow("unknown field") << "FPassword = ''" << "" << QStringList{};
        QTest::newRow("statement in the sort") << "" << "FNumber; DELETE FROM t_Account" << QStringList{};
    }

    void accountFiltersSelectOnlyWhatTheySay()
    {
        QFETCH(QString, filter);
        QFETCH(QString, sort);
        QFETCH(QStringList, numbers);
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        if (numbers.isEmpty()) {
            QCOMPARE(errorNumberOf([&] { accounts(scratch, filter, sort); }), MtError::FilterRefused);
        } else {
            const auto rs = accounts(scratch, filter, sort);
            QVERIFY(rs);
            QCOMPARE(texts(column(*rs, u"FNumber"_s)), numbers);
        }
        QCOMPARE(SqlRun::scalar(scratch.db(), u"SELECT count(*) FROM t_Account"_s).toInt(), 7);
    }

    void reconciliationPagesWithTotals_data()
    {
        addBackends();
    }

    void reconciliationPagesWithTotals()
    {
        QFETCH(QString, backend);
        REQUIRE_BACKEND(backend);
        ScratchAccountSet scratch(backend);
        const auto all = accounts(scratch);
        double begBal = 0;
        for (const QVariant &value : column(*all, u"FSumBegBal"_s))
            begBal += value.toDouble();

        QStringList seen;
        for (int index = 1; index <= 3; ++index) {
            const auto page = dictionary(Data, u"FetchYtdCheckAcctData"_s,
                                         {scratch.propsString(), Period, 0, 2, index, QString()});
            QVERIFY(page);
            QCOMPARE((QList<int>{page->Item(u"TotalPages"_s).toInt(), page->Item(u"RecordCount"_s).toInt()}), (QList<int>{3, 5}));
            const auto rows = takeObject<Recordset>(page->Item(u"Rows"_s));
            const auto totals = takeObject<Recordset>(page->Item(u"Totals"_s));
            QCOMPARE(totals->RecordCount(), 1);
            QVERIFY(qAbs(totals->Fields(u"FInitBegBal"_s).toDouble() - begBal) < 1e-6);
            for (rows->MoveFirst(); !rows->atEnd(); rows->MoveNext()) {
                const QString number = rows->Fields(u"FNumber"_s).toString();
                seen.append(number);
                const double diff = rows->Fields(u"FICGLDiff"_s).toDouble();
                QVERIFY(qAbs(diff - (rows->Fields(u"FSumBegBal"_s).toDouble()
                                     - rows->Fields(u"FGLSumEndBal"_s).toDouble())) < 1e-6);
                // The demo's ledger agrees except on finished goods.
                if (number == u"1405"_s || number == u"1403"_s)
                    QVERIFY2(qAbs(diff + (number == u"1405"_s ? GoodsDifference : 0)) < 1e-6, qPrintable(QString::number(diff)));
            }
        }
        QCOMPARE(seen, InventoryAccounts);

        // One account, without totals.
        const auto one = dictionary(Data, u"FetchYtdCheckAcctData"_s,
                                    {scratch.propsString(), Period, GoodsAcct, 10, 1, QString(), QString(), QString(), QString(), false});
        const auto rows = takeObject<Recordset>(one->Item(u"Rows"_s));
        const auto totals = takeObject<Recordset>(one->Item(u"Totals"_s));
        QCOMPARE(texts(column(*rows, u"FNumber"_s)), QStringList{u"1405"_s});
        QCOMPARE(totals->RecordCount(), 0);
    }

    void transferWritesTheLedgerBalance_data()
    {
        QTest::addColumn<int>("account");
        QTest::addColumn<QString>("number");
        QTest::addColumn<int>("dc");
        QTest::addColumn<int>("scale");
        QTest::addColumn<double>("ytdBegBal");
        QTest::addColumn<double>("begBal");
        QTest::addColumn<QString>("stored"); // begin, debit, credit, end, items; empty: the ledger is left as it was
        QTest::addColumn<int>("ledgerDetail"); // the account's own item combination
        QTest::addColumn<int>("detail");       // the one passed
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("error");
        const auto add = [](const char *name, int account, const char *number, int dc, int scale, double ytdBegBal,
                            double begBal, const char *stored, int ledgerDetail = 0, int detail = 0, int answer = 1,
                            int error = 0) {
            QTest::newRow(name) << account << QString::fromUtf8(number) << dc << scale << ytdBegBal << begBal
                                << QString::fromUtf8(stored) << ledgerDetail << detail << answer << error;
        };
        add("debit, half a cent up", RawMaterialAcct, "1403", 1, 2, 1234.565, 2.675, "1234.57, 10, 20, 2.68, 0");
        add("debit, half away from zero", RawMaterialAcct, "1403", 1, 0, -2.5, 2.5, "-3, 10, 20, 3, 0");
        add("credit kept debit-positive", PayablesAcct, "2202", -1, 2, 500, 800, "-500, 10, 20, -800, 0");
        add("no scale: as given", RawMaterialAcct, " 1403 ", 1, -1, 1.23456, 7, "1.23456, 10, 20, 7, 0");
        add("items match", SuppliesAcct, "1411", 1, 2, 99, 99, "99, 10, 20, 99, 3", 3, 3);
        add("items passed, account has none", SuppliesAcct, "1411", 1, 2, 99, 99, "", 0, 3, -1);
        add("account has items, none passed", SuppliesAcct, "1411", 1, 2, 99, 99, "", 3, 0, -1);
        add("other items", SuppliesAcct, "1411", 1, 2, 99, 99, "", 3, 4, -1);
        add("code changed", SuppliesAcct, "1412", 1, 2, 99, 99, "", 0, 0, 0, DataError::UnknownAccount);
    }

    void transferWritesTheLedgerBalance()
    {
        QFETCH(int, account);
        QFETCH(QString, number);
        QFETCH(int, dc);
        QFETCH(int, scale);
        QFETCH(double, ytdBegBal);
        QFETCH(double, begBal);
        QFETCH(QString, stored);
        QFETCH(int, ledgerDetail);
        QFETCH(int, detail);
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        const QSqlDatabase db = scratch.db();
        SqlRun::exec(db, u"UPDATE t_Account SET FDetailID=? WHERE FAccountID=?"_s, {ledgerDetail, account});
        const QStringList before = scratch.rows(LedgerRows, {account});
        const QVariantList args{scratch.propsString(), 0, 0, 0, account, number, u"科目"_s, dc, scale, ytdBegBal, 10.0,
                                20.0, begBal, detail};
        int answer = 0;
        QTEST(errorNumberOf([&] { answer = call(Data, u"StartTransferBalace"_s, args).toInt(); }), "error");
        QTEST(answer, "answer");
        if (stored.isEmpty()) {
            QCOMPARE(scratch.rows(LedgerRows, {account}), before);
            return;
        }
        // Year and period 0 are the inventory's current ones; the earlier balance is replaced.
        QCOMPARE(scratch.rows(u"SELECT FBeginBalance, FYtdDebit, FYtdCredit, FEndBalance, FDetailID FROM t_Balance "
                              "WHERE FYear=? AND FPeriod=? AND FAccountID=? AND FCurrencyID=1"_s,
                              {currentYear(db), Period, account}),
                 QStringList{stored});
    }

    void auxiliaryPropertiesAreCounted()
    {
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        const QSqlDatabase db = scratch.db();
        QCOMPARE(call(Data, u"CheckItemAuxNum"_s, {scratch.propsString()}).toInt(), 6);
        SqlRun::exec(db, u"DELETE FROM t_AuxItem"_s);
        QCOMPARE(call(Data, u"CheckItemAuxNum"_s, {scratch.propsString()}).toInt(), 0);

        QCOMPARE(texts(column(*recordset(Data, u"FetchAuxProp"_s, {scratch.propsString()}), u"fname"_s)),
                 (QStringList{u"颜色尺码"_s, u"等级"_s}));
        // In number order, not in id order.
        SqlRun::exec(db, u"UPDATE t_AuxClass SET FNumber='00' WHERE FItemClassID=2"_s);
        const auto renumbered = recordset(Data, u"FetchAuxProp"_s, {scratch.propsString()});
        QCOMPARE(column(*renumbered, u"fitemclassid"_s).first().toInt(), 2);
    }

    void fieldListsOfferTheFilterFields_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("error");
        QTest::newRow("conditions") << "FVisForQuest" << 0;
        QTest::newRow("sorting, any case") << "fvisfororder" << 0;
        QTest::newRow("unknown kind") << "FVisForAll" << DataError::BadFieldListKind;
        QTest::newRow("empty") << "" << DataError::BadFieldListKind;
    }

    void fieldListsOfferTheFilterFields()
    {
        QFETCH(QString, kind);
        QFETCH(int, error);
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        std::unique_ptr<Recordset> fields;
        QCOMPARE(errorNumberOf([&] { fields = recordset(Data, u"GetSortByFields"_s, {scratch.propsString(), kind}); }), error);
        if (error != 0)
            return;
        QVERIFY(fields->RecordCount() > 10);
        // Every field offered is one the item rows can be filtered and sorted by: the semi-finished
        // goods warehouse keeps its rows under each.
        for (fields->MoveFirst(); !fields->atEnd(); fields->MoveNext()) {
            const QString name = fields->Fields(u"FieldName"_s).toString();
            QVERIFY(!fields->Fields(u"Name"_s).toString().isEmpty());
            const auto page = dictionary(Data, u"FetchYtdInitialData"_s,
                                         {scratch.propsString(), SemiFinished, 0, Period, 50, 1, QString(), QString(),
                                          QString(), name + u" DESC"_s, false});
            QVERIFY2(page->Item(u"RecordCount"_s).toInt() > 0, qPrintable(name));
            takeObject<Recordset>(page->Item(u"Rows"_s));
            takeObject<Recordset>(page->Item(u"Totals"_s));
        }
    }

    void fieldListsFollowTheAccountSet()
    {
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        SqlRun::exec(scratch.db(), u"INSERT INTO t_FieldList (FDataSet, FFieldName, FName, FVisForQuest, FVisForOrder, FIndex) "
                                   "VALUES ('ICInitial', 'fnumber', '代码', 1, 0, 2), ('ICInitial', 'FItemName', '名称', 1, 1, 1), "
                                   "('ICInitial', 'FNoSuch', '无', 1, 1, 0), ('Other', 'FModel', '型号', 1, 1, 0)"_s);
        const auto quest = recordset(Data, u"GetSortByFields"_s, {scratch.propsString(), u"FVisForQuest"_s});
        QCOMPARE(texts(column(*quest, u"FieldName"_s)) + texts(column(*quest, u"Name"_s)),
                 (QStringList{u"FItemName"_s, u"FNumber"_s, u"名称"_s, u"代码"_s}));
        const auto order = recordset(Data, u"GetSortByFields"_s, {scratch.propsString(), u"FVisForOrder"_s});
        QCOMPARE(texts(column(*order, u"FieldName"_s)), QStringList{u"FItemName"_s});
    }

    void loginFindsTheUser_data()
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

    void loginFindsTheUser()
    {
        QFETCH(QString, user);
        QFETCH(int, error);
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        SqlRun::exec(scratch.db(), u"INSERT INTO t_User (FUserID, FName, FForbidden) VALUES (30, '禁用员', 1)"_s);
        int id = 0;
        QCOMPARE(errorNumberOf([&] { id = call(GL, u"Login"_s, {scratch.acctDb(), user}).toInt(); }), error);
        QTEST(id, "userId");
    }

    // The look-up's list reads page after page by key as it scrolls: every item once, in code order.
    void itemLookUpListReadsPageByPage()
    {
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        publishLogin(scratch.propsString());
        const QString classes = u"x2.FErpClsID<>5"_s;
        ItemLookupModel model([&](const QString &pattern, const QString &afterNumber, int afterId, int count) {
            return recordset(GL, u"LookupItems"_s, {classes, pattern, afterNumber, afterId, count});
        }, 5);
        QAbstractItemModelTester tester(&model);
        model.setPattern({});
        while (model.canFetchMore({}))
            model.fetchMore({});
        QStringList codes;
        for (int row = 0; row < model.rowCount(); ++row)
            codes.append(model.record(row).value(u"FNumber"_s).toString());
        QCOMPARE(codes, scratch.rows(u"SELECT FNumber FROM t_ICItem WHERE FErpClsID<>5 ORDER BY FNumber"_s));
    }

    void lookupsFindWhatIsAsked_data()
    {
        QTest::addColumn<QString>("member");
        QTest::addColumn<QVariantList>("args");
        QTest::addColumn<QString>("prepare"); // run on the account set first
        QTest::addColumn<QStringList>("numbers");
        QTest::addColumn<int>("error");
        const auto add = [](const char *name, const QString &member, const QVariantList &args, const QStringList &numbers,
                            int error = 0, const QString &prepare = {}) {
            QTest::newRow(name) << member << args << prepare << numbers << error;
        };
        // Item look-ups read one page: class condition, typed text, then the key of the page before.
        const QString items = u"LookupItems"_s;
        const auto page = [](const QString &condition, const QString &pattern, const QString &afterNumber = {},
                             int afterId = 0, int count = 100) {
            return QVariantList{condition, pattern, afterNumber, afterId, count};
        };
        add("items: virtual", items, page(u"x2.FErpClsID=5"_s, u""_s), {u"9.01.001"_s});
        add("items: by name", items, page(u"x2.FErpClsID in (1,2,3,7,9)"_s, u"电动机"_s), {u"3.01.001"_s, u"3.01.002"_s});
        add("items: by code part", items, page(u""_s, u"1.04"_s), {u"1.04.001"_s, u"1.04.002"_s});
        add("items: by model part", items, page(u"x2.FErpClsID in (1,2,3,7,9)"_s, u"ye3-1"_s),
            {u"2.01.001"_s, u"3.01.001"_s, u"3.01.002"_s});
        add("items: class excludes", items, page(u"x2.FErpClsID<>5"_s, u"9.01"_s), {});
        add("items: self-made by name", items, page(u"FErpClsID = 2"_s, u"转子"_s), {u"2.01.002"_s});
        add("items: quote in the pattern", items, page(u""_s, u"' OR '1'='1"_s), {});
        add("items: or 1=1 in the pattern", items, page(u""_s, u"x' or 1=1 --"_s), {});
        add("items: % is no wildcard", items, page(u""_s, u"%"_s), {});
        add("items: _ is no wildcard", items, page(u""_s, u"1_01"_s), {});
        add("items: % and _ match themselves", items, page(u""_s, u"0%_o"_s), {u"1.01.001"_s}, 0,
            u"UPDATE t_ICItem SET FModel='50%_off' WHERE FItemID=1"_s);
        add("items: first page", items, page(u"x2.FErpClsID<>5"_s, u""_s, {}, 0, 2), {u"1.01.001"_s, u"1.01.002"_s});
        add("items: page after a key", items, page(u""_s, u""_s, u"1.04.002"_s, 8, 3),
            {u"1.05.001"_s, u"2.01.001"_s, u"2.01.002"_s});
        add("items: page after the last", items, page(u"x2.FErpClsID in (1,2,3,7,9)"_s, u"电动机"_s, u"3.01.002"_s, 13),
            {});
        add("items: condition always true", items, page(u"1=1"_s, u""_s), {}, DataError::BadErpClassCondition);
        add("items: statement in the condition", items, page(u"x2.FErpClsID in (1); DELETE FROM t_ICItem"_s, u""_s),
            {}, DataError::BadErpClassCondition);
        // 螺钉 (item 7) counts in pieces: 个, 盒 and 箱 of the quantity group.
        const QString units = u"LookupUnits"_s;
        add("units of the group", units, {7}, {u"1001"_s, u"1002"_s, u"1003"_s});
        add("units: one not for conversion", units, {7}, {u"1001"_s, u"1003"_s}, 0,
            u"UPDATE t_MeasureUnit SET FConversation=0 WHERE FMeasureUnitID=2"_s);
        add("units: unknown item", units, {999}, {});
        const QString accounts = u"LookupAccounts"_s;
        add("accounts: code part", accounts, {u"14"_s}, InventoryAccounts + QStringList{u"1471"_s});
        add("accounts: name part", accounts, {u"应付"_s}, {u"2202"_s});
        add("accounts: quote", accounts, {u"' OR ''='"_s}, {});
        add("accounts: everything", accounts, {u""_s}, InventoryAccounts + QStringList{u"1471"_s, u"2202"_s});
    }

    void lookupsFindWhatIsAsked()
    {
        QFETCH(QString, member);
        QFETCH(QVariantList, args);
        QFETCH(QString, prepare);
        QFETCH(int, error);
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        if (!prepare.isEmpty())
            SqlRun::exec(scratch.db(), prepare);
        publishLogin(scratch.propsString());
        std::unique_ptr<Recordset> found;
        QCOMPARE(errorNumberOf([&] { found = recordset(GL, member, args); }), error);
        QCOMPARE(SqlRun::scalar(scratch.db(), u"SELECT count(*) FROM t_ICItem"_s).toInt(), 18);
        if (error == 0)
            QTEST(texts(column(*found, u"FNumber"_s)), "numbers");
    }
};

QTEST_MAIN(TestLedgerData)
#include "tst_ledgerdata.moc"
