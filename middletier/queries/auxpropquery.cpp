#include "auxpropquery.h"

#include "db/recordsetbuilder.h"
#include "db/sqlrun.h"

namespace AuxPropQuery {

const QStringList &classFields()
{
    static const QStringList names{QStringLiteral("fname"), QStringLiteral("fitemclassid")};
    return names;
}

Recordset *classes(const QSqlDatabase &db)
{
    QSqlQuery query = SqlRun::exec(db, QStringLiteral("SELECT FName, FItemClassID FROM t_AuxClass ORDER BY FNumber"));
    return recordsetFromQuery(query, classFields());
}

int propertyCount(const QSqlDatabase &db)
{
    return SqlRun::scalar(db, QStringLiteral("SELECT count(*) FROM t_AuxItem")).toInt();
}

} // namespace AuxPropQuery
