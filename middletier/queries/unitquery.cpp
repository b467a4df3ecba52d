#include "unitquery.h"

#include "db/recordsetbuilder.h"
#include "db/sqlrun.h"

namespace UnitQuery {

Recordset *fetchMeasureUnits(const QSqlDatabase &db)
{
    QSqlQuery query =
        SqlRun::exec(db, QStringLiteral("SELECT FMeasureUnitID, FUnitGroupID, FNumber, FName, FCoefficient "
                                        "FROM t_MeasureUnit ORDER BY FUnitGroupID, FNumber"));
    return recordsetFromQuery(query, Fields);
}

} // namespace UnitQuery
