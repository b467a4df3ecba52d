// Figures of the data services of "LumoMICInitial.Data", each beside the raw statements on the
// same backend in the same run, and their ratio:
//  - UpdateINIData of a 10,000-row script of the entry grid's item-row inserts, beside the same
//    rows through one prepared insert in one transaction;
//  - FetchYtdInitialData of one 500-row page with the totals of the whole place, in a warehouse
//    of 200,000 item rows inside a 1,000,000-row account set, beside the page SELECT and the
//    totals aggregate it issues (the first page, and the last one for reference);
//  - FetchStocks over 10,000 warehouses and 10,000 stock places, beside its two SELECTs.
// Medians of several runs; the service and the raw runs take turns. SQLite always, PostgreSQL
// as well when LUMO_TEST_PG names a server.
//
//   bench_middletier [--cache DIR] [CASE...]
//     CASE: script, page, stocks (default: all). The large account set is kept in DIR (default:
//     a folder under the system's temporary folder) for later runs.

#include "benchaccountsets.h"

#include "db/bulkinserter.h"
#include "db/sqlrun.h"
#include "dialect/sqldialect.h"
#include "queries/initialdatasql.h"
#include "queries/pagewindow.h"
#include "queries/stockquery.h"
#include "queries/typelist.h"
#include "services/lumomicinitialdata.h"

#include "sheet/sqltext.h"
#include "sheet/savescript.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/recordset.h"

#include "measure.h"

#include <QCoreApplication>
#include <QDir>
#include <QSqlQuery>
#include <QSqlRecord>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int ScriptRows = 10000;
constexpr int ScriptRuns = 9;
constexpr int BigItems = 200000;
constexpr int BigWarehouses = 5;
constexpr qint64 BigRows = qint64(BigItems) * BigWarehouses;
constexpr int PageSize = 500;
constexpr int PageRuns = 21;
constexpr int TreeWarehouses = 10000;
constexpr int TreeRuns = 11;
constexpr int Period = DemoCompany::CurrentPeriod;
// The warehouse the script writes into: the demo's semi-finished goods warehouse, which holds
// none of the generated items.
constexpr int ScriptStock = 2;
constexpr double PageTargetMs = 50;
constexpr double PageTargetRatio = 2;
constexpr double ScriptTargetRatio = 3;

const QString TreeTypes = QStringLiteral("(500,502,20291,20293)");
const QString FirstGeneratedStock = QStringLiteral("90.001");
const QString LineBreak = QStringLiteral("\r\n");
const QString RawInsert = QStringLiteral(
    "INSERT INTO ICInvInitial (FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo,FYtdAuxBegQty,FYtdBegBal,"
    "FYtdBegDiff,FYtdAuxReceive,FYtdDebit,FYtdReceiveDiff,FYtdAuxSend,FYtdCredit,FYtdSendDiff,FAuxBegQty,FBegBal,"
    "FBegDiff,FAuxUnitBegQty,FYtdAuxUnitBegQty,FYtdAuxUnitSend,FYtdAuxUnitReceive,FStockInDate,FSecUnitID,"
    "FAuxPropID,FSecCoefficient,FFieldCompose) VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)");

double msSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}


template<class Action>
double timed(const Action &action)
{
    const auto start = Clock::now();
    action();
    return msSince(start);
}

// One line of the table: the service's figure, the raw figure and their ratio, and the target.
void report(const char *what, double figure, double raw, const QString &target = {})
{
    std::printf("  %-52s %10.2f ms %10.2f ms %7.2f   %s\n", what, figure, raw, figure / raw, qPrintable(target));
    std::fflush(stdout);
}

QString verdict(bool met, const QString &target)
{
    return target + (met ? QStringLiteral(" met") : QStringLiteral(" MISSED"));
}

QList<int> generatedItems(const QSqlDatabase &db, int count)
{
    QSqlQuery query = SqlRun::exec(
        db, QStringLiteral("SELECT FItemID FROM t_ICItem WHERE FNumber LIKE '99.%' ORDER BY FItemID"));
    QList<int> ids;
    while (query.next() && ids.size() < count)
        ids.append(query.value(0).toInt());
    return ids;
}

// The figures of one generated row: the year-start rule holds (start = opening + issued - received).
struct ScriptRow
{
    int itemId;
    double received;
    double issued;
    double opening;
    double price;

    double start() const { return opening + issued - received; }
    QString compose() const { return QStringLiteral("%1|0|%2|%3|0").arg(ScriptStock).arg(Period).arg(itemId); }
};

QList<ScriptRow> scriptRows(const QList<int> &items)
{
    QList<ScriptRow> rows;
    for (qsizetype i = 0; i < items.size(); ++i)
        rows.append({items.at(i), double(i % 7 * 10), double(i % 5 * 10), double(i % 97 + 1), 5.0 + i % 13});
    return rows;
}

QString insertScript(const QList<ScriptRow> &rows)
{
    const auto figure = SqlText::number;
    QString script;
    for (const ScriptRow &r : rows) {
        const QStringList values{QStringLiteral("'0'"), QString::number(Period), QString::number(ScriptStock),
                                 QStringLiteral("0"), QString::number(r.itemId), QStringLiteral("1"),
                                 QStringLiteral("''"), figure(r.start()), figure(r.start() * r.price),
                                 QStringLiteral("0"), figure(r.received), figure(r.received * r.price),
                                 QStringLiteral("0"), figure(r.issued), figure(r.issued * r.price),
                                 QStringLiteral("0"), figure(r.opening), figure(r.opening * r.price),
                                 QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("0"),
                                 QStringLiteral("0"), QStringLiteral("'2024-04-01'"), QStringLiteral("0"),
                                 QStringLiteral("0"), QStringLiteral("0"),
                                 QLatin1Char('\'') + r.compose() + QLatin1Char('\'')};
        // The entry grid's statement for a new item row, as it writes it.
        script += SaveScript::itemInsertHead() + values.join(QLatin1Char(',')) + QLatin1Char(')') + LineBreak;
    }
    return script;
}

void rawInserts(const QSqlDatabase &db, const QList<ScriptRow> &rows)
{
    QSqlDatabase conn = db;
    conn.transaction();
    {
        QSqlQuery insert(conn);
        if (!insert.prepare(RawInsert))
            SqlRun::fail(insert, RawInsert);
        for (const ScriptRow &r : rows) {
            const QVariantList values{QStringLiteral("0"), Period, ScriptStock, 0, r.itemId, 1, QStringLiteral(""),
                                      r.start(), r.start() * r.price, 0.0, r.received, r.received * r.price, 0.0,
                                      r.issued, r.issued * r.price, 0.0, r.opening, r.opening * r.price, 0.0,
                                      0.0, 0.0, 0.0, 0.0, QStringLiteral("2024-04-01"), 0, 0, 0.0, r.compose()};
            for (qsizetype v = 0; v < values.size(); ++v)
                insert.bindValue(int(v), values.at(v));
            if (!insert.exec())
                SqlRun::fail(insert, RawInsert);
        }
    }
    conn.commit();
}

void benchScript(const QString &backend)
{
    DemoCompany::Options options;
    options.items = ScriptRows;
    const auto set = BenchAccountSet::scratch(backend, options);
    const QSqlDatabase db = set->db();
    const QList<ScriptRow> rows = scriptRows(generatedItems(db, ScriptRows));
    const QString script = insertScript(rows);
    const QString clear = QStringLiteral("DELETE FROM ICInvInitial WHERE FStockID=%1 AND FItemID>=%2")
                              .arg(ScriptStock)
                              .arg(rows.first().itemId);
    LumoMICInitialData data;
    std::vector<double> service;
    std::vector<double> raw;
    for (int run = 0; run <= ScriptRuns; ++run) {
        SqlRun::exec(db, clear);
        const double s = timed([&] { data.UpdateINIData(set->propsString(), script); });
        SqlRun::exec(db, clear);
        const double r = timed([&] { rawInserts(db, rows); });
        if (run == 0)
            continue; // warm-up
        service.push_back(s);
        raw.push_back(r);
    }
    const qint64 written = SqlRun::scalar(db, QStringLiteral("SELECT count(*) FROM ICInvInitial WHERE FStockID=%1 "
                                                             "AND FItemID>=%2")
                                                  .arg(ScriptStock)
                                                  .arg(rows.first().itemId))
                               .toLongLong();
    if (written != rows.size())
        std::printf("  !! the raw insert wrote %lld rows, not %lld\n", written, qlonglong(rows.size()));
    const double ratio = Measure::median(service) / Measure::median(raw);
    report("UpdateINIData, 10,000-row insert script", Measure::median(service), Measure::median(raw),
           backend == BenchAccountSet::Sqlite ? verdict(ratio <= ScriptTargetRatio, QStringLiteral("ratio <= 3"))
                                              : QString());
}

// Reads every value of every row, as a recordset is filled.
qint64 drain(QSqlQuery &query)
{
    qint64 values = 0;
    const int columns = query.record().count();
    while (query.next()) {
        for (int c = 0; c < columns; ++c)
            values += query.value(c).isValid() ? 1 : 0;
    }
    return values;
}

void rawPage(const QSqlDatabase &db, const InitialDataSql &sql, int pageIndex)
{
    const script::BoundSql totals = sql.totals();
    QSqlQuery sums = SqlRun::exec(db, totals.sql, totals.values);
    drain(sums);
    const script::BoundSql page = sql.page(PageWindow(PageSize, pageIndex));
    QSqlQuery rows = SqlRun::exec(db, page.sql, page.values);
    drain(rows);
}

int servicePage(LumoMICInitialData &data, const QString &props, int stockId, int pageIndex)
{
    const std::unique_ptr<Dictionary> result(qobject_cast<Dictionary *>(
        data.FetchYtdInitialData(props, stockId, 0, Period, PageSize, pageIndex, {}, {}, {}, {}, false)));
    const auto rows = takeObject<Recordset>(result->Item(QStringLiteral("Rows")));
    const auto totals = takeObject<Recordset>(result->Item(QStringLiteral("Totals")));
    if (!rows || !totals || totals->RecordCount() != 1)
        qFatal("FetchYtdInitialData gave no rows or no totals record");
    return rows->RecordCount();
}

bool bigSetComplete(const QSqlDatabase &db)
{
    return SqlRun::scalar(db, QStringLiteral("SELECT count(*) FROM t_Stock WHERE FNumber LIKE '90.%'")).toInt() ==
               BigWarehouses &&
           SqlRun::scalar(db, QStringLiteral("SELECT count(*) FROM ICInvInitial")).toLongLong() >= BigRows;
}

void benchPage(const QString &backend, const QString &cacheDir)
{
    DemoCompany::Options options;
    options.items = BigItems;
    options.warehouses = BigWarehouses;
    const auto set = BenchAccountSet::kept(backend, cacheDir, QStringLiteral("initial_1m"), options, bigSetComplete);
    const QSqlDatabase db = set->db();
    const qint64 total = SqlRun::scalar(db, QStringLiteral("SELECT count(*) FROM ICInvInitial")).toLongLong();
    if (set->madeInSeconds() >= 0)
        std::printf("  made the account set of %lld initial rows in %.1f s (%s)\n", total, set->madeInSeconds(),
                    qPrintable(set->acctDb()));
    else
        std::printf("  account set of %lld initial rows made by an earlier run (%s)\n", total,
                    qPrintable(set->acctDb()));

    const int stockId =
        SqlRun::scalar(db, QStringLiteral("SELECT FItemID FROM t_Stock WHERE FNumber=?"), {FirstGeneratedStock}).toInt();
    const auto sql = InitialDataSql::build({stockId, 0, Period}, DialogFilter({{}, {}, {}}, {}), false,
                                           SqlDialect::of(db));
    const int lastPage = int((BigItems + PageSize - 1) / PageSize);
    LumoMICInitialData data;
    for (const int pageIndex : {1, lastPage}) {
        std::vector<double> service;
        std::vector<double> raw;
        int rows = 0;
        for (int run = 0; run <= PageRuns; ++run) {
            const double s = timed([&] { rows = servicePage(data, set->propsString(), stockId, pageIndex); });
            const double r = timed([&] { rawPage(db, sql, pageIndex); });
            if (run == 0)
                continue;
            service.push_back(s);
            raw.push_back(r);
        }
        if (rows != PageSize)
            std::printf("  !! page %d held %d rows\n", pageIndex, rows);
        const double figure = Measure::median(service);
        const double ratio = figure / Measure::median(raw);
        const bool sqlite = backend == BenchAccountSet::Sqlite;
        const QString target = pageIndex == 1 && sqlite
                                   ? verdict(figure <= PageTargetMs && ratio <= PageTargetRatio,
                                             QStringLiteral("<= 50 ms, ratio <= 2"))
                                   : QString();
        const QByteArray what =
            QStringLiteral("FetchYtdInitialData, page %1/%2 of 500 + totals").arg(pageIndex).arg(lastPage).toUtf8();
        report(what.constData(), figure, Measure::median(raw), target);
    }
}

void addStockPlaces(const QSqlDatabase &db)
{
    const SqlDialect &dialect = SqlDialect::of(db);
    QSqlDatabase conn = db;
    conn.transaction();
    {
        QSqlQuery stocks = SqlRun::exec(
            db, QStringLiteral("SELECT FItemID, FNumber FROM t_Stock WHERE FNumber LIKE '90.%' ORDER BY FNumber"));
        BulkInserter insert(db, dialect, QStringLiteral("t_StockPlace"),
                            {QStringLiteral("FStockID"), QStringLiteral("FNumber"), QStringLiteral("FName")});
        while (stocks.next()) {
            insert.add({stocks.value(0), stocks.value(1).toString() + QStringLiteral(".01"),
                        QStringLiteral("货位") + stocks.value(1).toString()});
        }
        insert.flush();
    }
    conn.commit();
}

void rawStocks(const QSqlDatabase &db, const QList<int> &types)
{
    for (const script::BoundSql &sql : {StockQuery::warehouseStatement(types), StockQuery::placeStatement(types)}) {
        QSqlQuery query = SqlRun::exec(db, sql.sql, sql.values);
        drain(query);
    }
}

void benchStocks(const QString &backend)
{
    DemoCompany::Options options;
    options.warehouses = TreeWarehouses;
    const auto set = BenchAccountSet::scratch(backend, options, addStockPlaces);
    const QSqlDatabase db = set->db();
    const QList<int> types = parseTypeList(TreeTypes);
    LumoMICInitialData data;
    std::vector<double> service;
    std::vector<double> raw;
    int nodes = 0;
    for (int run = 0; run <= TreeRuns; ++run) {
        const double s = timed([&] {
            const std::unique_ptr<QObject> rs(data.FetchStocks(set->propsString(), TreeTypes));
            nodes = qobject_cast<Recordset *>(rs.get())->RecordCount();
        });
        const double r = timed([&] { rawStocks(db, types); });
        if (run == 0)
            continue;
        service.push_back(s);
        raw.push_back(r);
    }
    const QByteArray what = QStringLiteral("FetchStocks, %1 tree nodes").arg(nodes).toUtf8();
    report(what.constData(), Measure::median(service), Measure::median(raw));
}

const QString CacheOption = QStringLiteral("--cache");
const QString ScriptCase = QStringLiteral("script");
const QString PageCase = QStringLiteral("page");
const QString StocksCase = QStringLiteral("stocks");

QString cacheFolder(const QStringList &args)
{
    const qsizetype at = args.indexOf(CacheOption);
    if (at >= 0 && at + 1 < args.size())
        return args.at(at + 1);
    return QDir::temp().filePath(QStringLiteral("lumo-bench-cache"));
}

QStringList chosenCases(QStringList args)
{
    args.removeFirst();
    const qsizetype at = args.indexOf(CacheOption);
    if (at >= 0)
        args.remove(at, qMin<qsizetype>(2, args.size() - at));
    return args.isEmpty() ? QStringList{ScriptCase, PageCase, StocksCase} : args;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QString cacheDir = cacheFolder(app.arguments());
    const QStringList cases = chosenCases(app.arguments());
    QStringList backends{BenchAccountSet::Sqlite};
    if (!qEnvironmentVariableIsEmpty(BenchAccountSet::PostgresVariable))
        backends.append(BenchAccountSet::Postgres);
    for (const QString &backend : backends) {
        std::printf("%s\n  %-52s %13s %13s %7s   %s\n", qPrintable(backend), "case (medians)", "service", "raw",
                    "ratio", "target");
        if (cases.contains(ScriptCase))
            benchScript(backend);
        if (cases.contains(PageCase))
            benchPage(backend, cacheDir);
        if (cases.contains(StocksCase))
            benchStocks(backend);
    }
    return 0;
}
