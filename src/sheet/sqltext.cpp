#include "sqltext.h"

#include "grid/numberformat.h"

namespace SqlText {

double roundFigure(double value)
{
    return NumberFormat::roundHalfAway(value, FigureDecimals);
}

QString number(double value)
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

QString quoted(const QString &text)
{
    QString out = text;
    out.replace(u'\'', QLatin1String("''"));
    return u'\'' + out + u'\'';
}

} // namespace SqlText
