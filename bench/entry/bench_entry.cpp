// Figures of the entry control on a demo account set with 50,000 generated items in one
// warehouse:
//  - filling the entry grid from a page of item rows as the data service returns it (the
//    column formats and the item rows, in one bulk update) with 5,000 and 50,000 rows, beside
//    copying the same values into a plain vector;
//  - one figure typed into the control's grid of 50,000 rows until it is validated against its
//    group and its row flagged, beside writing the cell without the control, as medians;
//  - Show of the control on an account set of 20,000 warehouses (its tree, the first node's rows),
//    beside reading the warehouses with one query into a plain tree widget.
// Each case runs in a child process of its own so that its peak RSS (VmHWM) is its own.
//
//   bench_entry [--cache DIR]       all cases, as a table (the account set is kept in DIR)
//   bench_entry CASE ROWS ACCTDB    one case (raw-fill, grid-fill, edit, show)

#include "benchaccountsets.h"

#include "db/accountset.h"
#include "db/sqlrun.h"
#include "services/sharedpropertystore.h"

#include "sheet/entrygridlayout.h"
#include "sheet/entrysheet.h"
#include "entry/icinitctl.h"
#include "sheet/itemrows.h"
#include "sheet/navtree.h"

#include "frame/prompter.h"
#include "frame/sysparams.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/recordset.h"
#include "frame/automation/progids.h"

#include "grid/bulkupdate.h"
#include "grid/cellmodel.h"
#include "grid/spreadgrid.h"

#include "measure.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QTreeWidget>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int BigItems = 50000;
constexpr int TreeWarehouses = 20000;
constexpr int VolumeStock = 2; // the semi-finished goods warehouse holds the generated items
constexpr int EditSamples = 1001;
const QString CacheOption = QStringLiteral("--cache");

double msSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double microsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}



QString propsString(const QString &acctDb)
{
    return QStringLiteral("UserName=演示员;UserID=16;AcctDB={%1};").arg(acctDb);
}

// The login the control takes when it is shown.
void publishLogin(const QString &props)
{
    SharedPropertyStore::instance().setValue(QCoreApplication::applicationPid(), SharedPropertyStore::PropsStringKey,
                                             props);
}

// One page of the volume warehouse's item rows, as the control asks the data service for it.
std::unique_ptr<Recordset> fetchItemRows(const QString &acctDb, int rows)
{
    const std::unique_ptr<QObject> data = CreateObject(ProgId::MICInitialData);
    const std::unique_ptr<Dictionary> page = takeObject<Dictionary>(Dispatch::call(
        data.get(), QStringLiteral("FetchYtdInitialData"),
        {propsString(acctDb), VolumeStock, 0, DemoCompany::CurrentPeriod, rows, 1, QString(), QString(), QString(),
         QString(), false}));
    return page ? takeObject<Recordset>(page->Item(QStringLiteral("Rows"))) : nullptr;
}

int rawFill(const QString &acctDb, int rows)
{
    const std::unique_ptr<Recordset> items = fetchItemRows(acctDb, rows);
    if (!items || items->RecordCount() != rows)
        return 1;
    const auto start = Clock::now();
    const int fields = items->FieldCount();
    std::vector<QVariant> values;
    values.reserve(size_t(rows) * size_t(fields));
    for (int r = 0; r < rows; ++r) {
        for (int f = 0; f < fields; ++f)
            values.push_back(items->value(r, f));
    }
    std::printf("%f %f\n", msSince(start), Measure::peakRssMb());
    return 0;
}

int gridFill(const QString &acctDb, int rows)
{
    SpreadGrid grid;
    grid.resize(1200, 800);
    grid.show();
    EntryGridLayout::build(grid, 0);
    const std::unique_ptr<Recordset> items = fetchItemRows(acctDb, rows);
    if (!items || items->RecordCount() != rows)
        return 1;
    QHash<int, ItemInfo> infos;
    // The sheet reads the row colours from the settings as a load does.
    const EntrySheet sheet(grid);
    const RowColors &colors = sheet.colors();
    CellModel &cells = *grid.cells();
    const auto start = Clock::now();
    {
        BulkUpdate bulk(cells);
        ItemRows::applyColumnFormats(cells, 2, 2, colors);
        ItemRows::fillItemRows(cells, *items, false, 2, colors, infos);
    }
    QApplication::processEvents();
    const double ms = msSince(start);
    if (cells.rows() != rows + 1)
        return 1;
    std::printf("%f %f\n", ms, Measure::peakRssMb());
    return 0;
}

int edit(const QString &acctDb, int rows)
{
    ScriptedPrompter prompter;
    ScopedPrompter scoped(&prompter);
    publishLogin(propsString(acctDb));

    ICInitCtl control;
    control.resize(1400, 900);
    control.show();
    if (!control.Show(nullptr, true))
        return 1;
    control.setMlngPerPageSize(rows);
    control.tree()->clickNode(QStringLiteral("K%1").arg(VolumeStock));
    SpreadGrid &grid = *control.grid();
    if (control.sheet()->lastDataRow() != rows)
        return 1;
    QApplication::processEvents();

    std::vector<double> controlSamples;
    std::vector<double> rawSamples;
    int flagged = 0;
    for (int i = 0; i < EditSamples; ++i) {
        const int row = 1 + int((qint64(i) * 7919) % rows);
        const double quantity = grid.number(row, EntryCol::BegQty) + 1 + i % 5;
        auto start = Clock::now();
        const bool accepted = grid.editCell(row, EntryCol::BegQty, quantity);
        controlSamples.push_back(microsSince(start));
        if (accepted && grid.TextMatrix(row, EntryCol::Flag) == QLatin1String("1"))
            ++flagged;

        start = Clock::now();
        grid.cells()->setNumber(row, EntryCol::BegAuxQty, quantity);
        rawSamples.push_back(microsSince(start));
    }
    QApplication::processEvents();
    if (flagged != EditSamples || !prompter.messages().isEmpty())
        return 1;
    std::printf("%f %f %f\n", Measure::median(controlSamples), Measure::peakRssMb(), Measure::median(rawSamples));
    return 0;
}

int show(const QString &acctDb, int warehouses)
{
    ScriptedPrompter prompter;
    ScopedPrompter scoped(&prompter);
    publishLogin(propsString(acctDb));
    double rawMs = 0;
    {
        QTreeWidget plain;
        plain.show();
        const auto start = Clock::now();
        QSqlQuery stocks =
            SqlRun::exec(AccountSet::open(acctDb).database(), QStringLiteral("SELECT FItemID, FNumber, FName FROM t_Stock"));
        QList<QTreeWidgetItem *> items;
        while (stocks.next()) {
            auto *item = new QTreeWidgetItem({stocks.value(1).toString() + QLatin1Char('|') + stocks.value(2).toString()});
            item->setData(0, Qt::UserRole, stocks.value(0));
            items.append(item);
        }
        plain.addTopLevelItems(items);
        QApplication::processEvents();
        rawMs = msSince(start);
    }
    ICInitCtl control;
    control.resize(1400, 900);
    control.show();
    const auto start = Clock::now();
    if (!control.Show(nullptr, true))
        return 1;
    QApplication::processEvents();
    const double ms = msSince(start);
    if (control.tree()->nodeKeys().size() < warehouses || !prompter.messages().isEmpty())
        return 1;
    std::printf("%f %f %f\n", ms, Measure::peakRssMb(), rawMs);
    return 0;
}

int runCase(const char *name, int rows, const QString &acctDb)
{
    if (qstrcmp(name, "show") == 0)
        return show(acctDb, rows);
    if (qstrcmp(name, "raw-fill") == 0)
        return rawFill(acctDb, rows);
    if (qstrcmp(name, "grid-fill") == 0)
        return gridFill(acctDb, rows);
    if (qstrcmp(name, "edit") == 0)
        return edit(acctDb, rows);
    std::fprintf(stderr, "unknown case %s\n", name);
    return 2;
}

struct Figures {
    double value = -1;
    double rssMb = -1;
    double baseline = -1;
};

// Runs one case in a child process, so that the peak RSS it reports is that case's alone.
Figures runChild(const QString &self, const char *name, int rows, const QString &acctDb)
{
    const QByteArray command =
        QStringLiteral("'%1' %2 %3 '%4'").arg(self, QString::fromLatin1(name)).arg(rows).arg(acctDb).toLocal8Bit();
    Figures out;
    if (FILE *child = popen(command.constData(), "r")) {
        if (std::fscanf(child, "%lf %lf %lf", &out.value, &out.rssMb, &out.baseline) < 2)
            out = Figures();
        pclose(child);
    }
    return out;
}

bool volumeComplete(const QSqlDatabase &db)
{
    return SqlRun::scalar(db, QStringLiteral("SELECT count(*) FROM ICInvInitial WHERE FStockID=%1").arg(VolumeStock))
               .toInt()
           >= BigItems;
}

QString cacheFolder(const QStringList &args)
{
    const qsizetype at = args.indexOf(CacheOption);
    if (at >= 0 && at + 1 < args.size())
        return args.at(at + 1);
    return QDir::temp().filePath(QStringLiteral("lumo-bench-cache"));
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    if (argc == 4) {
        QApplication app(argc, argv);
        return runCase(argv[1], std::atoi(argv[2]), QString::fromLocal8Bit(argv[3]));
    }

    QString acctDb;
    QString treeDb;
    {
        QCoreApplication app(argc, argv);
        DemoCompany::Options options;
        options.items = BigItems;
        const QString cacheDir = cacheFolder(app.arguments());
        QDir().mkpath(cacheDir);
        const auto set = BenchAccountSet::kept(BenchAccountSet::Sqlite, cacheDir, QStringLiteral("entry_50k"), options,
                                               volumeComplete);
        acctDb = set->acctDb();
        if (set->madeInSeconds() >= 0)
            std::printf("made the account set in %.1f s (%s)\n", set->madeInSeconds(), qPrintable(acctDb));
        else
            std::printf("account set made by an earlier run (%s)\n", qPrintable(acctDb));
        DemoCompany::Options many;
        many.warehouses = TreeWarehouses;
        const auto tree = BenchAccountSet::kept(BenchAccountSet::Sqlite, cacheDir, QStringLiteral("tree_20k"), many,
                                                [](const QSqlDatabase &db) {
                                                    return SqlRun::scalar(db, QStringLiteral("SELECT count(*) FROM t_Stock"))
                                                               .toInt()
                                                           >= TreeWarehouses;
                                                });
        treeDb = tree->acctDb();
    }

    const QString self = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    std::printf("%-40s %6s %12s %12s %7s %10s %10s\n", "case", "rows", "entry", "raw", "ratio", "entry RSS",
                "raw RSS");
    for (const int rows : {5000, 50000}) {
        const Figures grid = runChild(self, "grid-fill", rows, acctDb);
        const Figures raw = runChild(self, "raw-fill", rows, acctDb);
        std::printf("%-40s %6d %9.1f ms %9.1f ms %7.2f %7.1f MB %7.1f MB\n", "fill the entry grid from a page", rows,
                    grid.value, raw.value, grid.value / raw.value, grid.rssMb, raw.rssMb);
    }
    const Figures typed = runChild(self, "edit", BigItems, acctDb);
    std::printf("%-40s %6d %9.2f us %9.3f us %7.1f %7.1f MB\n", "one figure typed, median of 1001", BigItems,
                typed.value, typed.baseline, typed.value / typed.baseline, typed.rssMb);
    const Figures shown = runChild(self, "show", TreeWarehouses, treeDb);
    std::printf("%-40s %6d %9.1f ms %9.1f ms %7.2f %7.1f MB\n", "Show, tree of warehouses", TreeWarehouses,
                shown.value, shown.baseline, shown.value / shown.baseline, shown.rssMb);
    return 0;
}
