#pragma once

#include "middletier_global.h"

#include "script/boundsql.h"

#include <QString>

// The item-class condition the item look-ups are opened with, "x2.FErpClsID in (1,2,3,7,9)" or
// "x2.FErpClsID<>5": the classes of items that may hold stock. Only these shapes are read -
// FErpClsID (with or without the alias x2.) and IN (whole numbers, ...), = n or <> n, keywords
// in any case - and the numbers are bound. An empty text is no condition.
namespace ErpClassCondition {

// The condition on `column`; throws LumoError (DataError::BadErpClassCondition) for any other text.
LUMOMIDDLETIER_EXPORT script::BoundSql parse(const QString &text, const QString &column);

} // namespace ErpClassCondition
