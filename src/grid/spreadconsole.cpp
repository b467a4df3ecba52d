#include "grid/spreadconsole.h"

#include "grid/cellmodel.h"
#include "grid/spreadgrid.h"

namespace SpreadConsole {

CellStyle numberStyle(int decimals)
{
    return CellStyle()
        .setType(Grid::CellType::Number)
        .setAlignment(Qt::AlignRight | Qt::AlignVCenter)
        .setLimits(Grid::NumberMin, Grid::NumberMax)
        .setSeparator(true)
        .setDecimals(decimals);
}

void setNumberCell(CellModel &cells, int row, int col, int decimals)
{
    cells.setCellStyle(row, col, numberStyle(decimals));
}

void setButtonCell(CellModel &cells, int row, int col)
{
    cells.setCellStyle(row, col, CellStyle().setType(Grid::CellType::Button).setLocked(false));
}

bool moveToCell(SpreadGrid &grid, int row, int col)
{
    return grid.moveTo(row, col);
}

} // namespace SpreadConsole
