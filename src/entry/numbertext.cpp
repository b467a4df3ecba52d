#include "numbertext.h"

#include "grid/numberformat.h"

namespace NumberText {

double roundFigure(double value)
{
    return NumberFormat::roundHalfAway(value, FigureDecimals);
}

QString sqlNumber(double value)
{
    // format() already drops the sign of a value that rounds to zero.
    QString text = NumberFormat::format(value, FigureDecimals, false);
    if (text.contains(u'.')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    return text;
}

} // namespace NumberText
