#pragma once

#include "grid/cellstore.h"
#include "grid/cellstyle.h"
#include "grid/edithistory.h"
#include "grid/gridtypes.h"

#include <QAbstractTableModel>

// The cells of a spreadsheet grid as a Qt table model, addressed the grid's way: row 0 is the
// header row (its texts become the horizontal header), column 0 the row header (the vertical
// header), data cells start at (1, 1). Model index (i, j) is grid cell (i + 1, j + 1).
//
// Every person's edit runs one path: beginEdit() when the editor opens (lock check, then
// beforeEdit), commitEdit() when it closes (parse and check against the cell's type and limits,
// validateEdit, store, afterEdit). editCell() runs both, so a program types like a person.
//
// Changes made by program raise dataChanged for the cell or block concerned; between
// beginBulkUpdate() and endBulkUpdate() they raise nothing until one dataChanged at the end.
class EditRule;

class CellModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Role {
        CellTypeRole = Qt::UserRole + 1, // int of Grid::CellType
        LockedRole,                      // bool
        ButtonColorRole,                 // QColor, invalid when not set
        ComboListRole,                   // QStringList of a drop-down list cell
    };
    Q_ENUM(Role)

    explicit CellModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    // Commits a person's edit (commitEdit); the editor's opening already ran beginEdit.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    QModelIndex cellIndex(int row, int col) const;
    static int gridRow(const QModelIndex &index) { return index.row() + Grid::FirstDataRow; }
    static int gridCol(const QModelIndex &index) { return index.column() + Grid::FirstDataCol; }

    // Shape. Rows and Cols count the header row and column, so a grid without data has Rows 1.
    int rows() const { return m_store.rows(); }
    int cols() const { return m_store.cols(); }
    void setRows(int rows);
    void setCols(int cols);
    // Empties the grid: content, styles, hidden flags and widths.
    void reset(int rows, int cols);
    int addRow();
    void insertRowsAt(int row, int count = 1);
    void removeRowsAt(int row, int count = 1);
    bool contains(int row, int col) const { return m_store.contains(row, col); }
    bool isDataCell(int row, int col) const;
    // A data cell that is neither a button nor locked: a person may type into it.
    bool isEditable(int row, int col) const;

    // Content. text() is what the grid shows ("1,234.50"), editText() the bare value ("1234.5"),
    // value() the value itself: invalid when empty, else a double, a QDate or a QString.
    QString text(int row, int col) const;
    QString editText(int row, int col) const;
    QVariant value(int row, int col) const;
    // The cell as a figure: its number, or its text read as a number, or 0.
    double number(int row, int col) const;
    void setText(int row, int col, const QString &text);
    void setValue(int row, int col, const QVariant &value);
    void setNumber(int row, int col, double value);
    void clearCell(int row, int col);
    // Writes one value into every cell of the block (an invalid value empties them).
    void fillBlock(int row1, int col1, int row2, int col2, const QVariant &value);

    // Style. The look of a cell is its column's default, overlaid by its row's default, overlaid
    // by its own style; setters lay a patch (the fields it sets) over the level they name.
    CellStyle cellStyle(int row, int col) const;
    CellStyle ownStyle(int row, int col) const;
    CellStyle rowStyle(int row) const;
    CellStyle colStyle(int col) const;
    void setCellStyle(int row, int col, const CellStyle &patch);
    void setBlockStyle(int row1, int col1, int row2, int col2, const CellStyle &patch);
    void setRowStyle(int row, const CellStyle &patch);
    void setColStyle(int col, const CellStyle &patch);
    void clearCellStyle(int row, int col, CellStyle::Fields fields = CellStyle::AllFields);
    void clearRowStyle(int row, CellStyle::Fields fields = CellStyle::AllFields);
    void clearColStyle(int col, CellStyle::Fields fields = CellStyle::AllFields);
    Grid::CellType cellType(int row, int col) const { return cellStyle(row, col).type(); }
    // The style's lock as the edit rule, when one is set, decides it.
    bool cellLocked(int row, int col) const;
    // The rule asked for every cell's lock; null for the styles alone. The model does not own it.
    void setEditRule(const EditRule *rule);

    // Layout kept with the cells so that it survives a model reset of the view.
    bool rowHidden(int row) const;
    void setRowHidden(int row, bool hidden);
    bool colHidden(int col) const;
    void setColHidden(int col, bool hidden);
    int colWidth(int col) const;
    void setColWidth(int col, int width);
    std::vector<int> hiddenRows() const { return m_store.hiddenRows(); }

    // The edit path.
    Grid::EditResult beginEdit(int row, int col);
    Grid::EditResult commitEdit(int row, int col, const QVariant &input);
    Grid::EditResult editCell(int row, int col, const QVariant &input);
    // Called by a beforeEdit or validateEdit handler to refuse the edit being asked about.
    void cancelEdit() { m_cancelRequested = true; }
    // A button cell that is not locked: its button may be clicked.
    bool isButtonActive(int row, int col) const;

    void beginBulkUpdate();
    void endBulkUpdate();

    // Undo and redo of the edits. Every edit is one step of the history; a caller that makes
    // several edits into one (a paste) brackets them with history().beginStep() and endStep().
    // Changes made by program outside a step are not kept; a reset empties the history.
    EditHistory &history() { return m_history; }
    // Puts back the cells of the last step as they were before it (redo: after it). No edit
    // event is raised: the caller brings up to date what it sums from the cells.
    void undo();
    void redo();
    // Takes back what the open step changed since history().mark() answered `mark`.
    void takeBackSince(qsizetype mark);

signals:
    void beforeEdit(int row, int col);
    void validateEdit(int row, int col, const QVariant &newValue);
    void afterEdit(int row, int col);
    void editRefused(int row, int col, Grid::EditResult reason);
    void rowHiddenChanged(int row, bool hidden);
    void colHiddenChanged(int col, bool hidden);
    void colWidthChanged(int col, int width);

private:
    struct Block {
        int row1 = 0;
        int col1 = 0;
        int row2 = -1;
        int col2 = -1;
        bool isEmpty() const { return row2 < row1 || col2 < col1; }
        void unite(const Block &other);
    };

    // Asks the handlers connected by `raise`; false when one of them called cancelEdit().
    template<typename Raise>
    bool askHandlers(Raise raise);
    Grid::EditResult refuse(int row, int col, Grid::EditResult reason);
    bool isOwnIndex(const QModelIndex &index) const;

    void cellsChanged(const Block &block);
    void emitChanged(Block block);
    void structureChanged();
    // After a type change: texts that read as the new type become numbers or dates.
    void retypeBlock(const Block &block);
    void restyleBlock(const Block &block, const CellStyle &patch, CellStyle::Fields removed);
    Block clampedBlock(int row1, int col1, int row2, int col2) const;
    Block wholeGrid() const { return {0, 0, rows() - 1, cols() - 1}; }
    // Stores new content into a cell, keeping its style, and notes it in the open step.
    void store(int row, int col, Cell next);
    // Writes each change's content before (or after) it, the last change first when before.
    void putBack(const EditHistory::Step &step, bool before);

    CellStore m_store;
    EditHistory m_history;
    const EditRule *m_editRule = nullptr;
    bool m_cancelRequested = false;
    int m_bulkDepth = 0;
    Block m_bulkDirty;
};
