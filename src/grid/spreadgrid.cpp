#include "grid/spreadgrid.h"

#include "grid/celldelegate.h"
#include "grid/cellmodel.h"
#include "grid/gridclipboard.h"
#include "grid/gridheader.h"
#include "grid/gridtexts.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>

namespace {

QString rgb(const QColor &color)
{
    return QStringLiteral("rgb(%1,%2,%3)").arg(color.red()).arg(color.green()).arg(color.blue());
}

// A figure typed on a cell that cannot be edited goes nowhere: the view's type-ahead search
// would move the cursor to a row whose text starts with the first key and type the rest there.
// Where the cursor goes after Enter or Tab in an editor is the grid's business, not the view's
// (the view would stop on locked cells).
class GridView : public QTableView
{
public:
    GridView(std::function<void(QAbstractItemDelegate::EndEditHint)> editorLeft, QWidget *parent)
        : QTableView(parent)
        , m_editorLeft(std::move(editorLeft))
    {
    }
    void keyboardSearch(const QString &) override {}

protected:
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override
    {
        const bool movesOn = hint == QAbstractItemDelegate::EditNextItem
                             || hint == QAbstractItemDelegate::EditPreviousItem
                             || hint == QAbstractItemDelegate::SubmitModelCache;
        QTableView::closeEditor(editor, movesOn ? QAbstractItemDelegate::NoHint : hint);
        if (movesOn)
            m_editorLeft(hint);
    }

private:
    std::function<void(QAbstractItemDelegate::EndEditHint)> m_editorLeft;
};

} // namespace

SpreadGrid::SpreadGrid(QWidget *parent)
    : QWidget(parent)
    , m_cells(new CellModel(this))
    , m_view(new GridView([this](QAbstractItemDelegate::EndEditHint hint) { editorLeft(hint); }, this))
    , m_delegate(new CellDelegate(m_cells, this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    setFocusProxy(m_view);

    m_view->setModel(m_cells);
    m_view->setItemDelegate(m_delegate);
    // One rectangle at a time: what is copied is a block, as a spreadsheet program copies it.
    m_view->setSelectionMode(QAbstractItemView::ContiguousSelection);
    m_view->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                            | QAbstractItemView::AnyKeyPressed);
    m_view->setWordWrap(false);
    m_view->setShowGrid(true);

    // Fixed row heights keep the view virtual: nothing is measured per row, so 50,000 rows cost
    // no more to show than 50.
    QHeaderView *rowHeader = m_view->verticalHeader();
    rowHeader->setSectionResizeMode(QHeaderView::Fixed);
    rowHeader->setDefaultSectionSize(Grid::DefaultRowHeight);
    rowHeader->setMinimumSectionSize(Grid::DefaultRowHeight);
    auto *colHeader = new GridHeader(m_view);
    m_view->setHorizontalHeader(colHeader);
    colHeader->setSectionResizeMode(QHeaderView::Interactive);
    colHeader->setDefaultSectionSize(Grid::DefaultColWidth);
    colHeader->setHighlightSections(false);

    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this, &SpreadGrid::showContextMenu);
    m_view->installEventFilter(this);
    connectModel();
    applyLook();
}

void SpreadGrid::connectModel()
{
    connect(m_cells, &CellModel::beforeEdit, this, &SpreadGrid::beforeEdit);
    connect(m_cells, &CellModel::validateEdit, this, &SpreadGrid::validateEdit);
    connect(m_cells, &CellModel::afterEdit, this, &SpreadGrid::afterEdit);
    connect(m_cells, &CellModel::editRefused, this, &SpreadGrid::editRefused);
    connect(m_cells, &CellModel::rowHiddenChanged, this, &SpreadGrid::applyRowHidden);
    connect(m_cells, &CellModel::colHiddenChanged, this, &SpreadGrid::applyColHidden);
    connect(m_cells, &CellModel::colWidthChanged, this, &SpreadGrid::applyColWidth);
    connect(m_cells, &CellModel::modelReset, this, &SpreadGrid::applyLayout);
    connect(m_cells, &CellModel::columnsInserted, this, &SpreadGrid::applyLayout);

    connect(m_delegate, &CellDelegate::buttonClicked, this, [this](const QModelIndex &index) {
        clickCellButton(CellModel::gridRow(index), CellModel::gridCol(index));
    });
    connect(m_view, &QTableView::clicked, this, [this](const QModelIndex &index) {
        emit cellClicked(CellModel::gridRow(index), CellModel::gridCol(index));
    });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex &current) {
        if (current.isValid())
            emit currentCellChanged(CellModel::gridRow(current), CellModel::gridCol(current));
    });
    // A title changed after the layout was made may need another line in the header.
    connect(m_cells, &CellModel::headerDataChanged, this, [this](Qt::Orientation orientation) {
        if (orientation == Qt::Horizontal)
            m_view->doItemsLayout();
    });
    // A width dragged by the user is kept like one set by program. Hiding and showing a column
    // resize its section too; those are no new widths.
    auto *colHeader = static_cast<GridHeader *>(m_view->horizontalHeader());
    connect(colHeader, &QHeaderView::sectionResized, this, [this, colHeader](int section, int, int size) {
        const int col = section + Grid::FirstDataCol;
        if (!m_cells->colHidden(col) && size != colWidth(col)) {
            m_cells->setColWidth(col, size);
            if (colHeader->resizingByMouse())
                emit colWidthDragged(col, size);
        }
    });
}

void SpreadGrid::applyLook()
{
    const QString sheet = QStringLiteral(
        "QTableView { gridline-color: %1; selection-background-color: %2; selection-color: %3; }"
        "QHeaderView { background-color: %4; }"
        "QHeaderView::section { background-color: %4; border: none; border-right: 1px solid %1;"
        " border-bottom: 1px solid %1; padding: 2px 4px; }"
        "QTableCornerButton::section { background-color: %4; border: none; border-right: 1px solid %1;"
        " border-bottom: 1px solid %1; }");
    m_view->setStyleSheet(sheet.arg(rgb(m_gridLineColor), rgb(m_selectionColor), rgb(m_selectionTextColor),
                                    rgb(m_headerColor)));
}

void SpreadGrid::setHeaderColor(const QColor &color)
{
    m_headerColor = color;
    applyLook();
}

void SpreadGrid::setGridLineColor(const QColor &color)
{
    m_gridLineColor = color;
    applyLook();
}

void SpreadGrid::setSelectionColor(const QColor &color)
{
    m_selectionColor = color;
    applyLook();
}

void SpreadGrid::setSelectionTextColor(const QColor &color)
{
    m_selectionTextColor = color;
    applyLook();
}

// ---- layout ------------------------------------------------------------------------------

void SpreadGrid::applyLayout()
{
    // Hidden data rows need no care here: the view moves them along with inserted and removed
    // rows, and a reset leaves none hidden on either side.
    for (int c = 0; c < m_cells->cols(); ++c) {
        applyColHidden(c, m_cells->colHidden(c));
        applyColWidth(c, m_cells->colWidth(c));
    }
    applyRowHidden(Grid::HeaderRow, m_cells->rowHidden(Grid::HeaderRow));
}

void SpreadGrid::applyRowHidden(int row, bool hidden)
{
    if (row == Grid::HeaderRow)
        m_view->horizontalHeader()->setVisible(!hidden);
    else
        m_view->setRowHidden(row - Grid::FirstDataRow, hidden);
}

void SpreadGrid::applyColHidden(int col, bool hidden)
{
    if (col == Grid::HeaderCol)
        m_view->verticalHeader()->setVisible(!hidden);
    else
        m_view->setColumnHidden(col - Grid::FirstDataCol, hidden);
}

void SpreadGrid::applyColWidth(int col, int width)
{
    if (col == Grid::HeaderCol) {
        if (width >= 0) {
            m_view->verticalHeader()->setFixedWidth(width);
        } else {
            m_view->verticalHeader()->setMinimumWidth(0);
            m_view->verticalHeader()->setMaximumWidth(QWIDGETSIZE_MAX);
        }
        return;
    }
    m_view->setColumnWidth(col - Grid::FirstDataCol, width >= 0 ? width : Grid::DefaultColWidth);
}

// ---- shape and current cell --------------------------------------------------------------

int SpreadGrid::rows() const
{
    return m_cells->rows();
}

void SpreadGrid::setRows(int rows)
{
    m_cells->setRows(rows);
}

int SpreadGrid::cols() const
{
    return m_cells->cols();
}

void SpreadGrid::setCols(int cols)
{
    m_cells->setCols(cols);
}

int SpreadGrid::row() const
{
    const QModelIndex current = m_view->currentIndex();
    return current.isValid() ? CellModel::gridRow(current) : -1;
}

int SpreadGrid::col() const
{
    const QModelIndex current = m_view->currentIndex();
    return current.isValid() ? CellModel::gridCol(current) : -1;
}

void SpreadGrid::setRow(int row)
{
    select(row, std::max(col(), Grid::FirstDataCol));
}

void SpreadGrid::setCol(int col)
{
    select(std::max(row(), Grid::FirstDataRow), col);
}

bool SpreadGrid::select(int row, int col)
{
    const QModelIndex index = m_cells->cellIndex(row, col);
    if (!index.isValid())
        return false;
    m_view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    m_view->scrollTo(index);
    return true;
}

bool SpreadGrid::moveTo(int row, int col)
{
    if (!select(row, col))
        return false;
    m_view->setFocus();
    const QModelIndex index = m_cells->cellIndex(row, col);
    if (index.flags().testFlag(Qt::ItemIsEditable))
        m_view->edit(index);
    return true;
}

bool SpreadGrid::isEditing() const
{
    return m_delegate->isEditorOpen();
}

bool SpreadGrid::clickCellButton(int row, int col)
{
    if (!m_cells->isButtonActive(row, col))
        return false;
    emit cellButtonClick(row, col);
    return true;
}

int SpreadGrid::addRow()
{
    return m_cells->addRow();
}

void SpreadGrid::insertRows(int row, int count)
{
    m_cells->insertRowsAt(row, count);
}

void SpreadGrid::removeRows(int row, int count)
{
    m_cells->removeRowsAt(row, count);
}

// ---- content and edits -------------------------------------------------------------------

QString SpreadGrid::TextMatrix(int row, int col) const
{
    return m_cells->text(row, col);
}

void SpreadGrid::setTextMatrix(int row, int col, const QString &text)
{
    m_cells->setText(row, col, text);
}

QVariant SpreadGrid::value(int row, int col) const
{
    return m_cells->value(row, col);
}

void SpreadGrid::setValue(int row, int col, const QVariant &value)
{
    m_cells->setValue(row, col, value);
}

double SpreadGrid::number(int row, int col) const
{
    return m_cells->number(row, col);
}

bool SpreadGrid::editCell(int row, int col, const QVariant &input)
{
    const Grid::EditResult result = tryEditCell(row, col, input);
    return result == Grid::EditResult::Accepted || result == Grid::EditResult::Unchanged;
}

Grid::EditResult SpreadGrid::tryEditCell(int row, int col, const QVariant &input)
{
    return m_cells->editCell(row, col, input);
}

void SpreadGrid::cancelEdit()
{
    m_cells->cancelEdit();
}

// ---- style -------------------------------------------------------------------------------

int SpreadGrid::cellType(int row, int col) const
{
    return int(m_cells->cellType(row, col));
}

void SpreadGrid::setCellType(int row, int col, int type)
{
    if (type >= 0 && type < Grid::CellTypeCount)
        m_cells->setCellStyle(row, col, CellStyle().setType(Grid::CellType(type)));
}

bool SpreadGrid::cellLocked(int row, int col) const
{
    return m_cells->cellLocked(row, col);
}

void SpreadGrid::setCellLocked(int row, int col, bool locked)
{
    m_cells->setCellStyle(row, col, CellStyle().setLocked(locked));
}

QColor SpreadGrid::cellBackColor(int row, int col) const
{
    return m_cells->cellStyle(row, col).backColor();
}

void SpreadGrid::setCellBackColor(int row, int col, const QColor &color)
{
    m_cells->setCellStyle(row, col, CellStyle().setBackColor(color));
}

void SpreadGrid::setRowBackColor(int row, const QColor &color)
{
    m_cells->setRowStyle(row, CellStyle().setBackColor(color));
}

QColor SpreadGrid::cellButtonColor(int row, int col) const
{
    return m_cells->cellStyle(row, col).buttonColor();
}

void SpreadGrid::setCellButtonColor(int row, int col, const QColor &color)
{
    m_cells->setCellStyle(row, col, CellStyle().setButtonColor(color));
}

int SpreadGrid::cellDecimals(int row, int col) const
{
    return m_cells->cellStyle(row, col).decimals();
}

void SpreadGrid::setCellDecimals(int row, int col, int decimals)
{
    m_cells->setCellStyle(row, col, CellStyle().setDecimals(decimals));
}

void SpreadGrid::setCellComboList(int row, int col, const QStringList &items)
{
    m_cells->setCellStyle(row, col, CellStyle().setComboList(items));
}

void SpreadGrid::setColComboList(int col, const QStringList &items)
{
    m_cells->setColStyle(col, CellStyle().setComboList(items));
}

bool SpreadGrid::rowHidden(int row) const
{
    return m_cells->rowHidden(row);
}

void SpreadGrid::setRowHidden(int row, bool hidden)
{
    m_cells->setRowHidden(row, hidden);
}

bool SpreadGrid::colHidden(int col) const
{
    return m_cells->colHidden(col);
}

void SpreadGrid::setColHidden(int col, bool hidden)
{
    m_cells->setColHidden(col, hidden);
}

int SpreadGrid::colWidth(int col) const
{
    const int width = m_cells->colWidth(col);
    if (width >= 0 || col < 0 || col >= cols())
        return width;
    return col == Grid::HeaderCol ? m_view->verticalHeader()->sizeHint().width() : Grid::DefaultColWidth;
}

void SpreadGrid::setColWidth(int col, int width)
{
    m_cells->setColWidth(col, width);
}

// ---- keys --------------------------------------------------------------------------------

bool SpreadGrid::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && event->type() == QEvent::KeyPress && handleKey(static_cast<QKeyEvent *>(event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

bool SpreadGrid::handleKey(const QKeyEvent *event)
{
    m_keyConsumed = false;
    emit keyDown(event->key(), event->modifiers());
    if (m_keyConsumed)
        return true;
    // A key the open editor left alone (Enter, before its commit) arrives here too; the editor's
    // closing moves the cursor.
    if (isEditing())
        return false;
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const auto plain = [&](int key) { return event->key() == key && modifiers == Qt::NoModifier; };
    if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (event->matches(QKeySequence::Paste)) {
        paste();
    } else if (event->matches(QKeySequence::Undo)) {
        undo();
    } else if (event->matches(QKeySequence::Redo) || (event->key() == Qt::Key_Y && modifiers == Qt::ControlModifier)) {
        redo();
    } else if (plain(Qt::Key_Delete)) {
        deleteSelection();
    } else if (plain(Qt::Key_Return) || plain(Qt::Key_Enter)) {
        moveOn(m_enterMovesRight ? GridMoves::Direction::Right : GridMoves::Direction::Down);
    } else if (plain(Qt::Key_Tab)) {
        moveOn(GridMoves::Direction::Right);
    } else if (event->key() == Qt::Key_Backtab || (event->key() == Qt::Key_Tab && modifiers == Qt::ShiftModifier)) {
        moveOn(GridMoves::Direction::Left);
    } else if (plain(Qt::Key_Space)) {
        // Space presses a button cell's button, as it presses a push button.
        return clickCellButton(row(), col());
    } else {
        return false;
    }
    return true;
}

void SpreadGrid::editorLeft(QAbstractItemDelegate::EndEditHint hint)
{
    // A refused value keeps the cursor on its cell, and a handler that opened another editor
    // (back on a code that was not found) has put the cursor where it wants it.
    const Grid::EditResult commit = m_delegate->lastCommit();
    if ((commit != Grid::EditResult::Accepted && commit != Grid::EditResult::Unchanged) || isEditing())
        return;
    if (hint == QAbstractItemDelegate::EditNextItem)
        moveOn(GridMoves::Direction::Right);
    else if (hint == QAbstractItemDelegate::EditPreviousItem)
        moveOn(GridMoves::Direction::Left);
    else
        moveOn(m_enterMovesRight ? GridMoves::Direction::Right : GridMoves::Direction::Down);
}

void SpreadGrid::moveOn(GridMoves::Direction direction)
{
    const GridMoves::Position next = GridMoves::nextEditable(*m_cells, row(), col(), direction);
    if (next.isValid())
        select(next.row, next.col);
}

// ---- clipboard and history -----------------------------------------------------------------

void SpreadGrid::copy()
{
    const QItemSelection selection = m_view->selectionModel()->selection();
    if (selection.isEmpty())
        return;
    int top = selection.first().top();
    int left = selection.first().left();
    int bottom = selection.first().bottom();
    int right = selection.first().right();
    for (const QItemSelectionRange &range : selection) {
        top = std::min(top, range.top());
        left = std::min(left, range.left());
        bottom = std::max(bottom, range.bottom());
        right = std::max(right, range.right());
    }
    QApplication::clipboard()->setText(GridClipboard::copyText(*m_cells, top + Grid::FirstDataRow, left + Grid::FirstDataCol,
                                                               bottom + Grid::FirstDataRow, right + Grid::FirstDataCol));
}

void SpreadGrid::paste()
{
    pasteText(QApplication::clipboard()->text());
}

void SpreadGrid::pasteText(const QString &text)
{
    if (row() < Grid::FirstDataRow || isEditing())
        return;
    const int top = row();
    const int left = col();
    const QList<QStringList> block = GridClipboard::parse(text);
    const QList<QList<GridClipboard::Target>> rows = GridClipboard::pasteTargets(*m_cells, top, left, block);
    bool takenBack = false;
    m_cells->history().beginStep();
    for (const QList<GridClipboard::Target> &targets : rows) {
        const qsizetype mark = m_cells->history().mark();
        for (const GridClipboard::Target &target : targets) {
            if (editCell(target.row, target.col, target.text))
                continue;
            m_cells->takeBackSince(mark);
            takenBack = true;
            emit pasteRefused(target.row, target.col, target.text);
            break;
        }
    }
    m_cells->history().endStep();
    if (takenBack)
        emit cellsRestored();
    // The block pasted stays selected, as a spreadsheet program shows it.
    int bottom = top;
    int right = left;
    for (const QList<GridClipboard::Target> &targets : rows) {
        for (const GridClipboard::Target &target : targets) {
            bottom = std::max(bottom, target.row);
            right = std::max(right, target.col);
        }
    }
    const QModelIndex current = m_cells->cellIndex(top, left);
    m_view->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    m_view->selectionModel()->select(QItemSelection(current, m_cells->cellIndex(bottom, right)),
                                     QItemSelectionModel::ClearAndSelect);
}

void SpreadGrid::deleteSelection()
{
    if (isEditing())
        return;
    QModelIndexList indexes = m_view->selectionModel()->selectedIndexes();
    if (indexes.isEmpty() && m_view->currentIndex().isValid())
        indexes.append(m_view->currentIndex());
    std::sort(indexes.begin(), indexes.end());
    m_cells->history().beginStep();
    for (const QModelIndex &index : std::as_const(indexes)) {
        const int r = CellModel::gridRow(index);
        const int c = CellModel::gridCol(index);
        if (!m_cells->rowHidden(r) && !m_cells->colHidden(c) && m_cells->isEditable(r, c))
            editCell(r, c, QVariant());
    }
    m_cells->history().endStep();
}

bool SpreadGrid::canUndo() const
{
    return m_cells->history().canUndo();
}

bool SpreadGrid::canRedo() const
{
    return m_cells->history().canRedo();
}

bool SpreadGrid::undo()
{
    if (isEditing() || !canUndo())
        return false;
    m_cells->undo();
    emit cellsRestored();
    return true;
}

bool SpreadGrid::redo()
{
    if (isEditing() || !canRedo())
        return false;
    m_cells->redo();
    emit cellsRestored();
    return true;
}

void SpreadGrid::clearHistory()
{
    m_cells->history().clear();
}

void SpreadGrid::showContextMenu(const QPoint &pos)
{
    QMenu menu(this);
    const bool anySelected = m_view->selectionModel()->hasSelection();
    menu.addAction(GridText::Copy, QKeySequence::Copy, this, &SpreadGrid::copy)->setEnabled(anySelected);
    menu.addAction(GridText::Paste, QKeySequence::Paste, this, &SpreadGrid::paste)
        ->setEnabled(row() >= Grid::FirstDataRow && !QApplication::clipboard()->text().isEmpty());
    menu.addAction(GridText::Delete, QKeySequence::Delete, this, &SpreadGrid::deleteSelection)->setEnabled(anySelected);
    menu.addSeparator();
    menu.addAction(GridText::Undo, QKeySequence::Undo, this, &SpreadGrid::undo)->setEnabled(canUndo());
    menu.addAction(GridText::Redo, QKeySequence(Qt::CTRL | Qt::Key_Y), this, &SpreadGrid::redo)->setEnabled(canRedo());
    menu.exec(m_view->viewport()->mapToGlobal(pos));
}
