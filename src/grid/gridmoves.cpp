#include "grid/gridmoves.h"

#include "grid/cellmodel.h"

namespace GridMoves {

Position nextEditable(const CellModel &cells, int row, int col, Direction direction)
{
    const auto usable = [&cells](int r, int c) {
        return !cells.rowHidden(r) && !cells.colHidden(c) && cells.isEditable(r, c);
    };
    if (direction == Direction::Down) {
        for (int r = row + 1; r < cells.rows(); ++r) {
            if (usable(r, col))
                return {r, col};
        }
        return {};
    }
    const int step = direction == Direction::Right ? 1 : -1;
    int r = row;
    int c = col + step;
    while (r >= Grid::FirstDataRow && r < cells.rows()) {
        if (c >= cells.cols()) {
            ++r;
            c = Grid::FirstDataCol;
            continue;
        }
        if (c < Grid::FirstDataCol) {
            --r;
            c = cells.cols() - 1;
            continue;
        }
        if (usable(r, c))
            return {r, c};
        c += step;
    }
    return {};
}

} // namespace GridMoves
