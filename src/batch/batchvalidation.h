#pragma once

#include "batch/batchlayout.h"
#include "sheet/balancecheck.h"
#include "frame/lumoicinitial_global.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

struct ItemInfo;
struct BatchLine;

// Why the lines may not be kept, and the cell to put the cursor on (row -1: no cell).
struct BatchRefusal
{
    int row = -1;
    int col = -1;
    QString message;
};

// What the checks of the batch lines need besides the lines themselves.
struct BatchRules
{
    BalanceRules balance;
    bool allocate = false; // the amounts of the item are apportioned over its batches
};

// What the first check before saving looks at.
struct ApportionState
{
    bool offered = false;    // the "ShareBal" button is enabled
    bool apportioned = false; // and pressed
    bool changed = false;    // the lines changed since loading or saving
};

namespace BatchValidation {

// The shared quantity/amount check of one group of a line, as after an edit of one of its cells.
LUMOICINITIAL_EXPORT BalanceVerdict checkGroup(const BatchLine &line, const BatchGroup &group, const ItemInfo &item,
                                               const BatchRules &rules);

// A batch number typed into a line that had `loaded` when the lines were read: empty is refused,
// and so is one that another line holds when the item refuses repeats on entry. nullopt: accepted.
LUMOICINITIAL_EXPORT std::optional<QString> checkTypedBatch(const ItemInfo &item, const QString &typed,
                                                            const QString &loaded, const QStringList &otherLines);

// Everything checked before a save, in order: the apportioning, each changed line (batch number,
// the four groups, production date and shelf life, stock-in date), then repeats over all lines.
LUMOICINITIAL_EXPORT std::optional<BatchRefusal> checkBeforeSave(const ItemInfo &item, const BatchRules &rules,
                                                                 const ApportionState &apportion,
                                                                 const QList<BatchLine> &lines);

// Two lines with the same key: batch number and production date for an item under both
// managements, else whichever of the two the item is managed by.
LUMOICINITIAL_EXPORT std::optional<BatchRefusal> findRepeat(const ItemInfo &item, const QList<BatchLine> &lines);

} // namespace BatchValidation
