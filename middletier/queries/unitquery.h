#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QStringList>

class Recordset;

namespace UnitQuery {

// FCoefficient converts to the standard unit of the unit's group.
inline const QStringList Fields{QStringLiteral("FMeasureUnitID"), QStringLiteral("FUnitGroupID"),
                                QStringLiteral("FNumber"), QStringLiteral("FName"), QStringLiteral("FCoefficient")};

// Every unit of measure, grouped by unit group, in number order within a group.
LUMOMIDDLETIER_EXPORT Recordset *fetchMeasureUnits(const QSqlDatabase &db);

} // namespace UnitQuery
