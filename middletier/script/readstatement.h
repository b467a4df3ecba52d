#pragma once

#include "boundsql.h"

#include "dialect/sqldialect.h"

namespace script {

using ReadStatement = BoundSql;

// Checks a read statement that the controls send through Execute of
// "LumoConnection.AppConnection" and turns it into bound SQL for the backend. Only the two
// statements the library writes are accepted, compared token by token without regard to case,
// blanks or line ends, with plain integers where the library writes its ids:
//
//   SELECT FScale FROM t_Currency WHERE FCurrencyID=<currency>
//
//   select isnull((SELECT t2.FCoefficient AS FCoefficient
//    FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID
//    WHERE t1.FItemID = <item> AND t2.FMeasureUnitID=<unit>),0),
//    isnull((SELECT ISNULL(t2.FCoefficient,0) AS FCoefficient
//    FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID
//    WHERE t1.FItemID = <item> AND t2.fmeasureunitid= <secondary unit>),0)
//
// Anything else throws ScriptError (statement 1) with the statement's first characters.
ReadStatement checkRead(const QString &sql, const SqlDialect &dialect = SqlDialect::of(SqlBackend::SQLite));

} // namespace script
