#include "batch/batchsheet.h"

#include "batch/batchtexts.h"
#include "sheet/recordvalues.h"
#include "batch/linebalance.h"

#include "frame/logincontext.h"

#include "frame/automation/recordset.h"

#include "grid/bulkupdate.h"
#include "grid/cellmodel.h"
#include "grid/spreadconsole.h"

namespace {

// The back colour of the cells of a kind that does not balance on its line.
const QColor UnbalancedColor{255, 199, 160};

constexpr int BatchNoWidth = 100;
constexpr int FigureWidth = 106;
constexpr int DateWidth = 96;
constexpr int ShelfLifeWidth = 76;
constexpr int RowHeaderWidth = 28;

// Record fields in the order a line reads them.
namespace Field {
const QString QtyDecimal = QStringLiteral("FQtyDecimal");
const QString Lock = QStringLiteral("FLock");
const QString BatchNo = QStringLiteral("FBatchNo");
const QString BillInterID = QStringLiteral("FBillInterID");
const QString StockInDate = QStringLiteral("FStockInDate");
const QString KFDate = QStringLiteral("FKFDate");
const QString KFPeriod = QStringLiteral("FKFPeriod");
const QString SNListID = QStringLiteral("FSNListID");
} // namespace Field

// The figure fields, columns 2 to 17 in order.
const QStringList FigureFields{
    QStringLiteral("FYtdAuxBegQty"), QStringLiteral("FYtdAuxUnitBegQty"), QStringLiteral("FYtdBegBal"),
    QStringLiteral("FYtdBegDiff"),   QStringLiteral("FYtdAuxReceive"),    QStringLiteral("FYtdAuxUnitReceive"),
    QStringLiteral("FYtdDebit"),     QStringLiteral("FYtdReceiveDiff"),   QStringLiteral("FYtdAuxSend"),
    QStringLiteral("FYtdAuxUnitSend"), QStringLiteral("FYtdCredit"),      QStringLiteral("FYtdSendDiff"),
    QStringLiteral("FAuxBegQty"),    QStringLiteral("FAuxUnitBegQty"),    QStringLiteral("FBegBal"),
    QStringLiteral("FBegDiff"),
};

constexpr int HiddenAlways[] = {BatCol::BillInterID, BatCol::Flag, BatCol::LoadedBatchNo, BatCol::SNListID};

bool isEmptyValue(const QVariant &v)
{
    return !v.isValid() || v.isNull() || v.toString().trimmed().isEmpty();
}

} // namespace

BatchSheet::BatchSheet(CellModel &cells)
    : m_cells(cells)
{
}

QString batchModeCaption(const ItemInfo &item, bool quantitiesOnly)
{
    if (!item.batchManaged)
        return ResString(quantitiesOnly ? BatchMsg::ModeQty : BatchMsg::ModeAmount);
    if (quantitiesOnly)
        return ResString(BatchMsg::ModeBatchQty);
    return ResString(item.plannedCost() ? BatchMsg::ModeBatchPlanned : BatchMsg::ModeBatchAmount);
}

void BatchSheet::build(const ItemInfo &item, const BatchSheetLook &look)
{
    m_item = item;
    m_look = look;
    m_inputOpen = false;
    m_cells.reset(1, BatCol::Count);
    BulkUpdate bulk(m_cells);
    for (int col = BatCol::BatchNo; col < BatCol::Count; ++col)
        m_cells.setText(0, col, ResString(BatCol::title(col)));

    for (int col = BatCol::FirstFigure; col <= BatCol::LastFigure; ++col) {
        const bool quantity = isQuantityKind(col);
        m_cells.setColStyle(col, SpreadConsole::numberStyle(quantity ? item.qtyDecimal : look.amountScale));
        m_cells.setColWidth(col, FigureWidth);
        const FigureKind kind = kindOf(col);
        const bool amountKind = kind == FigureKind::Amount || kind == FigureKind::Difference;
        // Amounts and differences go only where quantities alone are kept; the mode caption names
        // differences for planned cost, but the columns stay for every item.
        m_cells.setColHidden(col, (amountKind && look.quantitiesOnly)
                                      || (kind == FigureKind::SecQuantity && !look.secondaryShown));
    }
    // A line of an item without batch management has no batch number.
    m_cells.setColStyle(BatCol::BatchNo, CellStyle().setLocked(!item.batchManaged));
    m_cells.setColWidth(BatCol::BatchNo, BatchNoWidth);
    for (int col : {BatCol::StockInDate, BatCol::KFDate}) {
        m_cells.setColStyle(col, CellStyle().setType(Grid::CellType::Date));
        m_cells.setColWidth(col, DateWidth);
    }
    m_cells.setColStyle(BatCol::KFPeriod, SpreadConsole::numberStyle(0));
    m_cells.setColWidth(BatCol::KFPeriod, ShelfLifeWidth);
    for (int col : {BatCol::BillInterID, BatCol::SNListID})
        m_cells.setColStyle(col, CellStyle().setType(Grid::CellType::Number).setDecimals(0));
    for (int col : HiddenAlways)
        m_cells.setColHidden(col, true);
    for (int col : {BatCol::KFDate, BatCol::KFPeriod})
        m_cells.setColHidden(col, !item.shelfLifeManaged);
    m_cells.setColWidth(0, RowHeaderWidth);

    const int totals = m_cells.addRow();
    m_cells.setRowStyle(totals, CellStyle().setLocked(true).setBackColor(look.sumColor));
    m_cells.setText(totals, BatCol::BatchNo, ResString(BatchMsg::TotalsLabel));
    refreshTotals();
}

int BatchSheet::lineCount() const
{
    // Header row, totals row and the input line are not lines.
    return m_cells.rows() - 2 - (m_inputOpen ? 1 : 0);
}

void BatchSheet::fillLines(const Recordset &records, const QDate &defaultStockIn,
                           const std::function<void(int)> &progress)
{
    BulkUpdate bulk(m_cells);
    for (int record = 0; record < records.RecordCount(); ++record) {
        const auto field = [&](const QString &name) { return records.value(record, name); };
        const int row = totalsRow();
        m_cells.insertRowsAt(row);

        const QVariant qtyDecimal = field(Field::QtyDecimal);
        setLineQuantityDecimals(row, isEmptyValue(qtyDecimal) ? m_item.qtyDecimal : qtyDecimal.toInt());
        const bool locked = RecordValues::flag(field(Field::Lock));
        const QString batchNo = field(Field::BatchNo).toString();
        m_cells.setText(row, BatCol::BatchNo, batchNo);
        m_cells.setText(row, BatCol::LoadedBatchNo, batchNo);
        m_cells.setNumber(row, BatCol::BillInterID, field(Field::BillInterID).toDouble());
        for (int col = BatCol::FirstFigure; col <= BatCol::LastFigure; ++col)
            m_cells.setNumber(row, col, field(FigureFields[col - BatCol::FirstFigure]).toDouble());
        const QDate stockIn = RecordValues::date(field(Field::StockInDate));
        m_cells.setValue(row, BatCol::StockInDate, stockIn.isValid() ? stockIn : defaultStockIn);
        m_cells.setValue(row, BatCol::KFDate, RecordValues::date(field(Field::KFDate)));
        const QVariant kfPeriod = field(Field::KFPeriod);
        m_cells.setValue(row, BatCol::KFPeriod, isEmptyValue(kfPeriod) ? QVariant() : QVariant(kfPeriod.toInt()));
        const qint32 snList = field(Field::SNListID).toInt();
        m_cells.setValue(row, BatCol::SNListID, snList > 0 ? QVariant(snList) : QVariant());
        if (locked)
            paintLocked(row);
        if (progress)
            progress(record + 1);
    }
}

int BatchSheet::appendLine(const QDate &stockIn, std::optional<qint32> kfPeriod, qint32 billInterId)
{
    const int row = totalsRow();
    BulkUpdate bulk(m_cells);
    m_cells.insertRowsAt(row);
    setLineQuantityDecimals(row, m_item.qtyDecimal);
    m_cells.setValue(row, BatCol::StockInDate, stockIn);
    // A shelf-life line is taken as produced on its stock-in day, the latest day a save accepts.
    if (kfPeriod) {
        m_cells.setValue(row, BatCol::KFDate, stockIn);
        m_cells.setNumber(row, BatCol::KFPeriod, *kfPeriod);
    }
    m_cells.setNumber(row, BatCol::BillInterID, billInterId);
    markChanged(row);
    return row;
}

void BatchSheet::removeLine(int row)
{
    if (isLine(row))
        m_cells.removeRowsAt(row);
}

BatchLine BatchSheet::line(int row) const
{
    BatchLine line;
    line.row = row;
    line.batchNo = m_cells.text(row, BatCol::BatchNo);
    line.loadedBatchNo = m_cells.text(row, BatCol::LoadedBatchNo);
    for (int col = BatCol::FirstFigure; col <= BatCol::LastFigure; ++col)
        line.setFigure(col, m_cells.number(row, col));
    line.stockInDate = m_cells.value(row, BatCol::StockInDate).toDate();
    line.kfDate = m_cells.value(row, BatCol::KFDate).toDate();
    if (m_cells.value(row, BatCol::KFPeriod).isValid())
        line.kfPeriod = qRound(m_cells.number(row, BatCol::KFPeriod));
    line.billInterId = qRound(m_cells.number(row, BatCol::BillInterID));
    line.snListId = qRound(m_cells.number(row, BatCol::SNListID));
    line.changed = m_cells.text(row, BatCol::Flag) == LineChangedMark;
    line.locked = m_cells.rowStyle(row).locked();
    return line;
}

QList<BatchLine> BatchSheet::lines() const
{
    QList<BatchLine> out;
    out.reserve(lineCount());
    for (int row = 1; row <= lineCount(); ++row)
        out.append(line(row));
    return out;
}

QStringList BatchSheet::otherBatchNumbers(int row) const
{
    QStringList out;
    for (int r = 1; r <= lineCount(); ++r) {
        if (r != row)
            out.append(m_cells.text(r, BatCol::BatchNo));
    }
    return out;
}

qint32 BatchSheet::highestBillInterId() const
{
    qint32 highest = 0;
    for (int row = 1; row <= lineCount(); ++row)
        highest = std::max(highest, qint32(qRound(m_cells.number(row, BatCol::BillInterID))));
    return highest;
}

void BatchSheet::setFigure(int row, int col, double value)
{
    m_cells.setNumber(row, col, value);
}

void BatchSheet::markChanged(int row)
{
    m_cells.setText(row, BatCol::Flag, LineChangedMark);
}

void BatchSheet::markSaved()
{
    BulkUpdate bulk(m_cells);
    for (int row = 1; row <= lineCount(); ++row) {
        m_cells.clearCell(row, BatCol::Flag);
        m_cells.setText(row, BatCol::LoadedBatchNo, m_cells.text(row, BatCol::BatchNo));
    }
}

void BatchSheet::refreshTotals()
{
    BulkUpdate bulk(m_cells);
    const int totals = totalsRow();
    for (int col = BatCol::FirstFigure; col <= BatCol::LastFigure; ++col) {
        double sum = 0;
        for (int row = 1; row <= lineCount(); ++row)
            sum += m_cells.number(row, col);
        m_cells.setNumber(totals, col, sum);
    }
}

void BatchSheet::markUnbalanced(int row, const QList<FigureKind> &kinds)
{
    BulkUpdate bulk(m_cells);
    for (FigureKind kind : {FigureKind::Quantity, FigureKind::SecQuantity, FigureKind::Amount, FigureKind::Difference}) {
        for (int col : LineBalance::columns(kind)) {
            if (kinds.contains(kind))
                m_cells.setCellStyle(row, col, CellStyle().setBackColor(UnbalancedColor));
            else
                m_cells.clearCellStyle(row, col, CellStyle::BackColor);
        }
    }
}

QString BatchSheet::balanceNote(int row) const
{
    if (!isLine(row))
        return {};
    QStringList kinds;
    for (FigureKind kind : {FigureKind::Quantity, FigureKind::SecQuantity, FigureKind::Amount, FigureKind::Difference}) {
        const std::array<int, 4> c = LineBalance::columns(kind);
        if (m_cells.cellStyle(row, c[YearOpeningGroup]).backColor() != UnbalancedColor)
            continue;
        const auto shown = [&](int group) {
            const QString text = m_cells.text(row, c[group]);
            return text.isEmpty() ? QStringLiteral("0") : text;
        };
        kinds << BatchMsg::KindUnbalanced.arg(BatchMsg::KindNames.at(int(kind)), shown(YearOpeningGroup),
                                              shown(PeriodOpeningGroup), shown(SentGroup), shown(ReceivedGroup));
    }
    return kinds.isEmpty() ? QString() : BatchMsg::LineUnbalanced.arg(row).arg(kinds.join(QStringLiteral("；")));
}

void BatchSheet::openInputLine()
{
    if (m_inputOpen)
        return;
    BulkUpdate bulk(m_cells);
    const int row = m_cells.addRow();
    m_inputOpen = true;
    m_cells.setRowStyle(row, CellStyle().setLocked(true).setBackColor(m_look.inputColor));
    m_cells.setText(row, BatCol::BatchNo, ResString(BatchMsg::ApportionLabel));
    for (int col : {BatCol::YtdBegBal, BatCol::BegBal})
        m_cells.setCellStyle(row, col, CellStyle().setLocked(false));
}

void BatchSheet::closeInputLine()
{
    if (!m_inputOpen)
        return;
    m_cells.removeRowsAt(inputRow());
    m_inputOpen = false;
}

double BatchSheet::inputTotal(int col) const
{
    return m_inputOpen ? m_cells.number(inputRow(), col) : 0.0;
}

QList<std::optional<double>> BatchSheet::quantities(int col) const
{
    QList<std::optional<double>> out;
    for (int row = 1; row <= lineCount(); ++row) {
        if (m_cells.value(row, col).isValid())
            out.append(m_cells.number(row, col));
        else
            out.append(std::nullopt);
    }
    return out;
}

void BatchSheet::resetQuantityDecimals(int col)
{
    BulkUpdate bulk(m_cells);
    for (int row = 1; row <= lineCount(); ++row)
        m_cells.setCellStyle(row, col, CellStyle().setDecimals(m_item.qtyDecimal));
}

void BatchSheet::setLineQuantityDecimals(int row, int decimals)
{
    for (int col = BatCol::FirstFigure; col <= BatCol::LastFigure; ++col) {
        if (isQuantityKind(col))
            m_cells.setCellStyle(row, col, CellStyle().setDecimals(decimals));
    }
}

void BatchSheet::paintLocked(int row)
{
    m_cells.setRowStyle(row, CellStyle().setLocked(true).setBackColor(m_look.lockColor));
}
