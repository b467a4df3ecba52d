#include "itemquery.h"

#include "erpclasscondition.h"
#include "profilevalue.h"
#include "valuationnames.h"

#include "db/recordsetbuilder.h"
#include "db/sqlrun.h"

#include "dialect/sqldialect.h"

namespace {

const QString UseShortNumberParameter = QStringLiteral("UseShortNumber");

QString itemSelect()
{
    return QStringLiteral("SELECT i.FItemID, i.FShortNumber, i.FNumber, i.FName, i.FModel, i.FPlanPrice, i.FUnitID, "
                          "i.FStoreUnitID, i.FSecUnitID, i.FSecCoefficient, i.FPriceDecimal, i.FQtyDecimal, "
                          "i.FKFPeriod, i.FAuxClassID, i.FTrack, i.FBatchManager, i.FISKFPeriod, "
                          "coalesce(u.FName,''), coalesce(su.FName,''), coalesce(c.FName,''), %1 "
                          "FROM t_ICItem i LEFT JOIN t_MeasureUnit u ON u.FMeasureUnitID=i.FUnitID "
                          "LEFT JOIN t_MeasureUnit su ON su.FMeasureUnitID=i.FSecUnitID "
                          "LEFT JOIN t_AuxClass c ON c.FItemClassID=i.FAuxClassID WHERE i.FDeleted=0")
        .arg(ValuationNames::caseExpression(QStringLiteral("i.FTrack")));
}

Recordset *run(const QSqlDatabase &db, const QString &conditions, const QVariantList &values,
               const QString &tail = QStringLiteral(" ORDER BY i.FNumber"))
{
    QSqlQuery query = SqlRun::exec(db, itemSelect() + conditions + tail, values);
    return recordsetFromQuery(query, ItemQuery::fields());
}

// The typed text as a LIKE pattern for "contains": its own %, _ and escape character match
// themselves.
QString containsPattern(const QString &text)
{
    QString escaped = text;
    escaped.replace(QLatin1Char('\\'), QStringLiteral("\\\\"))
        .replace(QLatin1Char('%'), QStringLiteral("\\%"))
        .replace(QLatin1Char('_'), QStringLiteral("\\_"));
    return QLatin1Char('%') + escaped + QLatin1Char('%');
}

} // namespace

namespace ItemQuery {

const QStringList &fields()
{
    static const QStringList names{
        QStringLiteral("FItemID"),       QStringLiteral("FShortNumber"), QStringLiteral("FNumber"),
        QStringLiteral("FName"),         QStringLiteral("FModel"),       QStringLiteral("FPlanPrice"),
        QStringLiteral("FUnitID"),       QStringLiteral("FStoreUnitID"), QStringLiteral("FSecUnitID"),
        QStringLiteral("FSecCoefficient"), QStringLiteral("FPriceDecimal"), QStringLiteral("FQtyDecimal"),
        QStringLiteral("FKFPeriod"),     QStringLiteral("FAuxClassID"),  QStringLiteral("FTrack"),
        QStringLiteral("FBatchManager"), QStringLiteral("FISKFPeriod"),  QStringLiteral("FUnitName"),
        QStringLiteral("FSecUnit"),      QStringLiteral("FAuxClassName"), QStringLiteral("FTrackName")};
    return names;
}

Recordset *byCode(const QSqlDatabase &db, const QString &code)
{
    const bool shortCode = profileValue(db, UseShortNumberParameter).toInt() != 0;
    return run(db, shortCode ? QStringLiteral(" AND i.FShortNumber=?") : QStringLiteral(" AND i.FNumber=?"),
               {code.trimmed()});
}

Recordset *lookup(const QSqlDatabase &db, const QString &erpClassCondition, const QString &pattern,
                  const PageKey &after, int count)
{
    const script::BoundSql classes = ErpClassCondition::parse(erpClassCondition, QStringLiteral("i.FErpClsID"));
    QString conditions;
    QVariantList values;
    if (!classes.isEmpty()) {
        conditions += QStringLiteral(" AND ") + classes.sql;
        values += classes.values;
    }
    if (!pattern.trimmed().isEmpty()) {
        const QString like = SqlDialect::of(db).likeOperator(false) + QStringLiteral(" ? ESCAPE '\\'");
        conditions += QStringLiteral(" AND (i.FNumber %1 OR i.FShortNumber %1 OR i.FName %1 OR i.FModel %1)").arg(like);
        const QString contains = containsPattern(pattern.trimmed());
        values << contains << contains << contains << contains;
    }
    if (after.itemId > 0) {
        conditions += QStringLiteral(" AND (i.FNumber>? OR (i.FNumber=? AND i.FItemID>?))");
        values << after.number << after.number << after.itemId;
    }
    values << qBound(1, count, MaxLookupPage);
    return run(db, conditions, values, QStringLiteral(" ORDER BY i.FNumber, i.FItemID LIMIT ?"));
}

} // namespace ItemQuery
