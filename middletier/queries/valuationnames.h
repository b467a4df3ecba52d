#pragma once

#include <QString>

// The valuation methods of items (t_ICItem.FTrack) and their names, as the grids show them.
namespace ValuationNames {

// An SQL expression giving the name of the code in `column`: a CASE over the table whose texts
// are constants of this file, so no value of the caller reaches the SQL.
QString caseExpression(const QString &column);

} // namespace ValuationNames
