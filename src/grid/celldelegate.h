#pragma once

#include "grid/editorregistry.h"

#include <QPointer>
#include <QStyledItemDelegate>

class CellModel;

// The grid's delegate: a thin shell over the editor factories. Opening an editor asks the cell
// model first (lock, before-edit handlers), committing hands the input to the model's edit path.
// Button cells get a small button painted at their right edge; a click on it is reported, no
// widget is made for it.
class CellDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    CellDelegate(CellModel *model, QObject *parent = nullptr);

    EditorRegistry &editors() { return m_editors; }
    bool isEditorOpen() const { return !m_openEditor.isNull(); }
    // How the last editor's commit came out; the cursor moves on after an accepted one only.
    Grid::EditResult lastCommit() const { return m_lastCommit; }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    // Where the button of a button cell is drawn within the cell's rectangle.
    static QRect buttonRect(const QRect &cellRect);

signals:
    void buttonClicked(const QModelIndex &index);

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

private:
    const CellEditorFactory *factoryFor(const QModelIndex &index) const;

    CellModel *m_model;
    EditorRegistry m_editors = EditorRegistry::standard();
    // The view asks for editors through const members; which one is open is bookkeeping.
    mutable QPointer<QWidget> m_openEditor;
    mutable Grid::EditResult m_lastCommit = Grid::EditResult::Accepted;
};
