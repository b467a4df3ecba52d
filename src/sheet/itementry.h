#pragma once

#include "frame/lumoicinitial_global.h"

#include <QString>

class EntrySheet;
class Recordset;

// Naming the item of a new row by its code: the look-up through the data service, the checks of
// an unknown, ambiguous or repeated item, and filling the row from the found item.
namespace ItemEntry {

struct Outcome
{
    bool filled = false;
    QString message; // the refusal shown to the user, lines joined by CR LF
};

LUMOICINITIAL_EXPORT Outcome enterCode(EntrySheet &sheet, int row, const QString &code);
// Why the item picked in the item look-up (the first record of `items`) can't be entered: the
// item, without an auxiliary class, already has a row of this place other than `row` (0 for a
// row yet to be added). Empty when it can.
LUMOICINITIAL_EXPORT QString pickedRefusal(EntrySheet &sheet, int row, const Recordset &items);
// The item classes the entry grid's look-up offers: those that may hold stock.
inline const QString StockItemClasses = QStringLiteral("x2.FErpClsID in (1,2,3,7,9)");
// Writes one found item's descriptive columns into the row (the look-up's fill).
LUMOICINITIAL_EXPORT void FillItemDetailByF7(EntrySheet &sheet, int row, const Recordset &items, int record);

} // namespace ItemEntry
