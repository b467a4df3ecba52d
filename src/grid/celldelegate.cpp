#include "grid/celldelegate.h"

#include "grid/cellmodel.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {
constexpr int ButtonMargin = 1;
const QString ButtonCaption = QStringLiteral("...");
} // namespace

CellDelegate::CellDelegate(CellModel *model, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
{
}

const CellEditorFactory *CellDelegate::factoryFor(const QModelIndex &index) const
{
    return m_editors.factory(Grid::CellType(index.data(CellModel::CellTypeRole).toInt()));
}

QWidget *CellDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    const CellEditorFactory *factory = factoryFor(index);
    if (!factory)
        return nullptr;
    // The view opens an editor only through here, so this is where before-edit is raised;
    // returning no editor keeps the cell closed.
    const int row = CellModel::gridRow(index);
    const int col = CellModel::gridCol(index);
    if (m_model->beginEdit(row, col) != Grid::EditResult::Accepted)
        return nullptr;
    m_lastCommit = Grid::EditResult::Unchanged;
    m_openEditor = factory->create(parent, m_model->cellStyle(row, col));
    return m_openEditor;
}

void CellDelegate::destroyEditor(QWidget *editor, const QModelIndex &index) const
{
    if (editor == m_openEditor)
        m_openEditor.clear();
    QStyledItemDelegate::destroyEditor(editor, index);
}

void CellDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (const CellEditorFactory *factory = factoryFor(index))
        factory->setValue(editor, index.data(Qt::EditRole));
}

void CellDelegate::setModelData(QWidget *editor, QAbstractItemModel *, const QModelIndex &index) const
{
    if (const CellEditorFactory *factory = factoryFor(index))
        m_lastCommit = m_model->commitEdit(CellModel::gridRow(index), CellModel::gridCol(index), factory->value(editor));
}

QRect CellDelegate::buttonRect(const QRect &cellRect)
{
    const int width = std::min(Grid::CellButtonWidth, cellRect.width());
    return QRect(cellRect.right() - width + 1, cellRect.top(), width, cellRect.height())
        .adjusted(ButtonMargin, ButtonMargin, -ButtonMargin, -ButtonMargin);
}

void CellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (Grid::CellType(index.data(CellModel::CellTypeRole).toInt()) != Grid::CellType::Button) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }

    // The text keeps clear of the button.
    QStyleOptionViewItem textOption = option;
    textOption.rect.setRight(buttonRect(option.rect).left() - 1);
    QStyledItemDelegate::paint(painter, textOption, index);

    QStyleOptionButton button;
    button.rect = buttonRect(option.rect);
    button.text = ButtonCaption;
    button.state = QStyle::State_Raised;
    if (!index.data(CellModel::LockedRole).toBool())
        button.state |= QStyle::State_Enabled;
    const QColor color = index.data(CellModel::ButtonColorRole).value<QColor>();
    button.palette = option.palette;
    if (color.isValid())
        button.palette.setColor(QPalette::Button, color);
    const QWidget *widget = option.widget;
    QStyle *style = widget ? widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_PushButton, &button, painter, widget);
}

bool CellDelegate::editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                               const QModelIndex &index)
{
    // Clicked on release, as a push button is. The press is left to the view so that the click
    // also makes the button's cell the current one.
    if (event->type() == QEvent::MouseButtonRelease
        && Grid::CellType(index.data(CellModel::CellTypeRole).toInt()) == Grid::CellType::Button) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::LeftButton && buttonRect(option.rect).contains(mouse->position().toPoint())) {
            emit buttonClicked(index);
            return true;
        }
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}
