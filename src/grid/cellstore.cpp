#include "grid/cellstore.h"

#include <algorithm>
#include <iterator>

CellStore::CellStore()
{
    reset(1, 1);
}

void CellStore::reset(int rows, int cols)
{
    m_styles.clear();
    m_cells.clear();
    m_rowInfo.clear();
    m_colInfo.clear();
    resize(rows, cols);
}

void CellStore::resize(int rows, int cols)
{
    rows = std::max(rows, 0);
    cols = std::max(cols, 0);
    if (cols != this->cols()) {
        std::vector<Cell> moved(size_t(rows) * size_t(cols));
        const int keepRows = std::min(rows, this->rows());
        const int keepCols = std::min(cols, this->cols());
        for (int r = 0; r < keepRows; ++r) {
            const auto from = m_cells.begin() + std::ptrdiff_t(index(r, 0));
            std::move(from, from + keepCols, moved.begin() + std::ptrdiff_t(size_t(r) * size_t(cols)));
        }
        m_cells = std::move(moved);
        m_colInfo.resize(size_t(cols));
    } else {
        m_cells.resize(size_t(rows) * size_t(cols));
    }
    m_rowInfo.resize(size_t(rows));
}

void CellStore::insertRows(int row, int count)
{
    m_cells.insert(m_cells.begin() + std::ptrdiff_t(index(row, 0)), size_t(count) * m_colInfo.size(), Cell());
    m_rowInfo.insert(m_rowInfo.begin() + row, size_t(count), RowInfo());
}

void CellStore::removeRows(int row, int count)
{
    const auto first = m_cells.begin() + std::ptrdiff_t(index(row, 0));
    m_cells.erase(first, first + std::ptrdiff_t(size_t(count) * m_colInfo.size()));
    m_rowInfo.erase(m_rowInfo.begin() + row, m_rowInfo.begin() + row + count);
}

std::vector<int> CellStore::hiddenRows() const
{
    std::vector<int> out;
    for (int r = 0; r < rows(); ++r) {
        if (m_rowInfo[size_t(r)].hidden)
            out.push_back(r);
    }
    return out;
}
