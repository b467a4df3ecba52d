#pragma once

#include "grid/cellstyle.h"
#include "grid/gridmoves.h"
#include "grid/gridtypes.h"

#include <QAbstractItemDelegate>
#include <QWidget>

class CellDelegate;
class CellModel;
class QTableView;

// The spreadsheet grid of the inventory controls: a virtual table view over a CellModel, with
// the events and members the controls' code and the automation scripts drive it by. Row 0 is
// shown as the column header, column 0 as the row header; both are fixed and never edited.
//
// Events: beforeEdit (a handler may call cancelEdit(); locked cells refuse without asking),
// validateEdit (likewise, with the parsed new value), afterEdit, editRefused, cellButtonClick,
// cellClicked, keyDown (a handler may call consumeKey()), currentCellChanged, pasteRefused and
// cellsRestored. editCell() types into a cell through the same path as a person does.
//
// The keys are a spreadsheet program's: Enter commits and moves down (or right) to the next cell
// that may be edited, Tab and Shift+Tab move along over locked cells, Delete clears the selected
// cells, Shift+arrows and the mouse select a range, Ctrl+C and Ctrl+V copy and paste it as
// tab-separated text, Ctrl+Z and Ctrl+Y undo and redo; the context menu offers the same. Every
// paste and delete runs the edit path cell by cell, so each value meets the checks a typed one
// does.
class SpreadGrid : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int Rows READ rows WRITE setRows)
    Q_PROPERTY(int Cols READ cols WRITE setCols)
    Q_PROPERTY(int Row READ row WRITE setRow NOTIFY currentCellChanged)
    Q_PROPERTY(int Col READ col WRITE setCol NOTIFY currentCellChanged)
    Q_PROPERTY(QColor headerColor READ headerColor WRITE setHeaderColor)
    Q_PROPERTY(QColor gridLineColor READ gridLineColor WRITE setGridLineColor)
    Q_PROPERTY(QColor selectionColor READ selectionColor WRITE setSelectionColor)
    Q_PROPERTY(QColor selectionTextColor READ selectionTextColor WRITE setSelectionTextColor)
    Q_PROPERTY(bool enterMovesRight READ enterMovesRight WRITE setEnterMovesRight)

public:
    explicit SpreadGrid(QWidget *parent = nullptr);

    CellModel *cells() const { return m_cells; }
    QTableView *view() const { return m_view; }
    CellDelegate *delegate() const { return m_delegate; }

    int rows() const;
    void setRows(int rows);
    int cols() const;
    void setCols(int cols);
    // The current cell; -1 when there is none.
    int row() const;
    int col() const;
    void setRow(int row);
    void setCol(int col);

    QColor headerColor() const { return m_headerColor; }
    void setHeaderColor(const QColor &color);
    QColor gridLineColor() const { return m_gridLineColor; }
    void setGridLineColor(const QColor &color);
    QColor selectionColor() const { return m_selectionColor; }
    void setSelectionColor(const QColor &color);
    QColor selectionTextColor() const { return m_selectionTextColor; }
    void setSelectionTextColor(const QColor &color);
    // Enter moves to the next editable cell along the row instead of down the column.
    bool enterMovesRight() const { return m_enterMovesRight; }
    void setEnterMovesRight(bool right) { m_enterMovesRight = right; }

    // Content: TextMatrix is the text shown, value the value kept (double, date or text).
    Q_INVOKABLE QString TextMatrix(int row, int col) const;
    Q_INVOKABLE void setTextMatrix(int row, int col, const QString &text);
    Q_INVOKABLE QVariant value(int row, int col) const;
    Q_INVOKABLE void setValue(int row, int col, const QVariant &value);
    Q_INVOKABLE double number(int row, int col) const;

    // Types `input` into the cell as a person would; false when the edit was refused.
    Q_INVOKABLE bool editCell(int row, int col, const QVariant &input);
    // Grid::EditResult of the same, for callers that need the reason.
    Grid::EditResult tryEditCell(int row, int col, const QVariant &input);
    Q_INVOKABLE void cancelEdit();
    Q_INVOKABLE void consumeKey() { m_keyConsumed = true; }
    Q_INVOKABLE bool isEditing() const;

    // Makes the cell current and shows it; moveTo() also gives the grid the focus and opens the
    // cell's editor when the cell may be edited.
    Q_INVOKABLE bool select(int row, int col);
    Q_INVOKABLE bool moveTo(int row, int col);
    // Clicks a cell's button as the mouse does; false for a locked or non-button cell.
    Q_INVOKABLE bool clickCellButton(int row, int col);

    // The clipboard and the edit history, as the keys and the context menu reach them. paste()
    // puts the clipboard's block at the current cell: a row with a refused value is taken back
    // whole (pasteRefused names the cell), the other rows stay; locked cells take nothing.
    Q_INVOKABLE void copy();
    Q_INVOKABLE void paste();
    Q_INVOKABLE void pasteText(const QString &text);
    // Empties the editable cells of the selection; each one as if a person emptied it.
    Q_INVOKABLE void deleteSelection();
    Q_INVOKABLE bool canUndo() const;
    Q_INVOKABLE bool canRedo() const;
    Q_INVOKABLE bool undo();
    Q_INVOKABLE bool redo();
    // Forgets the edits kept for undo, as after a save.
    Q_INVOKABLE void clearHistory();

    Q_INVOKABLE int addRow();
    Q_INVOKABLE void insertRows(int row, int count = 1);
    Q_INVOKABLE void removeRows(int row, int count = 1);

    Q_INVOKABLE int cellType(int row, int col) const;
    Q_INVOKABLE void setCellType(int row, int col, int type);
    Q_INVOKABLE bool cellLocked(int row, int col) const;
    Q_INVOKABLE void setCellLocked(int row, int col, bool locked);
    Q_INVOKABLE QColor cellBackColor(int row, int col) const;
    Q_INVOKABLE void setCellBackColor(int row, int col, const QColor &color);
    Q_INVOKABLE void setRowBackColor(int row, const QColor &color);
    Q_INVOKABLE QColor cellButtonColor(int row, int col) const;
    Q_INVOKABLE void setCellButtonColor(int row, int col, const QColor &color);
    Q_INVOKABLE int cellDecimals(int row, int col) const;
    Q_INVOKABLE void setCellDecimals(int row, int col, int decimals);
    Q_INVOKABLE void setCellComboList(int row, int col, const QStringList &items);
    Q_INVOKABLE void setColComboList(int col, const QStringList &items);

    Q_INVOKABLE bool rowHidden(int row) const;
    Q_INVOKABLE void setRowHidden(int row, bool hidden);
    Q_INVOKABLE bool colHidden(int col) const;
    Q_INVOKABLE void setColHidden(int col, bool hidden);
    // In pixels; a column never given a width reports the width it is shown with.
    Q_INVOKABLE int colWidth(int col) const;
    Q_INVOKABLE void setColWidth(int col, int width);

signals:
    void beforeEdit(int row, int col);
    void validateEdit(int row, int col, const QVariant &newValue);
    void afterEdit(int row, int col);
    void editRefused(int row, int col, Grid::EditResult reason);
    void cellButtonClick(int row, int col);
    void cellClicked(int row, int col);
    void keyDown(int key, Qt::KeyboardModifiers modifiers);
    void currentCellChanged(int row, int col);
    // The user dragged a column's edge to a new width.
    void colWidthDragged(int col, int width);
    // A pasted value was refused; the rest of its row was taken back.
    void pasteRefused(int row, int col, const QString &value);
    // Cells were put back without the edit path (undo, redo, a pasted row taken back): what is
    // summed from them needs summing again.
    void cellsRestored();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectModel();
    void applyLook();
    // Hidden rows and columns and widths live in the model; the view follows it.
    void applyLayout();
    void applyRowHidden(int row, bool hidden);
    void applyColHidden(int col, bool hidden);
    void applyColWidth(int col, int width);
    bool handleKey(const QKeyEvent *event);
    // After an editor closed by Enter or Tab: the cursor moves on unless the edit was refused.
    void editorLeft(QAbstractItemDelegate::EndEditHint hint);
    void moveOn(GridMoves::Direction direction);
    void showContextMenu(const QPoint &pos);

    CellModel *m_cells;
    QTableView *m_view;
    CellDelegate *m_delegate;
    QColor m_headerColor = Grid::HeaderColor;
    QColor m_gridLineColor = Grid::GridLineColor;
    QColor m_selectionColor = Grid::SelectionColor;
    QColor m_selectionTextColor = Grid::SelectionTextColor;
    bool m_keyConsumed = false;
    bool m_enterMovesRight = false;
};
