#pragma once

#include "middletier_global.h"

#include <QString>
#include <QStringList>

class SqlDialect;

// The totals of one place (warehouse, stock place, period) of ICInvInitial: how many item rows
// (item and auxiliary property) it holds and the sums of the twelve figures. Summing a large
// warehouse on every page costs more than the page itself, so row triggers keep them in their
// own table as the balance rows are written, in the same transaction.
class LUMOMIDDLETIER_EXPORT PlaceTotals
{
public:
    static inline const QString Table = QStringLiteral("ICInvInitialTotals");
    static inline const QString GroupCount = QStringLiteral("FGroups");
    static constexpr int Since = 3;
    // The version whose triggers lock the place's totals before they count its item rows.
    static constexpr int LockingSince = 5;

    // The twelve figure columns, named as in ICInvInitial.
    static const QStringList &figures();
    // The triggers on ICInvInitial that keep the table.
    static QStringList triggerStatements(const SqlDialect &dialect);
    // Removes them, so that a newer version can put its own in their place.
    static QStringList dropTriggerStatements(const SqlDialect &dialect);
    // Fills the table from the rows already there (an account set upgraded to the version).
    static QString backfill();
    // FGroups and the twelve sums of one place: '?' for FStockID, FSPID, FPeriod.
    static QString select();
    // A kept sum to ten decimals, the precision figures are written with: adding and taking away
    // rows leaves binary noise below that (0.1 + 0.2 - 0.2 - 0.1 is not 0).
    static double rounded(double sum);
};
