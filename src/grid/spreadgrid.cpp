#include "grid/spreadgrid.h"

#include "grid/celldelegate.h"
#include "grid/cellmodel.h"
#include "grid/gridheader.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QString rgb(const QColor &color)
{
    return QStringLiteral("rgb(%1,%2,%3)").arg(color.red()).arg(color.green()).arg(color.blue());
}

// A figure typed on a cell that cannot be edited goes nowhere: the view's type-ahead search
// would move the cursor to a row whose text starts with the first key and type the rest there.
class GridView : public QTableView
{
public:
    using QTableView::QTableView;
    void keyboardSearch(const QString &) override {}
};

} // namespace

SpreadGrid::SpreadGrid(QWidget *parent)
    : QWidget(parent)
    , m_cells(new CellModel(this))
    , m_view(new GridView(this))
    , m_delegate(new CellDelegate(m_cells, this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    setFocusProxy(m_view);

    m_view->setModel(m_cells);
    m_view->setItemDelegate(m_delegate);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
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
    // Space presses a button cell's button, as it presses a push button.
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier)
        return clickCellButton(row(), col());
    return false;
}
