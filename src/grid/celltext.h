#pragma once

#include "grid/cell.h"
#include "grid/cellstyle.h"

// Conversions between a cell's content and the texts a person sees and types. The display text
// follows the cell's style (decimals, separator, date form); the edit text is the bare value
// ("1234.5", not "1,234.50") so that editing never works on rounded figures.
namespace CellText {

QString display(const Cell &cell, const CellStyle &style);
QString edit(const Cell &cell);

// Content for a text set by program: a number cell takes a number (separators allowed), a date
// cell a date; what does not read as either is kept as plain text, and an empty text empties
// the cell.
Cell fromProgram(const QString &text, const CellStyle &style);

// Content for a value set by program: double, QDate or text (read as fromProgram does).
Cell fromVariant(const QVariant &value, const CellStyle &style);

// Content for a person's input, strictly: a number cell takes only a number within its limits,
// a date cell only a date, a list cell only an item of its list; anything else is refused with
// Invalid or OutOfRange and `out` is left alone. An empty input empties the cell.
Grid::EditResult fromInput(const QVariant &input, const CellStyle &style, Cell *out);

QDate parseDate(const QString &text);

} // namespace CellText
