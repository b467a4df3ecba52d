#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

class Recordset;

// Item records as the entry grid fills a row from them (by code or from the item look-up):
// FItemID, FShortNumber, FNumber, FName, FModel, FPlanPrice, FUnitID, FStoreUnitID, FSecUnitID,
// FSecCoefficient, FPriceDecimal, FQtyDecimal, FKFPeriod, FAuxClassID, FTrack, FBatchManager,
// FISKFPeriod, and the names FUnitName, FSecUnit, FAuxClassName, FTrackName (empty when none).
// Deleted items are never offered.
namespace ItemQuery {

LUMOMIDDLETIER_EXPORT const QStringList &fields();

// The items whose code is `code` (trimmed): the short code when the account set shows short
// codes (system parameter UseShortNumber), else the full code. Several items may share a short
// code; the caller decides what to make of none or several.
LUMOMIDDLETIER_EXPORT Recordset *byCode(const QSqlDatabase &db, const QString &code);

// Where a page of the look-up starts: after the item of this code and id (the last of the page
// before); an item id of 0 starts at the first item.
struct PageKey
{
    QString number;
    int itemId = 0;
};

// One page of the look-up, at most `count` items (1 to MaxLookupPage): those of the item
// classes `erpClassCondition` allows (see ErpClassCondition) whose code, short code, name or
// model contains `pattern` as typed (% and _ match themselves; every item for an empty
// pattern), in code order after `after`. Pages are read by key, so a late page costs what the
// first does.
inline constexpr int MaxLookupPage = 1000;
LUMOMIDDLETIER_EXPORT Recordset *lookup(const QSqlDatabase &db, const QString &erpClassCondition,
                                        const QString &pattern, const PageKey &after, int count);

} // namespace ItemQuery
