#include "lookupquery.h"

#include "db/recordsetbuilder.h"
#include "db/sqlrun.h"

#include "dialect/sqldialect.h"

namespace LookupQuery {

const QStringList &unitFields()
{
    static const QStringList names{QStringLiteral("FMeasureUnitID"), QStringLiteral("FUnitGroupID"),
                                   QStringLiteral("FNumber"), QStringLiteral("FName"), QStringLiteral("FCoefficient")};
    return names;
}

Recordset *itemUnits(const QSqlDatabase &db, int itemId)
{
    QSqlQuery query = SqlRun::exec(
        db,
        QStringLiteral("SELECT u.FMeasureUnitID, u.FUnitGroupID, u.FNumber, u.FName, u.FCoefficient "
                       "FROM t_MeasureUnit u JOIN t_ICItem i ON i.FUnitGroupID=u.FUnitGroupID "
                       "WHERE i.FItemID=? AND u.FConversation=1 ORDER BY u.FNumber"),
        {itemId});
    return recordsetFromQuery(query, unitFields());
}

const QStringList &accountFields()
{
    static const QStringList names{QStringLiteral("FAccountID"), QStringLiteral("FNumber"),  QStringLiteral("FName"),
                                   QStringLiteral("FDC"),        QStringLiteral("FDetail"),  QStringLiteral("FDetailID"),
                                   QStringLiteral("FLevel"),     QStringLiteral("FParentID")};
    return names;
}

Recordset *accounts(const QSqlDatabase &db, const QString &pattern)
{
    QString condition;
    QVariantList values;
    if (!pattern.trimmed().isEmpty()) {
        const QString like = SqlDialect::of(db).likeOperator(false);
        condition = QStringLiteral(" WHERE FNumber %1 ? OR FName %1 ?").arg(like);
        const QString contains = QLatin1Char('%') + pattern.trimmed() + QLatin1Char('%');
        values << contains << contains;
    }
    QSqlQuery query = SqlRun::exec(db,
                                   QStringLiteral("SELECT FAccountID, FNumber, FName, FDC, FDetail, FDetailID, FLevel, "
                                                  "FParentID FROM t_Account%1 ORDER BY FNumber")
                                       .arg(condition),
                                   values);
    return recordsetFromQuery(query, accountFields());
}

} // namespace LookupQuery
