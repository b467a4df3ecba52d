#include "entrysheet.h"

#include "sheet/entrygridlayout.h"

#include "frame/librarystate.h"
#include "frame/logincontext.h"
#include "frame/sysparams.h"

#include "frame/ctlerrors.h"
#include "frame/clients/initialdataclient.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/recordset.h"
#include "frame/automation/progids.h"

#include "grid/bulkupdate.h"
#include "grid/cellmodel.h"
#include "grid/spreadgrid.h"

#include "sheet/rowcolorboard.h"

namespace {

using namespace EntryCol;

const QString ExpandMark = QStringLiteral("+");
const QString FoldMark = QStringLiteral("-");
const QString TotalsText = QStringLiteral("总计");
const QString UseShortNumber = QStringLiteral("UseShortNumber");

QString filterText(const QString &key)
{
    Dictionary *filters = LibraryState::instance().filters();
    return filters ? filters->Item(key).toString() : QString();
}

} // namespace

EntrySheet::EntrySheet(SpreadGrid &grid, QObject *parent)
    : QObject(parent)
    , m_grid(grid)
    , m_colors(RowColors::fromSettings())
{
    m_kinds = {RowKind::Header};
    m_model = grid.cells();
    m_model->setEditRule(this);
    connect(&RowColorBoard::instance(), &RowColorBoard::changed, this, &EntrySheet::setColors);
}

EntrySheet::~EntrySheet()
{
    if (m_model)
        m_model->setEditRule(nullptr);
}

bool EntrySheet::locked(int row, int col, bool styleLocked) const
{
    // Batch lines are shown here and edited in the batch dialog; the grand total is computed.
    if (isBatchLine(row) || isTotalsRow(row))
        return true;
    if (!isItemRow(row))
        return styleLocked;
    // The code is typed on a new row only; everything else comes from the item.
    if (col == Number)
        return !isNewRow(row);
    const ItemInfo *info = itemInfo(int(cells().number(row, ItemID)));
    if (col == AuxProp)
        return !info || info->auxClassId <= 0;
    // A batch item's figures live on its batch lines, which the batch dialog edits.
    if (info && info->hasDetailLines() && ItemRows::isFigureColumn(col))
        return true;
    return styleLocked;
}

CellModel &EntrySheet::cells() const
{
    return *m_grid.cells();
}

int EntrySheet::qtyDecimal() const
{
    return SysParams::toInt(SysParam::QtyDecimal);
}

void EntrySheet::clear()
{
    cells().setRows(1);
    m_kinds = {RowKind::Header};
    m_infos.clear();
    m_expanded.clear();
    m_totals.reset();
    m_pageIndex = 0;
    m_totalPages = 0;
    m_recordCount = 0;
}

std::unique_ptr<Recordset> EntrySheet::fetchPage(int pageIndex)
{
    const std::unique_ptr<Dictionary> page = InitialDataClient(ProgId::MICInitialData).FetchYtdInitialData(
        m_place.stockId, m_place.spId, SysParams::toInt(SysParam::CurrentPeriod), m_pageSize, qMax(1, pageIndex),
        filterText(FilterKey::Filter), filterText(FilterKey::ActualFilter), filterText(FilterKey::VirtualFilter),
        filterText(FilterKey::Sort), m_useShortNumber);
    std::unique_ptr<Recordset> rows = takeObject<Recordset>(page->Item(QStringLiteral("Rows")));
    m_totals = takeObject<Recordset>(page->Item(QStringLiteral("Totals")));
    if (!rows)
        throw LumoError(CtlError::NoInitialDataRows, QStringLiteral("数据服务没有返回初始数据行"),
                        QStringLiteral("FetchYtdInitialData"));
    m_totalPages = page->Item(QStringLiteral("TotalPages")).toInt();
    m_recordCount = page->Item(QStringLiteral("RecordCount")).toInt();
    return rows;
}

void EntrySheet::setColors(const RowColors &colors)
{
    const RowColors before = m_colors;
    m_colors = colors;
    if (!m_model)
        return;
    BulkUpdate bulk(cells());
    ItemRows::applyColumnFormats(cells(), qtyDecimal(), m_amountScale, m_colors);
    for (int row = 1; row < m_kinds.size(); ++row) {
        const QColor back = cells().rowStyle(row).backColor();
        if (m_kinds.at(row) == RowKind::Totals)
            cells().setRowStyle(row, CellStyle().setBackColor(m_colors.sum));
        else if (back.isValid() && back == before.find)
            cells().setRowStyle(row, CellStyle().setBackColor(m_colors.find));
        if (cells().ownStyle(row, Batch).has(CellStyle::ButtonColor))
            cells().setCellStyle(row, Batch, CellStyle().setButtonColor(m_colors.batMan));
    }
}

void EntrySheet::markFound(const QVector<int> &rows)
{
    BulkUpdate bulk(cells());
    clearFound();
    for (int row : rows) {
        if (row > 0 && row < m_kinds.size() && m_kinds.at(row) != RowKind::Totals)
            cells().setRowStyle(row, CellStyle().setBackColor(m_colors.find));
    }
}

void EntrySheet::clearFound()
{
    for (int row = 1; row < m_kinds.size(); ++row) {
        if (m_kinds.at(row) != RowKind::Totals && cells().rowStyle(row).has(CellStyle::BackColor))
            cells().clearRowStyle(row, CellStyle::BackColor);
    }
}

void EntrySheet::loadPage(int pageIndex, int pageSize)
{
    m_useShortNumber = SysParams::toBool(UseShortNumber);
    m_colors = RowColors::fromSettings();
    m_pageSize = pageSize;
    const std::unique_ptr<Recordset> rows = fetchPage(pageIndex);
    m_pageIndex = m_totalPages == 0 ? 0 : qBound(1, pageIndex, m_totalPages);

    BulkUpdate bulk(cells());
    m_expanded.clear();
    ItemRows::applyColumnFormats(cells(), qtyDecimal(), m_amountScale, m_colors);
    ItemRows::fillItemRows(cells(), *rows, m_useShortNumber, qtyDecimal(), m_colors, m_infos);
    m_kinds = QVector<RowKind>(cells().rows(), RowKind::Item);
    m_kinds[0] = RowKind::Header;
    m_keptPageFigures = pageFigures();
    refreshTotals();
}

QString EntrySheet::pageLabel() const
{
    return QStringLiteral("%1/%2").arg(m_pageIndex).arg(m_totalPages);
}

bool EntrySheet::isTotalsRow(int row) const
{
    return row > 0 && row < m_kinds.size() && m_kinds.at(row) == RowKind::Totals;
}

int EntrySheet::totalsRow() const
{
    const int row = int(m_kinds.lastIndexOf(RowKind::Totals));
    return qMax(0, row);
}

bool EntrySheet::isBatchLine(int row) const
{
    return row > 0 && row < m_kinds.size() && m_kinds.at(row) == RowKind::BatchLine;
}

bool EntrySheet::isItemRow(int row) const
{
    return row > 0 && row < m_kinds.size()
           && (m_kinds.at(row) == RowKind::Item || m_kinds.at(row) == RowKind::NewItem);
}

bool EntrySheet::isNewRow(int row) const
{
    return row > 0 && row < m_kinds.size() && m_kinds.at(row) == RowKind::NewItem;
}

int EntrySheet::lastDataRow() const
{
    int row = int(m_kinds.size()) - 1;
    while (row > 0 && m_kinds.at(row) == RowKind::Totals)
        --row;
    return row;
}

const ItemInfo *EntrySheet::itemInfo(int itemId) const
{
    const auto it = m_infos.constFind(itemId);
    return it == m_infos.constEnd() ? nullptr : &it.value();
}

bool EntrySheet::isExpanded(int row) const
{
    return isItemRow(row) && m_expanded.contains(cells().text(row, FieldCompose));
}

bool EntrySheet::toggleBatchLines(int row)
{
    if (!isItemRow(row) || isNewRow(row))
        return false;
    const ItemInfo *info = itemInfo(int(cells().number(row, ItemID)));
    if (!info || !info->hasDetailLines())
        return false;
    const QString key = cells().text(row, FieldCompose);
    if (m_expanded.contains(key)) {
        const int count = m_expanded.take(key);
        cells().removeRowsAt(row + 1, count);
        m_kinds.remove(row + 1, count);
        cells().setText(row, Mark, ExpandMark);
        return true;
    }
    const std::unique_ptr<Recordset> lines = InitialDataClient(ProgId::MICInitialData).FetchYtdBatManDetail(
        SysParams::toInt(SysParam::CurrentPeriod), m_place.stockId, m_place.spId, info->id,
        int(cells().number(row, AuxPropID)), int(cells().number(row, UnitID)), info->batchManaged,
        info->shelfLifeManaged, key);
    const int count = ItemRows::insertBatchLines(cells(), row, *lines, info->qtyDecimal, qtyDecimal());
    m_kinds.insert(row + 1, count, RowKind::BatchLine);
    m_expanded.insert(key, count);
    cells().setText(row, Mark, FoldMark);
    return true;
}

int EntrySheet::addNewRow()
{
    const int row = lastDataRow() + 1;
    cells().insertRowsAt(row, 1);
    m_kinds.insert(row, RowKind::NewItem);
    return row;
}

QString EntrySheet::removeItemRow(int row)
{
    if (!isItemRow(row) || isExpanded(row))
        return {};
    const bool saved = !isNewRow(row) && !cells().text(row, FieldCompose).isEmpty();
    const QString deleted = saved ? QStringLiteral("%1|%2")
                                        .arg(qint64(cells().number(row, ItemID)))
                                        .arg(qint64(cells().number(row, AuxPropID)))
                                  : QString();
    cells().removeRowsAt(row, 1);
    m_kinds.remove(row);
    return deleted;
}

void EntrySheet::markRowSaved(int row)
{
    if (!isNewRow(row))
        return;
    m_kinds[row] = RowKind::Item;
}

QString EntrySheet::auxClassName(qint32 auxClassId) const
{
    for (const ItemInfo &info : m_infos) {
        if (info.auxClassId == auxClassId && !info.auxClassName.isEmpty())
            return info.auxClassName;
    }
    return {};
}

void EntrySheet::removeTotalsRow()
{
    for (int row = int(m_kinds.size()) - 1; row > 0; --row) {
        if (m_kinds.at(row) == RowKind::Totals) {
            cells().removeRowsAt(row, 1);
            m_kinds.remove(row);
        }
    }
}

void EntrySheet::refetchTotals()
{
    // Several pages are summed by the service; after a save its sums are fetched again.
    if (m_totalPages > 1 && m_pageIndex == m_totalPages)
        fetchPage(m_pageIndex);
    // Saved: the kept totals now hold what the grid shows.
    m_keptPageFigures = pageFigures();
    refreshTotals();
}

bool EntrySheet::refreshItemRow(int row)
{
    if (!isItemRow(row) || isNewRow(row) || m_pageIndex == 0)
        return false;
    const QString key = cells().text(row, FieldCompose);
    const bool expanded = isExpanded(row);
    if (expanded)
        toggleBatchLines(row);
    const std::unique_ptr<Recordset> rows = fetchPage(m_pageIndex);
    const Figures before = rowFigures(row);
    bool found = false;
    for (int record = 0; record < rows->RecordCount() && !found; ++record) {
        if (rows->value(record, QStringLiteral("FFieldCompose")).toString() != key)
            continue;
        setItemInfo(ItemRows::writeItemRow(cells(), row, *rows, record, m_useShortNumber, qtyDecimal(), m_colors));
        found = true;
    }
    if (found && expanded)
        toggleBatchLines(row);
    // The dialog saved this row's lines: the kept totals hold its new figures.
    const Figures after = rowFigures(row);
    for (size_t col = 0; col < after.size(); ++col)
        m_keptPageFigures[col] += after[col] - before[col];
    refreshTotals();
    return found;
}

EntrySheet::Figures EntrySheet::rowFigures(int row) const
{
    Figures figures{};
    for (const auto &g : ItemRows::groups()) {
        for (int col : {g.quantity, g.amount, g.difference})
            figures[col] = cells().number(row, col);
    }
    return figures;
}

EntrySheet::Figures EntrySheet::pageFigures() const
{
    Figures sums{};
    for (int row = 1; row < m_kinds.size(); ++row) {
        if (m_kinds.at(row) != RowKind::Item && m_kinds.at(row) != RowKind::NewItem)
            continue;
        const Figures figures = rowFigures(row);
        for (size_t col = 0; col < sums.size(); ++col)
            sums[col] += figures[col];
    }
    return sums;
}

void EntrySheet::refreshTotals()
{
    removeTotalsRow();
    if (m_totalPages != 0 && m_pageIndex != m_totalPages)
        return;
    const auto &groups = ItemRows::groups();
    // The service gives the precision with the sums: the records' own, not the account set's.
    const bool hasTotals = m_totals && m_totals->RecordCount() > 0;
    const QVariant totalsDecimals = hasTotals ? m_totals->value(0, QStringLiteral("FQtyDecimal")) : QVariant();
    Figures sums = pageFigures();
    if (m_totalPages > 1 && hasTotals) {
        static const char *const fields[4][3] = {{"FInitYtdBegQty", "FInitYtdBegBal", "FInitYtdBegDiff"},
                                                 {"FInitYtdReceive", "FInitYtdDebit", "FInitYtdReceiveDiff"},
                                                 {"FInitYtdSend", "FInitYtdCredit", "FInitYtdSendDiff"},
                                                 {"FInitBegQty", "FInitBegBal", "FInitBegDiff"}};
        for (int i = 0; i < 4; ++i) {
            const int cols[3] = {groups[i].quantity, groups[i].amount, groups[i].difference};
            for (int f = 0; f < 3; ++f)
                sums[cols[f]] += m_totals->value(0, QLatin1String(fields[i][f])).toDouble() - m_keptPageFigures[cols[f]];
        }
    }
    const int row = cells().addRow();
    m_kinds.append(RowKind::Totals);
    cells().setValue(row, ItemID, TotalsMark);
    cells().setText(row, Number, ResString(TotalsText));
    for (const auto &g : groups) {
        for (int col : {g.quantity, g.amount, g.difference})
            cells().setValue(row, col, sums[col]);
    }
    cells().setRowStyle(row, CellStyle().setBackColor(m_colors.sum));
    if (!totalsDecimals.isNull())
        ItemRows::setQuantityDecimals(cells(), row, totalsDecimals.toInt(), qtyDecimal());
}
