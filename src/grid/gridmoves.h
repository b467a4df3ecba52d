#pragma once

class CellModel;

// Where the keys of the grid move the cursor: on to the next cell a person may type into, over
// locked, button and hidden cells, as a spreadsheet program moves.
namespace GridMoves {

enum class Direction {
    Down,  // the same column, further down
    Right, // along the row, then on at the start of the next row (Tab)
    Left,  // back along the row, then on at the end of the row before (Shift+Tab)
};

struct Position
{
    int row = -1;
    int col = -1;
    bool isValid() const { return row >= 0 && col >= 0; }
};

// The first cell after (row, col) in `direction` that is shown and may be edited; invalid when
// there is none.
Position nextEditable(const CellModel &cells, int row, int col, Direction direction);

} // namespace GridMoves
