// Renders a small sheet offscreen and writes it as a PNG, to look at the grid without a display:
//   grid_screenshot [file.png]     (default /tmp/grid.png)
#include "grid/bulkupdate.h"
#include "grid/cellmodel.h"
#include "grid/spreadconsole.h"
#include "grid/spreadgrid.h"

#include <QApplication>
#include <QDate>
#include <QTableView>

namespace {

const QColor LockColor{248, 237, 254};
const QColor BatManColor{222, 254, 226};
const QColor SumColor{255, 238, 239};

enum Col { Mark = 1, Code, Name, Unit, Batch, Qty, Amount, StockIn, Method, ColCount };

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QString file = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("/tmp/grid.png");

    SpreadGrid grid;
    CellModel &cells = *grid.cells();
    cells.reset(1, ColCount);
    {
        BulkUpdate bulk(cells);
        const QStringList titles{QString(), QStringLiteral("物料代码"), QStringLiteral("物料名称"),
                                 QStringLiteral("单位"), QStringLiteral("批次/顺序号"),
                                 QStringLiteral("本年累计收入数量(辅助)"), QStringLiteral("年初金额"),
                                 QStringLiteral("入库日期"), QStringLiteral("计价方法")};
        for (int c = Mark; c < ColCount; ++c)
            cells.setText(Grid::HeaderRow, c, titles[c - Mark]);
        cells.setColStyle(Qty, SpreadConsole::numberStyle(2));
        cells.setColStyle(Amount, SpreadConsole::numberStyle(2));
        cells.setColStyle(StockIn, CellStyle().setType(Grid::CellType::Date));
        cells.setColStyle(Name, CellStyle().setLocked(true).setBackColor(LockColor));
        cells.setColStyle(Method, CellStyle().setType(Grid::CellType::List).setComboList(
                                      {QStringLiteral("加权平均法"), QStringLiteral("先进先出法")}));

        const struct {
            const char *code;
            const char *name;
            double qty;
            double amount;
            bool batch;
        } items[] = {{"01.001", "螺纹钢 Φ12", 1250.5, 4875.95, false},
                     {"01.002", "冷轧板 1.0mm", 320, 2.675, true},
                     {"02.010", "电机 Y132M-4", -3, -1234567.891, false},
                     {"03.100", "包装箱", 0, 0, false}};
        for (const auto &item : items) {
            const int row = cells.addRow();
            cells.setText(row, Code, QString::fromUtf8(item.code));
            cells.setText(row, Name, QString::fromUtf8(item.name));
            cells.setText(row, Unit, QStringLiteral("件"));
            cells.setNumber(row, Qty, item.qty);
            cells.setNumber(row, Amount, item.amount);
            cells.setValue(row, StockIn, QDate(2024, 1, 1));
            cells.setText(row, Method, QStringLiteral("加权平均法"));
            if (item.batch) {
                cells.setText(row, Mark, QStringLiteral("+"));
                SpreadConsole::setButtonCell(cells, row, Batch);
                cells.setCellStyle(row, Batch, CellStyle().setButtonColor(BatManColor));
                cells.setText(row, Batch, QStringLiteral("B2024-01"));
            }
        }
        const int total = cells.addRow();
        cells.setText(total, Code, QStringLiteral("总计"));
        cells.setNumber(total, Qty, 1567.5);
        cells.setNumber(total, Amount, -1229689.266);
        cells.setRowStyle(total, CellStyle().setBackColor(SumColor).setLocked(true));
    }
    cells.setColWidth(Mark, 24);
    cells.setColWidth(Name, 120);
    cells.setColWidth(Qty, 110);
    cells.setColWidth(Amount, 120);

    grid.resize(900, 220);
    grid.show();
    grid.select(2, Qty);
    return grid.grab().save(file) ? 0 : 1;
}
