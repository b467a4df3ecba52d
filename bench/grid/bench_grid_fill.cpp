// Figures of the spreadsheet grid at the size of a large warehouse page:
//  - filling 5,000 and 50,000 rows x 36 columns through a shown grid (one bulk update),
//    beside filling a plain std::vector with the same values;
//  - giving every quantity cell its item's decimals, cell by cell, as a load does;
//  - one cell edit through the edit path on a 50,000-row grid, and one row colour, as medians.
// Each case runs in a child process of its own so that its peak RSS (VmHWM) is its own.
//
//   bench_grid_fill            all cases, as a table
//   bench_grid_fill CASE ROWS  one case (raw-fill, grid-fill, decimals, edit)

#include "grid/bulkupdate.h"
#include "grid/cellmodel.h"
#include "grid/spreadconsole.h"
#include "grid/spreadgrid.h"

#include "measure.h"

#include <QApplication>
#include <QFile>
#include <QTableView>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int Cols = 37; // the header column and 36 data columns, as the entry grid has
constexpr int TextColEnd = 12; // columns 1..11 carry texts, 12..36 figures
constexpr int QuantityCols[] = {12, 13, 16, 17, 20, 21, 24, 25};
constexpr int EditCol = 14;
constexpr int EditSamples = 2001;

double msSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}


QString textValue(int row, int col)
{
    return QStringLiteral("T%1.%2").arg(row).arg(col);
}

double figureValue(int row, int col)
{
    return row * 1.25 + col * 0.01;
}

struct RawCell {
    QString text;
    double number = 0;
};

double rawFill(int rows)
{
    const auto start = Clock::now();
    std::vector<RawCell> cells(size_t(rows + 1) * Cols);
    for (int r = 1; r <= rows; ++r) {
        for (int c = 1; c < Cols; ++c) {
            RawCell &cell = cells[size_t(r) * Cols + size_t(c)];
            if (c < TextColEnd)
                cell.text = textValue(r, c);
            else
                cell.number = figureValue(r, c);
        }
    }
    return msSince(start);
}

void layOut(SpreadGrid &grid)
{
    CellModel &cells = *grid.cells();
    cells.reset(1, Cols);
    for (int c = 1; c < Cols; ++c) {
        cells.setText(Grid::HeaderRow, c, QStringLiteral("列%1").arg(c));
        if (c >= TextColEnd)
            cells.setColStyle(c, SpreadConsole::numberStyle(2));
    }
    grid.resize(1400, 900);
    grid.show();
    QApplication::processEvents();
}

double gridFill(SpreadGrid &grid, int rows)
{
    CellModel &cells = *grid.cells();
    const auto start = Clock::now();
    {
        BulkUpdate bulk(cells);
        cells.setRows(rows + 1);
        for (int r = 1; r <= rows; ++r) {
            for (int c = 1; c < Cols; ++c) {
                if (c < TextColEnd)
                    cells.setText(r, c, textValue(r, c));
                else
                    cells.setNumber(r, c, figureValue(r, c));
            }
        }
    }
    QApplication::processEvents();
    return msSince(start);
}


double microsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

// One case, in this process; prints "value peakRssMb [baseline]" for the parent to read.
int runCase(const char *name, int rows)
{
    if (std::strcmp(name, "raw-fill") == 0) {
        const double ms = rawFill(rows);
        std::printf("%f %f\n", ms, Measure::peakRssMb());
        return 0;
    }

    SpreadGrid grid;
    layOut(grid);
    const double fillMs = gridFill(grid, rows);
    if (std::strcmp(name, "grid-fill") == 0) {
        std::printf("%f %f\n", fillMs, Measure::peakRssMb());
        return 0;
    }

    CellModel &cells = *grid.cells();
    if (std::strcmp(name, "decimals") == 0) {
        const auto start = Clock::now();
        {
            BulkUpdate bulk(cells);
            for (int r = 1; r <= rows; ++r) {
                for (const int c : QuantityCols)
                    SpreadConsole::setNumberCell(cells, r, c, r % 5);
            }
        }
        QApplication::processEvents();
        std::printf("%f %f\n", msSince(start), Measure::peakRssMb());
        return 0;
    }

    if (std::strcmp(name, "edit") != 0) {
        std::fprintf(stderr, "unknown case %s\n", name);
        return 1;
    }

    // Edits spread over the whole grid, each with its own value so that none is "unchanged",
    // with the view shown and scrolled into the middle.
    std::vector<double> gridSamples;
    std::vector<double> rawSamples;
    std::vector<double> colourSamples;
    std::vector<double> raw(size_t(rows + 1) * Cols);
    grid.view()->scrollTo(cells.cellIndex(rows / 2, EditCol));
    QApplication::processEvents();
    for (int i = 0; i < EditSamples; ++i) {
        const int row = 1 + (i * 7919) % rows;
        const QString input = QString::number(i + 0.5);

        auto start = Clock::now();
        cells.editCell(row, EditCol, input);
        gridSamples.push_back(microsSince(start));

        start = Clock::now();
        bool ok = false;
        raw[size_t(row) * Cols + EditCol] = input.toDouble(&ok);
        rawSamples.push_back(microsSince(start));

        start = Clock::now();
        grid.setRowBackColor(row, (i % 2) ? QColor(255, 238, 239) : QColor(222, 234, 254));
        colourSamples.push_back(microsSince(start));
    }
    QApplication::processEvents();
    std::printf("%f %f %f %f\n", Measure::median(gridSamples), Measure::peakRssMb(), Measure::median(rawSamples), Measure::median(colourSamples));
    return 0;
}

struct Figures {
    double value = -1;
    double rssMb = -1;
    double baseline = -1;
    double rowColour = -1;
};

// Runs one case in a child process, so that the peak RSS it reports is that case's alone.
Figures runChild(const QString &self, const char *name, int rows)
{
    const QByteArray command =
        QStringLiteral("'%1' %2 %3").arg(self, QString::fromLatin1(name)).arg(rows).toLocal8Bit();
    Figures out;
    if (FILE *child = popen(command.constData(), "r")) {
        if (std::fscanf(child, "%lf %lf %lf %lf", &out.value, &out.rssMb, &out.baseline, &out.rowColour) < 2)
            out = Figures();
        pclose(child);
    }
    return out;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    if (argc == 3) {
        QApplication app(argc, argv);
        return runCase(argv[1], std::atoi(argv[2]));
    }

    const QString self = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    std::printf("%-36s %6s %12s %12s %7s %10s %10s\n", "case", "rows", "grid", "raw", "ratio", "grid RSS", "raw RSS");
    for (const int rows : {5000, 50000}) {
        const Figures grid = runChild(self, "grid-fill", rows);
        const Figures raw = runChild(self, "raw-fill", rows);
        std::printf("%-36s %6d %9.1f ms %9.1f ms %7.2f %7.1f MB %7.1f MB\n", "fill 36 columns (one bulk update)", rows,
                    grid.value, raw.value, grid.value / raw.value, grid.rssMb, raw.rssMb);
    }
    const Figures decimals = runChild(self, "decimals", 50000);
    std::printf("%-36s %6d %9.1f ms %12s %7s %7.1f MB\n", "decimals per cell, 8 cells a row", 50000, decimals.value, "",
                "", decimals.rssMb);
    const Figures edit = runChild(self, "edit", 50000);
    std::printf("%-36s %6d %9.2f us %9.3f us %7.1f %7.1f MB\n", "one cell edit, median of 2001", 50000, edit.value,
                edit.baseline, edit.value / edit.baseline, edit.rssMb);
    std::printf("%-36s %6d %9.2f us\n", "one row colour, median of 2001", 50000, edit.rowColour);
    return 0;
}
