#pragma once

#include "grid/cell.h"
#include "grid/styletable.h"

#include <vector>

// The grid's cells in one row-major block, with the per-row and per-column defaults beside them.
// Rows and columns are numbered as the grid numbers them, header row and column included. No Qt
// model here: CellModel adds the signals, this class only keeps the data compact and the
// structural operations cheap (inserting rows in the middle moves cells, it allocates nothing
// per cell).
class CellStore
{
public:
    CellStore();

    int rows() const { return int(m_rowInfo.size()); }
    int cols() const { return int(m_colInfo.size()); }
    bool contains(int row, int col) const { return row >= 0 && col >= 0 && row < rows() && col < cols(); }

    // Empties everything, styles and layout included.
    void reset(int rows, int cols);
    // Keeps what lies in both the old and the new size.
    void resize(int rows, int cols);
    void insertRows(int row, int count);
    void removeRows(int row, int count);

    const Cell &cell(int row, int col) const { return m_cells[index(row, col)]; }
    Cell &cell(int row, int col) { return m_cells[index(row, col)]; }

    StyleTable &styles() { return m_styles; }
    const StyleTable &styles() const { return m_styles; }
    quint32 rowStyle(int row) const { return m_rowInfo[size_t(row)].style; }
    void setRowStyle(int row, quint32 id) { m_rowInfo[size_t(row)].style = id; }
    quint32 colStyle(int col) const { return m_colInfo[size_t(col)].style; }
    void setColStyle(int col, quint32 id) { m_colInfo[size_t(col)].style = id; }
    // The look of a cell: column default, row default, then the cell's own style.
    const CellStyle &style(int row, int col) const
    {
        return m_styles.resolved(colStyle(col), rowStyle(row), cell(row, col).style);
    }

    bool rowHidden(int row) const { return m_rowInfo[size_t(row)].hidden; }
    void setRowHidden(int row, bool hidden) { m_rowInfo[size_t(row)].hidden = hidden; }
    bool colHidden(int col) const { return m_colInfo[size_t(col)].hidden; }
    void setColHidden(int col, bool hidden) { m_colInfo[size_t(col)].hidden = hidden; }
    int colWidth(int col) const { return m_colInfo[size_t(col)].width; } // -1: the view's default
    void setColWidth(int col, int width) { m_colInfo[size_t(col)].width = width; }

    std::vector<int> hiddenRows() const;

private:
    struct RowInfo {
        quint32 style = StyleTable::NoStyle;
        bool hidden = false;
    };
    struct ColInfo {
        quint32 style = StyleTable::NoStyle;
        int width = -1;
        bool hidden = false;
    };

    size_t index(int row, int col) const { return size_t(row) * m_colInfo.size() + size_t(col); }

    std::vector<Cell> m_cells;
    std::vector<RowInfo> m_rowInfo;
    std::vector<ColInfo> m_colInfo;
    StyleTable m_styles;
};
