#pragma once

#include <QString>

// Number texts of the grids: the display pattern "#,###0.00", display rounding and parsing of
// typed numbers. Rounding works on the shortest decimal text of a double, so 2.675 rounds to 2.68
// as an accountant expects, not to 2.67 as its binary value would.
namespace NumberFormat {

// "#,###0." followed by one "0" per decimal, or "#,###0" for none.
QString pattern(int decimals);

// Decimals and separator of a pattern written as pattern() writes it ("#,###0.00", "0.000").
int patternDecimals(const QString &pattern);
bool patternHasSeparator(const QString &pattern);

// decimals < 0 keeps every significant decimal; halves round away from zero; a result that
// rounds to zero carries no minus sign.
QString format(double value, int decimals, bool separator);
QString formatPattern(double value, const QString &pattern);

// The value the display shows, as a double: what format() would print, read back.
double roundHalfAway(double value, int decimals);

// Plain decimal notation with optional sign and "," group separators; no exponent.
// An empty or malformed text gives ok = false.
double parse(const QString &text, bool *ok);

// The shortest decimal text that reads back as the same double ("1234.5", "-0.1").
QString plain(double value);

} // namespace NumberFormat
