#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

class Recordset;

// What the ledger look-ups of units and accounts offer.
namespace LookupQuery {

LUMOMIDDLETIER_EXPORT const QStringList &unitFields();
// The units of the item's unit group that are offered for conversion (FConversation 1), in
// number order: FMeasureUnitID, FUnitGroupID, FNumber, FName, FCoefficient. None for an
// unknown item.
LUMOMIDDLETIER_EXPORT Recordset *itemUnits(const QSqlDatabase &db, int itemId);

LUMOMIDDLETIER_EXPORT const QStringList &accountFields();
// The accounts whose code or name contains `pattern` (all for an empty one), in code order:
// FAccountID, FNumber, FName, FDC, FDetail, FDetailID, FLevel, FParentID.
LUMOMIDDLETIER_EXPORT Recordset *accounts(const QSqlDatabase &db, const QString &pattern);

} // namespace LookupQuery
