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

// The items of the look-up: those of the item classes `erpClassCondition` allows (see
// ErpClassCondition) whose code, short code or name contains `pattern` (every item for an
// empty pattern), in code order.
LUMOMIDDLETIER_EXPORT Recordset *lookup(const QSqlDatabase &db, const QString &erpClassCondition,
                                        const QString &pattern);

} // namespace ItemQuery
