#pragma once

#include "frame/lumoicinitial_global.h"

#include <QString>

// Figures and texts as the save scripts write them. Every quantity and amount is rounded to ten
// decimals before it reaches the database, on its decimal text (half away from zero), so binary
// noise such as 0.30000000000000004 never gets stored.
namespace SqlText {

inline constexpr int FigureDecimals = 10;

// The figure rounded to FigureDecimals places, half away from zero on its shortest decimal text,
// the same rounding the grid uses for what it shows.
LUMOICINITIAL_EXPORT double roundFigure(double value);

// The figure as a SQL literal: rounded as roundFigure(), plain decimal notation, no exponent, no
// group separator, no trailing zeros ("5", "0.3", "-12.5"), and never "-0".
LUMOICINITIAL_EXPORT QString number(double value);

// A text as a SQL literal: in single quotes, a quote inside doubled.
LUMOICINITIAL_EXPORT QString quoted(const QString &text);

} // namespace SqlText
