#include "scratchaccountset.h"
#include "servicecalls.h"

#include "db/accountset.h"
#include "db/placetotals.h"
#include "db/sqlrun.h"
#include "demo/democompany.h"
#include "mterrors.h"
#include "queries/dataerrors.h"
#include "queries/itemrowfields.h"
#include "frame/automation/progids.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/recordset.h"

#include <QTest>

#include <thread>

using namespace Qt::StringLiterals;

using namespace ServiceCalls;

namespace {

// A warehouse of its own with known balances for period 4 (the demo's current period). Its item
// rows, in item-number order: 钢板 (only batch lines B1 2/20 and B2 3/30), 圆钢 without and with
// the property 红色/S, 铜线, 铝型材, 润滑油, 螺钉, 螺母. Rows of another period and of a stock
// place of the same warehouse are there to be left out.
constexpr int Stock = 70;
constexpr int Period = DemoCompany::CurrentPeriod;
constexpr int OtherPlace = 9;
constexpr int SteelPlate = 1;
constexpr int RoundSteel = 2;
constexpr int Kilogram = 4;
constexpr int Tonne = 6;
constexpr int RedS = 1;
constexpr double PlaceQty = 36; // 5 + 1 + 8 + 2 + 3 + 4 + 6 + 7

const QString Data = ProgId::MICInitialData;
const QString Fetch = u"FetchYtdInitialData"_s;

// Makes the warehouse in a demo account set. Year start = opening, nothing received or issued: the
// balance rule holds.
void seedPlace(const QSqlDatabase &db)
{
    SqlRun::exec(db, u"INSERT INTO t_Stock (FItemID, FNumber, FName) VALUES (?, '70', '测试仓')"_s, {Stock});
    const auto add = [&](int item, int unit, int aux, double qty, const QString &batch = u""_s, int bill = 0,
                         int spId = 0, int period = Period) {
        SqlRun::exec(db,
                     u"INSERT INTO ICInvInitial (FBrNo, FPeriod, FStockID, FSPID, FItemID, FUnitID, FBatchNo, FAuxPropID, "
                     "FYtdAuxBegQty, FYtdBegBal, FAuxBegQty, FBegBal, FStockInDate, FKFDate, FFieldCompose, FBillInterID) "
                     "VALUES ('0',?,?,?,?,?,?,?,?,?,?,?,'2024-04-01','',?,?)"_s,
                     {period, Stock, spId, item, unit, batch, aux, qty, qty * 10, qty, qty * 10,
                      u"%1|%2|%3|%4|%5"_s.arg(Stock).arg(spId).arg(period).arg(item).arg(aux), bill});
    };
    add(SteelPlate, Kilogram, 0, 2, u"B1"_s, 2);
    add(SteelPlate, Kilogram, 0, 3, u"B2"_s, 1);
    add(RoundSteel, Kilogram, 0, 1);
    add(RoundSteel, Kilogram, RedS, 8);
    for (const auto &[item, unit, qty] : {std::tuple{3, 7, 2}, {4, 7, 3}, {5, 9, 4}, {7, 1, 6}, {8, 1, 7}})
        add(item, unit, 0, qty);
    add(RoundSteel, Kilogram, 0, 100, u""_s, 0, 0, Period - 1);
    add(3, 7, 0, 1000, u""_s, 0, OtherPlace);
}

// "item/property" of every row, in order.
QStringList rowKeys(Recordset &rows)
{
    QStringList keys;
    for (rows.MoveFirst(); !rows.atEnd(); rows.MoveNext())
        keys.append(u"%1/%2"_s.arg(rows.Fields(u"FItemID"_s).toInt()).arg(rows.Fields(u"FAuxPropID"_s).toInt()));
    return keys;
}

// The named fields of the current record, for one comparison.
QVariantList fields(Recordset &rs, std::initializer_list<const char *> names)
{
    QVariantList values;
    for (const char *name : names)
        values.append(rs.Fields(QLatin1String(name)));
    return values;
}

// "1/0 2/1": item rows as rowKeys gives them.
QStringList keys(const char *text)
{
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

struct Page
{
    std::unique_ptr<Dictionary> result;
    std::unique_ptr<Recordset> rows;
    std::unique_ptr<Recordset> totals;

    int recordCount() const { return result->Item(u"RecordCount"_s).toInt(); }
    double total(const char *field) const { return totals->Fields(QLatin1String(field)).toDouble(); }
};

Page fetchPage(const ScratchAccountSet &scratch, int pageSize, int pageIndex, const QStringList &filters = {},
               const QString &sort = {}, int place = 0)
{
    Page page;
    page.result = dictionary(Data, Fetch, {scratch.propsString(), Stock, place, Period, pageSize, pageIndex, filters.value(0),
                                           filters.value(1), filters.value(2), sort, false});
    if (page.result) {
        page.rows = takeObject<Recordset>(page.result->Item(u"Rows"_s));
        page.totals = takeObject<Recordset>(page.result->Item(u"Totals"_s));
    }
    return page;
}

// An item row as the entry grid inserts it: year start = opening = qty, amount 10 a unit.
QString itemRowInsert(int item, int aux, const QString &batch, double qty)
{
    return u"Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo, FYtdAuxBegQty,FYtdBegBal,"
           "FYtdBegDiff, FYtdAuxReceive,FYtdDebit,FYtdReceiveDiff, FYtdAuxSend,FYtdCredit,FYtdSendDiff, FAuxBegQty,FBegBal,"
           "FBegDiff, FAuxUnitBegQty,FYtdAuxUnitBegQty,FYtdAuxUnitSend, FYtdAuxUnitReceive,FStockInDate,FSecUnitID,"
           "FAuxPropID,FSecCoefficient,FFieldCompose) Values('0',%1,%2,0,%3,1,'%4',%5,%6,0.1,0,0,0,0,0,0,%5,%6,0.1,0,0,0,0,"
           "'2024-04-01',0,%7,0,'%2|0|%1|%3|%7')"_s
        .arg(Period).arg(Stock).arg(item).arg(batch).arg(qty).arg(qty * 10).arg(aux);
}

QString itemDelete(int item, int aux)
{
    return u"Delete from ICInvInitial Where FStockID=%1 And FSPID=0 And FPeriod=%2 And FItemID = %3 And FAuxPropID = %4"_s
        .arg(Stock).arg(Period).arg(item).arg(aux);
}

// The item rows and figure sums of the place as the rows themselves say, summed afresh.
QList<double> summedAfresh(const QSqlDatabase &db)
{
    QStringList sums;
    for (const QString &figure : PlaceTotals::figures())
        sums.append(u"coalesce(sum(%1),0)"_s.arg(figure));
    QSqlQuery query = SqlRun::exec(db, u"SELECT (SELECT count(*) FROM (SELECT DISTINCT FItemID, FAuxPropID FROM ICInvInitial "
                                       "WHERE FStockID=? AND FSPID=0 AND FPeriod=?) d), %1 FROM ICInvInitial "
                                       "WHERE FStockID=? AND FSPID=0 AND FPeriod=?"_s.arg(sums.join(u',')),
                                   {Stock, Period, Stock, Period});
    query.next(); // sums without GROUP BY: always one row
    QList<double> values;
    for (int i = 0; i <= int(PlaceTotals::figures().size()); ++i)
        values.append(PlaceTotals::rounded(query.value(i).toDouble()));
    return values;
}

QList<double> servedTotals(const Page &page)
{
    QList<double> values{double(page.recordCount())};
    // The served names of the twelve figures, in the order of the stored columns.
    for (const QString &field : ItemRowFields::figureFields())
        values.append(page.totals->Fields(field).toDouble());
    return values;
}

// The records column of a text the service refuses with MtError::FilterRefused.
constexpr int Refused = -1;

} // namespace

// The item rows of "LumoMICInitial.Data" on a warehouse of known balances: paging, the totals
// of the whole place, filters and sorts (and texts that try to be more than a filter), the item
// look-up by code, the rows an item already has, batch lines and the export.

class TestInitialData : public QObject
{
    Q_OBJECT

private slots:
    void filtersSortsAndPagesSelectOnlyWhatTheySay_data()
    {
        QTest::addColumn<QString>("backend");
        QTest::addColumn<QStringList>("filters"); // Filter, ActualFilter, VirtualFilter
        QTest::addColumn<QString>("sort");
        QTest::addColumn<int>("pageIndex"); // pages of three
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<int>("records");
        QTest::addColumn<double>("totalQty"); // of the whole selection, on every page

        const auto add = [&](const char *name, const QStringList &filters, const QString &sort, int page, const char *rows,
                             int records, double qty) {
            for (const QString &backend : {ScratchAccountSet::Sqlite, ScratchAccountSet::Postgres})
                QTest::newRow(qPrintable(u"%1 %2"_s.arg(QLatin1String(name), backend)))
                    << backend << filters << sort << page << keys(rows) << records << qty;
        };
        // Item rows in item-number order, a property after the row without; the steel plate's row
        // sums its two batch lines (2 and 3), so only it passes "FInitBegQty >= 5" of the three.
        add("nothing chosen", {u" where 1=1 and "_s, {}, {}}, {}, 1, "1/0 2/0 2/1", 8, PlaceQty);
        add("middle page", {}, {}, 2, "3/0 4/0 5/0", 8, PlaceQty);
        add("last page, shorter", {}, {}, 3, "7/0 8/0", 8, PlaceQty);
        add("beyond the last page", {}, {}, 4, "", 8, PlaceQty);
        add("item code", {u"FNumber like '1.01%'"_s, {}, {}}, {}, 1, "1/0 2/0 2/1", 3, 14);
        add("three filters joined by AND", {u"FNumber like '1.0%'"_s, u"t1.FModel = 'Φ20'"_s, u"FAuxPropName = ''"_s}, {},
            1, "2/0", 1, 1);
        add("on a sum, over whole item rows", {u"FInitBegQty >= 5"_s, {}, {}}, {}, 1, "1/0 2/1 7/0", 4, 26);
        add("sum and name", {u"FItemName = '铜线'"_s, u"FInitBegQty > 1"_s, {}}, {}, 1, "3/0", 1, 2);
        add("sorted by a sum", {}, u"FInitBegQty DESC"_s, 1, "2/1 8/0 7/0", 8, PlaceQty);
        add("sorted by code, properties in order", {}, u"FNumber DESC"_s, 3, "2/1 1/0", 8, PlaceQty);
        // Texts that are no plain filter are refused, on each of the three filters and the sort.
        // What the filter parser refuses is its own suite's matter.
        add("always true", {u"FNumber = 'x' OR 1=1"_s, {}, {}}, {}, 1, "", Refused, 0);
        add("second statement", {u"FNumber = '1.01.001'; DELETE FROM ICInvInitial"_s, {}, {}}, {}, 1, "", Refused, 0);
        add("bad actual filter", {{}, u"FPassword = 'x'"_s, {}}, {}, 1, "", Refused, 0);
        add("bad virtual filter", {{}, {}, u"FInitBegQty > 0 OR 1=1"_s}, {}, 1, "", Refused, 0);
        add("statement in the sort", {}, u"FNumber; DROP TABLE t_ICItem"_s, 1, "", Refused, 0);
    }

    void filtersSortsAndPagesSelectOnlyWhatTheySay()
    {
        QFETCH(QString, backend);
        QFETCH(QStringList, filters);
        QFETCH(QString, sort);
        QFETCH(int, pageIndex);
        QFETCH(int, records);
        QFETCH(double, totalQty);
        REQUIRE_BACKEND(backend);
        ScratchAccountSet scratch(backend);
        const QSqlDatabase db = scratch.db();
        seedPlace(db);
        const auto counts = [&] {
            return SqlRun::scalar(db, u"SELECT (SELECT count(*) FROM ICInvInitial) || '/' || (SELECT count(*) FROM t_ICItem)"_s);
        };
        const QVariant before = counts();
        if (records == Refused) {
            QCOMPARE(errorNumberOf([&] { fetchPage(scratch, 3, pageIndex, filters, sort); }), MtError::FilterRefused);
            QCOMPARE(counts(), before);
            return;
        }

        const Page page = fetchPage(scratch, 3, pageIndex, filters, sort);
        QVERIFY(page.rows && page.totals);
        QTEST(rowKeys(*page.rows), "rows");
        QCOMPARE((QList<double>{double(page.recordCount()), page.result->Item(u"TotalPages"_s).toDouble(),
                                page.total("FInitBegQty"), page.total("FInitBegBal")}),
                 (QList<double>{double(records), double((records + 2) / 3), totalQty, totalQty * 10}));
        // Nothing a filter says reaches the database as SQL.
        QCOMPARE(counts(), before);
        QCOMPARE(errorNumberOf([&] { fetchPage(scratch, 0, 1); }), DataError::BadPage);
        QCOMPARE(errorNumberOf([&] { fetchPage(scratch, 3, 0); }), DataError::BadPage);
    }

    void itemDetailFindsByCode_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<bool>("useShortNumber");
        QTest::addColumn<bool>("found"); // 圆钢, the only item with a short code
        QTest::newRow("code") << "1.01.002" << false << true;
        QTest::newRow("blanks around") << " 1.01.002 " << false << true;
        QTest::newRow("unknown code") << "1.01.999" << false << false;
        QTest::newRow("part of a code") << "1.01" << false << false;
        QTest::newRow("quote") << "1' OR '1'='1" << false << false;
        QTest::newRow("short code") << "SHORT2" << true << true;
        QTest::newRow("full code with short codes on") << "1.01.002" << true << false;
        QTest::newRow("deleted item") << "1.01.001" << false << false;
    }

    void itemDetailFindsByCode()
    {
        QFETCH(QString, code);
        QFETCH(bool, useShortNumber);
        QFETCH(bool, found);
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        const QSqlDatabase db = scratch.db();
        SqlRun::exec(db, u"UPDATE t_ICItem SET FShortNumber='SHORT2' WHERE FItemID=?"_s, {RoundSteel});
        SqlRun::exec(db, u"UPDATE t_ICItem SET FDeleted=1 WHERE FItemID=?"_s, {SteelPlate});
        SqlRun::exec(db, u"UPDATE t_SystemProfile SET FValue=? WHERE FKey='UseShortNumber'"_s, {QString::number(int(useShortNumber))});
        const auto rs = recordset(Data, u"FetchYtdItemDetail"_s, {scratch.propsString(), code});
        QVERIFY(rs);
        QCOMPARE(rs->RecordCount(), int(found));
        if (found)
            QCOMPARE(fields(*rs, {"FItemID", "FUnitName", "FTrackName"}), (QVariantList{RoundSteel, u"千克"_s, u"移动平均法"_s}));
    }

    void initDataListsTheItemRows_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("auxPropId"); // -1: the two-argument form
        QTest::addColumn<QStringList>("composes");
        QTest::addColumn<int>("error");
        QTest::newRow("both properties") << "70|0|4|2" << -1 << QStringList{u"70|0|4|2|0"_s, u"70|0|4|2|1"_s} << 0;
        QTest::newRow("one property") << "70|0|4|2" << RedS << QStringList{u"70|0|4|2|1"_s} << 0;
        QTest::newRow("batch lines only") << " 70 | 0 | 4 | 1 " << -1 << QStringList{u"70|0|4|1|0"_s} << 0;
        QTest::newRow("other period") << "70|0|3|3" << -1 << QStringList{} << 0;
        QTest::newRow("three parts") << "70|0|4" << -1 << QStringList{} << DataError::BadPlaceItemKey;
        QTest::newRow("five parts") << "70|0|4|2|0" << -1 << QStringList{} << DataError::BadPlaceItemKey;
        QTest::newRow("not a number") << "70|0|4|2 or 1=1" << -1 << QStringList{} << DataError::BadPlaceItemKey;
    }

    void initDataListsTheItemRows()
    {
        QFETCH(QString, key);
        QFETCH(int, auxPropId);
        QFETCH(QStringList, composes);
        QFETCH(int, error);
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        seedPlace(scratch.db());
        QVariantList args{scratch.propsString(), key};
        if (auxPropId >= 0)
            args.append(auxPropId);
        std::unique_ptr<Recordset> rs;
        QCOMPARE(errorNumberOf([&] { rs = recordset(Data, u"GetInitData"_s, args); }), error);
        if (error != 0)
            return;
        QCOMPARE(QVariant(column(*rs, u"FFieldCompose"_s)).toStringList(), composes);
    }

    void batchLinesComeInTheAskedUnit()
    {
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        seedPlace(scratch.db());
        const auto lines = [&](int unit, bool batch, bool shelfLife) {
            return recordset(Data, u"FetchYtdBatManDetail"_s,
                             {scratch.propsString(), Period, Stock, 0, SteelPlate, 0, unit, batch, shelfLife});
        };

        // Ordered by bill number: B2 (bill 1) before B1 (bill 2); kilograms as stored.
        const auto stored = lines(0, true, false);
        QCOMPARE(column(*stored, u"FBatchNo"_s), (QVariantList{u"B2"_s, u"B1"_s}));
        QCOMPARE(fields(*stored, {"FAuxBegQty", "FBegBal", "FLock"}), (QVariantList{3.0, 30.0, 0}));

        // In tonnes the quantities are a thousandth; amounts stay.
        const auto tonnes = lines(Tonne, true, false);
        QCOMPARE(fields(*tonnes, {"FAuxBegQty", "FBegBal", "FUnitID"}), (QVariantList{0.003, 30.0, Tonne}));

        // Without batch or shelf-life management there are no lines; the lines have no production
        // date, so shelf-life management alone finds none either.
        QCOMPARE(lines(0, false, false)->RecordCount(), 0);
        QCOMPARE(lines(0, false, true)->RecordCount(), 0);

        // A closed initialisation locks the lines.
        SqlRun::exec(scratch.db(), u"UPDATE t_SystemProfile SET FValue='1' WHERE FKey='ICClosed'"_s);
        QCOMPARE(lines(0, true, false)->Fields(u"FLock"_s).toInt(), 1);
    }

    void exportListsEveryRowOfThePlace_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("sort");
        QTest::addColumn<QStringList>("batches"); // FBatchNo of the steel plate rows, in order
        QTest::addColumn<int>("records"); // -1: the filter or sort is refused with an error the user sees
        QTest::newRow("everything") << "" << "" << QStringList{u"B1"_s, u"B2"_s} << 9;
        QTest::newRow("one batch") << "FBatchNo = 'B2'" << "" << QStringList{u"B2"_s} << 1;
        QTest::newRow("batches backwards") << "FNumber = '1.01.001'" << "FBatchNo DESC"
                                           << QStringList{u"B2"_s, u"B1"_s} << 2;
        QTest::newRow("refused filter") << "FBatchNo = 'B2' OR 1=1" << "" << QStringList{} << -1;
        QTest::newRow("refused sort") << "" << "FBatchNo; DELETE FROM ICInvInitial" << QStringList{} << -1;
    }

    void exportListsEveryRowOfThePlace()
    {
        QFETCH(QString, filter);
        QFETCH(QString, sort);
        QFETCH(QStringList, batches);
        QFETCH(int, records);
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        seedPlace(scratch.db());
        const QVariantList args{scratch.propsString(), Stock, 0, Period, filter, sort};
        if (records < 0) {
            QCOMPARE(errorNumberOf([&] { recordset(Data, u"FetchICExportData"_s, args); }), MtError::FilterRefused);
            return;
        }
        const auto rs = recordset(Data, u"FetchICExportData"_s, args);
        QVERIFY(rs);
        QCOMPARE(rs->RecordCount(), records);
        QStringList steel;
        for (rs->MoveFirst(); !rs->atEnd(); rs->MoveNext()) {
            QCOMPARE(rs->Fields(u"FStockName"_s).toString(), u"测试仓"_s);
            if (rs->Fields(u"FItemID"_s).toInt() == SteelPlate)
                steel.append(rs->Fields(u"FBatchNo"_s).toString());
        }
        QCOMPARE(steel, batches);
    }

    void placeTotalsFollowEveryWrite_data()
    {
        addBackends();
    }

    void placeTotalsFollowEveryWrite()
    {
        QFETCH(QString, backend);
        REQUIRE_BACKEND(backend);
        ScratchAccountSet scratch(backend);
        const QSqlDatabase db = scratch.db();
        seedPlace(db);

        // Each step is a script of the shapes the controls write; after each, the totals the page
        // carries must be what the rows add up to.
        const QList<std::pair<const char *, QString>> steps{
            {"a new item row", itemRowInsert(6, 0, {}, 4)},
            {"another line of an item row that has lines", itemRowInsert(SteelPlate, 0, u"B3"_s, 0.3)},
            {"a row re-pointed onto an item row that exists",
             u"update icinvinitial set FItemID=6,funitid=1,FFieldCompose='70|0|4|6|0',FAuxPropID=0 "
                            "where FFieldCompose='70|0|4|2|0'"_s},
            {"a row re-pointed onto a new property",
             u"update icinvinitial set FItemID=3,funitid=7,FFieldCompose='70|0|4|3|1',FAuxPropID=1 "
                            "where FFieldCompose='70|0|4|3|0'"_s},
            {"figures rewritten in place",
             u"update icinvinitial set FItemID=4, funitid=7 ,FStockInDate='2024-04-01',FYtdAuxBegQty=0.7,"
                            "FYtdBegBal=0.2,FYtdBegDiff=0,FYtdAuxReceive=0,FYtdDebit=0,FYtdReceiveDiff=0,FYtdAuxSend=0,"
                            "FYtdCredit=0,FYtdSendDiff=0,FAuxBegQty=0.7,FBegBal=0.2,FBegDiff=0,FAuxUnitBegQty=0,"
                            "FYtdAuxUnitBegQty=0,FYtdAuxUnitSend=0,FYtdAuxUnitReceive=0,FFieldCompose='70|0|4|4|0' ,"
                            "FAuxPropID=0 where FFieldCompose='70|0|4|4|0'"_s},
            {"an item with lines deleted", itemDelete(SteelPlate, 0)},
            {"every item row deleted",
             QStringList{itemDelete(RoundSteel, RedS), itemDelete(3, 1), itemDelete(4, 0), itemDelete(5, 0),
                         itemDelete(6, 0), itemDelete(7, 0), itemDelete(8, 0)}
                 .join(u"\r\n"_s)},
        };
        QCOMPARE(servedTotals(fetchPage(scratch, 3, 1)), summedAfresh(db));
        for (const auto &[name, script] : steps) {
            call(Data, u"UpdateINIData"_s, {scratch.propsString(), script});
            QVERIFY2(servedTotals(fetchPage(scratch, 3, 1)) == summedAfresh(db), name);
        }
        // Nothing is left, and the totals say so exactly, without binary residue.
        QCOMPARE(summedAfresh(db).first(), 0.0);
        QCOMPARE(servedTotals(fetchPage(scratch, 3, 1)), QList<double>(PlaceTotals::figures().size() + 1, 0.0));
        // The other place of the warehouse and the other period kept theirs.
        QCOMPARE(fetchPage(scratch, 3, 1, {}, {}, OtherPlace).total("FInitBegQty"), 1000.0);
    }

    // Two sessions delete the last two lines of an item row at once. Counting the group's rows
    // without the other's uncommitted delete, each would take the item row as kept, and the
    // place would go on counting an item row that is gone.
    void placeTotalsHoldUnderConcurrentSaves()
    {
        const QString lineDelete = u"DELETE FROM ICInvInitial WHERE FStockID=%1 AND FItemID=%2 AND FBatchNo='%3'"_s;
        REQUIRE_BACKEND(ScratchAccountSet::Postgres);
        ScratchAccountSet scratch(ScratchAccountSet::Postgres);
        const QSqlDatabase db = scratch.db();
        seedPlace(db);
        SqlRun::execAll(db, {u"BEGIN"_s, lineDelete.arg(Stock).arg(SteelPlate).arg(u"B1"_s)});
        std::atomic<int> otherPid = 0;
        std::thread other([&] {
            const QSqlDatabase own = AccountSet::open(scratch.acctDb()).database();
            otherPid = SqlRun::scalar(own, u"SELECT pg_backend_pid()"_s).toInt();
            SqlRun::exec(own, lineDelete.arg(Stock).arg(SteelPlate).arg(u"B2"_s));
        });
        // The other session must wait for this one before it counts the group's rows.
        const bool waited = scratch.awaitLockWait(otherPid);
        SqlRun::exec(db, u"COMMIT"_s);
        other.join();
        QVERIFY(waited);
        QCOMPARE(servedTotals(fetchPage(scratch, 3, 1)), summedAfresh(db));
    }
};

QTEST_MAIN(TestInitialData)
#include "tst_initialdata.moc"
