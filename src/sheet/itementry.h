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
// Writes one found item's descriptive columns into the row (the look-up's fill).
LUMOICINITIAL_EXPORT void FillItemDetailByF7(EntrySheet &sheet, int row, const Recordset &items, int record);

} // namespace ItemEntry
