#pragma once

#include "grid/cellstyle.h"

class CellModel;
class SpreadGrid;

// The cell helpers every inventory grid shares: number cells, button cells, and moving the
// cursor to the cell a refusal is about.
namespace SpreadConsole {

// The look of a number cell: number type, right-aligned, thousands separator, the given
// decimals, and the limits Grid::NumberMin to Grid::NumberMax. Usable for a cell, a block, a
// row or a column.
CellStyle numberStyle(int decimals);

// Makes the cell a number cell with `decimals` decimals (numberStyle()).
void setNumberCell(CellModel &cells, int row, int col, int decimals);

// Makes the cell a button cell and unlocks it, so that its button may be clicked.
void setButtonCell(CellModel &cells, int row, int col);

// Makes the cell current, shows it, focuses the grid and opens the cell's editor when the cell
// may be edited.
bool moveToCell(SpreadGrid &grid, int row, int col);

} // namespace SpreadConsole
