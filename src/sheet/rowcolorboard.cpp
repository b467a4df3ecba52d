#include "rowcolorboard.h"

RowColorBoard &RowColorBoard::instance()
{
    static RowColorBoard board;
    return board;
}
