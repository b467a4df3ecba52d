#include "grid/cellmodel.h"

#include "grid/celltext.h"
#include "grid/editrule.h"
#include "grid/numberformat.h"

#include <QBrush>

#include <algorithm>

using Grid::EditResult;

void CellModel::Block::unite(const Block &other)
{
    if (other.isEmpty())
        return;
    if (isEmpty()) {
        *this = other;
        return;
    }
    row1 = std::min(row1, other.row1);
    col1 = std::min(col1, other.col1);
    row2 = std::max(row2, other.row2);
    col2 = std::max(col2, other.col2);
}

CellModel::CellModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

int CellModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rows() - Grid::FirstDataRow;
}

int CellModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : cols() - Grid::FirstDataCol;
}

QVariant CellModel::data(const QModelIndex &index, int role) const
{
    if (!isOwnIndex(index))
        return {};
    const int row = gridRow(index);
    const int col = gridCol(index);
    const Cell &cell = m_store.cell(row, col);
    const CellStyle &style = m_store.style(row, col);

    switch (role) {
    case Qt::DisplayRole:
        return CellText::display(cell, style);
    case Qt::EditRole:
        // A date editor wants the date itself, every other editor the bare text.
        if (style.type() == Grid::CellType::Date && cell.kind == Cell::Kind::Date)
            return cell.date();
        return CellText::edit(cell);
    case Qt::BackgroundRole:
        if (style.has(CellStyle::BackColor) && style.backColor().isValid())
            return QBrush(style.backColor());
        return {};
    case Qt::TextAlignmentRole:
        return int(style.alignment().toInt());
    case CellTypeRole:
        return int(style.type());
    case LockedRole:
        return cellLocked(gridRow(index), gridCol(index));
    case ButtonColorRole:
        return style.buttonColor();
    case ComboListRole:
        return style.comboList();
    default:
        return {};
    }
}

QVariant CellModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool horizontal = orientation == Qt::Horizontal;
    const int row = horizontal ? Grid::HeaderRow : section + Grid::FirstDataRow;
    const int col = horizontal ? section + Grid::FirstDataCol : Grid::HeaderCol;
    if (section < 0 || !contains(row, col))
        return {};
    // Alignment and wrapping of the titles are the view's business.
    if (role != Qt::DisplayRole)
        return {};
    const QString title = CellText::display(m_store.cell(row, col), CellStyle());
    // A row header without a text of its own shows the row's number.
    if (title.isEmpty() && !horizontal)
        return QString::number(row);
    return title;
}

Qt::ItemFlags CellModel::flags(const QModelIndex &index) const
{
    if (!isOwnIndex(index))
        return Qt::NoItemFlags;
    Qt::ItemFlags out = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (isEditable(gridRow(index), gridCol(index)))
        out |= Qt::ItemIsEditable;
    return out;
}

bool CellModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !isOwnIndex(index))
        return false;
    const EditResult result = commitEdit(gridRow(index), gridCol(index), value);
    return result == EditResult::Accepted || result == EditResult::Unchanged;
}

bool CellModel::isOwnIndex(const QModelIndex &index) const
{
    return index.isValid() && index.model() == this && isDataCell(gridRow(index), gridCol(index));
}

QModelIndex CellModel::cellIndex(int row, int col) const
{
    return isDataCell(row, col) ? index(row - Grid::FirstDataRow, col - Grid::FirstDataCol) : QModelIndex();
}

bool CellModel::isDataCell(int row, int col) const
{
    return row >= Grid::FirstDataRow && col >= Grid::FirstDataCol && contains(row, col);
}

bool CellModel::isEditable(int row, int col) const
{
    return isDataCell(row, col) && m_store.style(row, col).type() != Grid::CellType::Button && !cellLocked(row, col);
}

// ---- shape -------------------------------------------------------------------------------

void CellModel::setRows(int rows)
{
    rows = std::max(rows, Grid::FirstDataRow);
    const int old = this->rows();
    if (rows > old) {
        beginInsertRows({}, old - Grid::FirstDataRow, rows - 1 - Grid::FirstDataRow);
        m_store.resize(rows, cols());
        m_history.rowsInserted(old, rows - old);
        endInsertRows();
    } else if (rows < old) {
        beginRemoveRows({}, rows - Grid::FirstDataRow, old - 1 - Grid::FirstDataRow);
        m_store.resize(rows, cols());
        m_history.rowsRemoved(rows, old - rows);
        endRemoveRows();
    }
    structureChanged();
}

void CellModel::setCols(int cols)
{
    cols = std::max(cols, Grid::FirstDataCol);
    const int old = this->cols();
    if (cols > old) {
        beginInsertColumns({}, old - Grid::FirstDataCol, cols - 1 - Grid::FirstDataCol);
        m_store.resize(rows(), cols);
        endInsertColumns();
    } else if (cols < old) {
        beginRemoveColumns({}, cols - Grid::FirstDataCol, old - 1 - Grid::FirstDataCol);
        m_store.resize(rows(), cols);
        endRemoveColumns();
    }
    structureChanged();
}

void CellModel::reset(int rows, int cols)
{
    beginResetModel();
    m_store.reset(std::max(rows, Grid::FirstDataRow), std::max(cols, Grid::FirstDataCol));
    m_history.clear();
    endResetModel();
    structureChanged();
}

int CellModel::addRow()
{
    insertRowsAt(rows());
    return rows() - 1;
}

void CellModel::insertRowsAt(int row, int count)
{
    if (count <= 0 || row < Grid::FirstDataRow || row > rows())
        return;
    const int first = row - Grid::FirstDataRow;
    beginInsertRows({}, first, first + count - 1);
    m_store.insertRows(row, count);
    m_history.rowsInserted(row, count);
    endInsertRows();
    structureChanged();
}

void CellModel::removeRowsAt(int row, int count)
{
    if (row < Grid::FirstDataRow || row >= rows())
        return;
    count = std::min(count, rows() - row);
    if (count <= 0)
        return;
    const int first = row - Grid::FirstDataRow;
    beginRemoveRows({}, first, first + count - 1);
    m_store.removeRows(row, count);
    m_history.rowsRemoved(row, count);
    endRemoveRows();
    structureChanged();
}

// ---- content -----------------------------------------------------------------------------

QString CellModel::text(int row, int col) const
{
    if (!contains(row, col))
        return {};
    return CellText::display(m_store.cell(row, col), m_store.style(row, col));
}

QString CellModel::editText(int row, int col) const
{
    return contains(row, col) ? CellText::edit(m_store.cell(row, col)) : QString();
}

QVariant CellModel::value(int row, int col) const
{
    return contains(row, col) ? m_store.cell(row, col).toVariant() : QVariant();
}

double CellModel::number(int row, int col) const
{
    if (!contains(row, col))
        return 0;
    const Cell &cell = m_store.cell(row, col);
    if (cell.kind == Cell::Kind::Number)
        return cell.number;
    if (cell.kind != Cell::Kind::Text)
        return 0;
    bool ok = false;
    const double value = NumberFormat::parse(cell.text, &ok);
    return ok ? value : 0;
}

void CellModel::setText(int row, int col, const QString &text)
{
    if (contains(row, col))
        store(row, col, CellText::fromProgram(text, m_store.style(row, col)));
}

void CellModel::setValue(int row, int col, const QVariant &value)
{
    if (contains(row, col))
        store(row, col, CellText::fromVariant(value, m_store.style(row, col)));
}

void CellModel::setNumber(int row, int col, double value)
{
    if (contains(row, col))
        store(row, col, Cell::fromNumber(value));
}

void CellModel::store(int row, int col, Cell next)
{
    Cell &cell = m_store.cell(row, col);
    next.style = cell.style;
    if (m_history.isRecording())
        m_history.record(row, col, cell, next);
    cell = std::move(next);
    cellsChanged({row, col, row, col});
}

void CellModel::clearCell(int row, int col)
{
    setValue(row, col, QVariant());
}

void CellModel::fillBlock(int row1, int col1, int row2, int col2, const QVariant &value)
{
    const Block block = clampedBlock(row1, col1, row2, col2);
    if (block.isEmpty())
        return;
    for (int r = block.row1; r <= block.row2; ++r) {
        for (int c = block.col1; c <= block.col2; ++c) {
            Cell &cell = m_store.cell(r, c);
            Cell next = CellText::fromVariant(value, m_store.style(r, c));
            next.style = cell.style;
            if (m_history.isRecording())
                m_history.record(r, c, cell, next);
            cell = std::move(next);
        }
    }
    cellsChanged(block);
}

// ---- style -------------------------------------------------------------------------------

CellStyle CellModel::cellStyle(int row, int col) const
{
    return contains(row, col) ? m_store.style(row, col) : CellStyle();
}

CellStyle CellModel::ownStyle(int row, int col) const
{
    return contains(row, col) ? m_store.styles().style(m_store.cell(row, col).style) : CellStyle();
}

CellStyle CellModel::rowStyle(int row) const
{
    return row >= 0 && row < rows() ? m_store.styles().style(m_store.rowStyle(row)) : CellStyle();
}

CellStyle CellModel::colStyle(int col) const
{
    return col >= 0 && col < cols() ? m_store.styles().style(m_store.colStyle(col)) : CellStyle();
}

void CellModel::setCellStyle(int row, int col, const CellStyle &patch)
{
    restyleBlock(clampedBlock(row, col, row, col), patch, {});
}

void CellModel::setBlockStyle(int row1, int col1, int row2, int col2, const CellStyle &patch)
{
    restyleBlock(clampedBlock(row1, col1, row2, col2), patch, {});
}

void CellModel::clearCellStyle(int row, int col, CellStyle::Fields fields)
{
    restyleBlock(clampedBlock(row, col, row, col), CellStyle(), fields);
}

void CellModel::restyleBlock(const Block &block, const CellStyle &patch, CellStyle::Fields removed)
{
    if (block.isEmpty())
        return;
    StyleTable &styles = m_store.styles();
    // Neighbouring cells mostly share a style: remember the last translation.
    quint32 lastFrom = 0;
    quint32 lastTo = styles.patched(0, patch, removed);
    for (int r = block.row1; r <= block.row2; ++r) {
        for (int c = block.col1; c <= block.col2; ++c) {
            Cell &cell = m_store.cell(r, c);
            if (cell.style != lastFrom) {
                lastFrom = cell.style;
                lastTo = styles.patched(lastFrom, patch, removed);
            }
            cell.style = lastTo;
        }
    }
    if (patch.has(CellStyle::Type) || removed.testFlag(CellStyle::Type))
        retypeBlock(block);
    cellsChanged(block);
}

void CellModel::setRowStyle(int row, const CellStyle &patch)
{
    if (row < 0 || row >= rows())
        return;
    m_store.setRowStyle(row, m_store.styles().patched(m_store.rowStyle(row), patch));
    const Block block{row, Grid::FirstDataCol, row, cols() - 1};
    if (patch.has(CellStyle::Type))
        retypeBlock(block);
    cellsChanged(block);
}

void CellModel::clearRowStyle(int row, CellStyle::Fields fields)
{
    if (row < 0 || row >= rows())
        return;
    m_store.setRowStyle(row, m_store.styles().patched(m_store.rowStyle(row), CellStyle(), fields));
    const Block block{row, Grid::FirstDataCol, row, cols() - 1};
    if (fields.testFlag(CellStyle::Type))
        retypeBlock(block);
    cellsChanged(block);
}

void CellModel::setColStyle(int col, const CellStyle &patch)
{
    if (col < 0 || col >= cols())
        return;
    m_store.setColStyle(col, m_store.styles().patched(m_store.colStyle(col), patch));
    const Block block{Grid::FirstDataRow, col, rows() - 1, col};
    if (patch.has(CellStyle::Type))
        retypeBlock(block);
    cellsChanged(block);
}

void CellModel::clearColStyle(int col, CellStyle::Fields fields)
{
    if (col < 0 || col >= cols())
        return;
    m_store.setColStyle(col, m_store.styles().patched(m_store.colStyle(col), CellStyle(), fields));
    const Block block{Grid::FirstDataRow, col, rows() - 1, col};
    if (fields.testFlag(CellStyle::Type))
        retypeBlock(block);
    cellsChanged(block);
}

void CellModel::retypeBlock(const Block &block)
{
    for (int r = block.row1; r <= block.row2; ++r) {
        for (int c = block.col1; c <= block.col2; ++c) {
            Cell &cell = m_store.cell(r, c);
            if (cell.kind != Cell::Kind::Text)
                continue;
            const quint32 style = cell.style;
            cell = CellText::fromProgram(cell.text, m_store.style(r, c));
            cell.style = style;
        }
    }
}

// ---- layout ------------------------------------------------------------------------------

bool CellModel::rowHidden(int row) const
{
    return row >= 0 && row < rows() && m_store.rowHidden(row);
}

void CellModel::setRowHidden(int row, bool hidden)
{
    if (row < 0 || row >= rows() || m_store.rowHidden(row) == hidden)
        return;
    m_store.setRowHidden(row, hidden);
    emit rowHiddenChanged(row, hidden);
}

bool CellModel::colHidden(int col) const
{
    return col >= 0 && col < cols() && m_store.colHidden(col);
}

void CellModel::setColHidden(int col, bool hidden)
{
    if (col < 0 || col >= cols() || m_store.colHidden(col) == hidden)
        return;
    m_store.setColHidden(col, hidden);
    emit colHiddenChanged(col, hidden);
}

int CellModel::colWidth(int col) const
{
    return col >= 0 && col < cols() ? m_store.colWidth(col) : -1;
}

void CellModel::setColWidth(int col, int width)
{
    if (col < 0 || col >= cols() || m_store.colWidth(col) == width)
        return;
    m_store.setColWidth(col, width);
    emit colWidthChanged(col, width);
}

// ---- the edit path -----------------------------------------------------------------------

template<typename Raise>
bool CellModel::askHandlers(Raise raise)
{
    // A handler may itself edit another cell; keep the outer question's answer apart.
    const bool outer = m_cancelRequested;
    m_cancelRequested = false;
    raise();
    const bool cancelled = m_cancelRequested;
    m_cancelRequested = outer;
    return !cancelled;
}

EditResult CellModel::refuse(int row, int col, EditResult reason)
{
    emit editRefused(row, col, reason);
    return reason;
}

EditResult CellModel::beginEdit(int row, int col)
{
    if (!isDataCell(row, col) || m_store.style(row, col).type() == Grid::CellType::Button)
        return refuse(row, col, EditResult::NotEditable);
    if (cellLocked(row, col))
        return refuse(row, col, EditResult::Locked);
    if (!askHandlers([&] { emit beforeEdit(row, col); }))
        return refuse(row, col, EditResult::Cancelled);
    return EditResult::Accepted;
}

EditResult CellModel::commitEdit(int row, int col, const QVariant &input)
{
    if (!isDataCell(row, col))
        return refuse(row, col, EditResult::NotEditable);
    const CellStyle style = m_store.style(row, col);
    if (style.type() == Grid::CellType::Button)
        return refuse(row, col, EditResult::NotEditable);
    if (cellLocked(row, col))
        return refuse(row, col, EditResult::Locked);

    Cell next;
    const EditResult parsed = CellText::fromInput(input, style, &next);
    if (parsed != EditResult::Accepted)
        return refuse(row, col, parsed);
    if (next.sameContent(m_store.cell(row, col)))
        return EditResult::Unchanged;
    if (!askHandlers([&] { emit validateEdit(row, col, next.toVariant()); }))
        return refuse(row, col, EditResult::Cancelled);

    // A validate-edit handler may have restyled or moved things; store into the cell as it is now.
    if (!isDataCell(row, col))
        return refuse(row, col, EditResult::NotEditable);
    // What the after-edit handlers write in consequence is undone with the edit.
    m_history.beginStep();
    store(row, col, std::move(next));
    emit afterEdit(row, col);
    m_history.endStep();
    return EditResult::Accepted;
}

EditResult CellModel::editCell(int row, int col, const QVariant &input)
{
    const EditResult begun = beginEdit(row, col);
    return begun == EditResult::Accepted ? commitEdit(row, col, input) : begun;
}

bool CellModel::isButtonActive(int row, int col) const
{
    if (!isDataCell(row, col))
        return false;
    return m_store.style(row, col).type() == Grid::CellType::Button && !cellLocked(row, col);
}

bool CellModel::cellLocked(int row, int col) const
{
    const bool styleLocked = cellStyle(row, col).locked();
    return m_editRule ? m_editRule->locked(row, col, styleLocked) : styleLocked;
}

void CellModel::setEditRule(const EditRule *rule)
{
    m_editRule = rule;
    if (rows() > 0 && cols() > 0)
        emitChanged(wholeGrid());
}

// ---- undo and redo -----------------------------------------------------------------------

void CellModel::undo()
{
    putBack(m_history.takeUndo(), true);
}

void CellModel::redo()
{
    putBack(m_history.takeRedo(), false);
}

void CellModel::takeBackSince(qsizetype mark)
{
    putBack(m_history.takeSince(mark), true);
}

void CellModel::putBack(const EditHistory::Step &step, bool before)
{
    beginBulkUpdate();
    for (qsizetype i = 0; i < step.size(); ++i) {
        const EditHistory::Change &change = step.at(before ? step.size() - 1 - i : i);
        if (!contains(change.row, change.col))
            continue;
        Cell &cell = m_store.cell(change.row, change.col);
        const quint32 style = cell.style;
        cell = before ? change.before : change.after;
        cell.style = style;
        cellsChanged({change.row, change.col, change.row, change.col});
    }
    endBulkUpdate();
}

// ---- change notification -----------------------------------------------------------------

void CellModel::beginBulkUpdate()
{
    ++m_bulkDepth;
}

void CellModel::endBulkUpdate()
{
    if (m_bulkDepth == 0 || --m_bulkDepth > 0)
        return;
    const Block dirty = m_bulkDirty;
    m_bulkDirty = Block();
    emitChanged(dirty);
}

void CellModel::cellsChanged(const Block &block)
{
    if (m_bulkDepth > 0)
        m_bulkDirty.unite(block);
    else
        emitChanged(block);
}

void CellModel::structureChanged()
{
    // Rows may have moved under a block noted earlier in the same bulk update.
    if (m_bulkDepth > 0 && !m_bulkDirty.isEmpty())
        m_bulkDirty = wholeGrid();
}

void CellModel::emitChanged(Block block)
{
    block.row2 = std::min(block.row2, rows() - 1);
    block.col2 = std::min(block.col2, cols() - 1);
    if (block.isEmpty())
        return;
    if (block.row1 == Grid::HeaderRow && block.col2 >= Grid::FirstDataCol)
        emit headerDataChanged(Qt::Horizontal, std::max(block.col1, Grid::FirstDataCol) - Grid::FirstDataCol,
                               block.col2 - Grid::FirstDataCol);
    if (block.col1 == Grid::HeaderCol && block.row2 >= Grid::FirstDataRow)
        emit headerDataChanged(Qt::Vertical, std::max(block.row1, Grid::FirstDataRow) - Grid::FirstDataRow,
                               block.row2 - Grid::FirstDataRow);
    const int row1 = std::max(block.row1, Grid::FirstDataRow);
    const int col1 = std::max(block.col1, Grid::FirstDataCol);
    if (row1 <= block.row2 && col1 <= block.col2)
        emit dataChanged(cellIndex(row1, col1), cellIndex(block.row2, block.col2));
}

CellModel::Block CellModel::clampedBlock(int row1, int col1, int row2, int col2) const
{
    return {std::max(std::min(row1, row2), 0), std::max(std::min(col1, col2), 0),
            std::min(std::max(row1, row2), rows() - 1), std::min(std::max(col1, col2), cols() - 1)};
}
