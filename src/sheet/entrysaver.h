#pragma once

#include "sheet/changebook.h"
#include "frame/lumoicinitial_global.h"

#include <QString>

class EntrySheet;

// The save of the entry grid: normalise and check the flagged rows, build one statement text and
// hand it to the data service in one call; the change bookkeeping between loads.
class LUMOICINITIAL_EXPORT EntrySaver
{
public:
    // What a save came to. A refused row names the cell the user must correct.
    struct Outcome
    {
        bool saved = false;
        bool sentNothing = false;
        int refusedRow = 0;
        int refusedCol = 0;
        QString message;
        int written = 0; // rows inserted or updated
        int deleted = 0;
    };

    explicit EntrySaver(EntrySheet &sheet);

    ChangeBook &changes() { return m_changes; }
    // Runs the save sequence up to the call of UpdateINIData; errors of the call propagate after
    // the bookkeeping was emptied (the grid keeps the figures and the row flags).
    Outcome save();
    // Notes a deleted row ("itemId|auxPropId"; empty for a row that was never saved).
    void noteDeleted(const QString &itemAndAuxProp);

private:
    void normaliseRow(int row);
    void markSaved();

    EntrySheet &m_sheet;
    ChangeBook m_changes;
};
