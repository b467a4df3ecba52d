#include "entrygridlayout.h"

#include "frame/logincontext.h"
#include "frame/valuationmethods.h"

#include "grid/cellmodel.h"
#include "grid/spreadconsole.h"
#include "grid/spreadgrid.h"

#include <QColor>
#include <QStringList>

#include <algorithm>

namespace {

constexpr int IndustryColourSize = 1;

const char *const headers[EntryCol::Count] = {
    "", "", "FItemID", "物料代码", "物料名称", "规格型号", "单位", "换算率", "辅助单位", "计价方法", "辅助属性",
    "批次/顺序号", "年初数量", "年初数量(辅助)", "年初金额", "年初差异", "本年累计收入数量", "本年累计收入数量(辅助)",
    "本年累计收入金额", "本年累计收入差异", "本年累计发出数量", "本年累计发出数量(辅助)", "本年累计发出金额",
    "本年累计发出差异", "期初数量", "期初数量(辅助)", "期初金额", "期初差异", "入库日期", "生产/采购日期",
    "保质期(天)", "FUnitID", "标志位", "", "", "", ""};

const int hiddenWhenBuilt[] = {EntryCol::ItemID, EntryCol::SecUnit, EntryCol::YtdBegAuxQty, EntryCol::YtdBegDiff,
                               EntryCol::ReceiveAuxQty, EntryCol::ReceiveDiff, EntryCol::SendAuxQty,
                               EntryCol::SendDiff, EntryCol::BegAuxQty, EntryCol::BegDiff, EntryCol::UnitID,
                               EntryCol::Flag, EntryCol::AuxPropID, EntryCol::AuxClassID, EntryCol::SecUnitID,
                               EntryCol::FieldCompose};

const QColor HeaderShade(174, 198, 230);
const QColor GridLines(162, 162, 162);
const QColor Selection(10, 36, 106);

// Room left and right of a cell's text.
constexpr int CellPadding = 12;
// A wider column is a slip of the mouse or a broken settings file, not a choice.
constexpr int MaxRememberedWidth = 2000;

int defaultWidth(int col)
{
    switch (col) {
    // Narrow enough that the year-start amount is on screen beside the tree at 1280 pixels.
    case EntryCol::Mark: return 22;
    case EntryCol::Number: return 96;
    case EntryCol::Name: return 120;
    case EntryCol::Model: return 90;
    case EntryCol::Unit: return 48;
    case EntryCol::SecCoefficient: return 84;
    case EntryCol::Track: return 84;
    case EntryCol::AuxProp: return 72;
    case EntryCol::Batch: return 84;
    case EntryCol::StockInDate: case EntryCol::KFDate: return 96;
    default: return 110;
    }
}

} // namespace

namespace EntryGridLayout {

QString headerText(int col, int industryType)
{
    if (col < 0 || col >= EntryCol::Count)
        return {};
    if (industryType == IndustryColourSize && col == EntryCol::AuxProp)
        return ResString(QStringLiteral("颜色尺码"));
    if (industryType == IndustryColourSize && col == EntryCol::KFPeriod)
        return {};
    return ResString(QString::fromUtf8(headers[col]));
}

void build(SpreadGrid &grid, int industryType)
{
    CellModel &cells = *grid.cells();
    cells.reset(1, EntryCol::Count);
    for (int col = 1; col < EntryCol::Count; ++col)
        cells.setText(0, col, headerText(col, industryType));
    restoreWidths(grid);
    CellStyle date;
    date.setType(Grid::CellType::Date);
    cells.setColStyle(EntryCol::StockInDate, date);
    cells.setColStyle(EntryCol::KFDate, date);
    for (int col : {EntryCol::SecCoefficient, EntryCol::YtdBegAuxQty, EntryCol::ReceiveAuxQty, EntryCol::SendAuxQty,
                    EntryCol::BegAuxQty})
        cells.setColStyle(col, SpreadConsole::numberStyle(0));
    CellStyle unlocked;
    unlocked.setLocked(false);
    cells.setColStyle(EntryCol::StockInDate, unlocked);
    for (int col : hiddenWhenBuilt)
        cells.setColHidden(col, true);
    if (industryType == IndustryColourSize) {
        cells.setColHidden(EntryCol::Batch, true);
        cells.setColHidden(EntryCol::KFPeriod, true);
    }
    grid.setHeaderColor(HeaderShade);
    grid.setGridLineColor(GridLines);
    grid.setSelectionColor(Selection);
    grid.setSelectionTextColor(Qt::white);
}

void showAmounts(SpreadGrid &grid, bool keepsAmounts)
{
    // The difference columns stay as built: hidden until planned cost shows them.
    for (int col : {EntryCol::YtdBegBal, EntryCol::Debit, EntryCol::Credit, EntryCol::BegBal})
        grid.cells()->setColHidden(col, !keepsAmounts);
}

void setItemHeaders(SpreadGrid &grid, bool itemRows)
{
    static const char *const accountHeaders[] = {"FAccountID", "科目代码", "科目名称", "借贷方向"};
    for (int col = EntryCol::ItemID; col <= EntryCol::Model; ++col)
        grid.cells()->setText(0, col, itemRows ? ResString(QString::fromUtf8(headers[col]))
                                               : ResString(QString::fromUtf8(accountHeaders[col - EntryCol::ItemID])));
}

void restoreWidths(SpreadGrid &grid)
{
    for (int col = 1; col < EntryCol::Count; ++col)
        grid.cells()->setColWidth(col, defaultWidth(col));
    // The valuation column is as wide as its longest name in the grid's font.
    int valuation = defaultWidth(EntryCol::Track);
    for (int code : {Valuation::WeightedAverage, Valuation::MovingAverage, Valuation::Fifo, Valuation::Lifo,
                     Valuation::BatchMovingAverage, Valuation::PlannedCost, Valuation::BatchFifo})
        valuation = std::max(valuation, grid.fontMetrics().horizontalAdvance(Valuation::name(code)) + CellPadding);
    grid.cells()->setColWidth(EntryCol::Track, valuation);
}

QString widthsText(const SpreadGrid &grid)
{
    QStringList widths;
    for (int col = 1; col < EntryCol::Count; ++col)
        widths << QString::number(grid.cells()->colWidth(col));
    return widths.join(QLatin1Char(','));
}

void applyWidths(SpreadGrid &grid, const QString &text)
{
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() != EntryCol::Count - 1)
        return;
    QList<int> widths;
    for (const QString &part : parts) {
        bool ok = false;
        const int width = part.toInt(&ok);
        if (!ok || width < 0 || width > MaxRememberedWidth)
            return;
        widths << width;
    }
    for (int col = 1; col < EntryCol::Count; ++col)
        grid.cells()->setColWidth(col, widths.at(col - 1));
}

} // namespace EntryGridLayout
