#include "initialdatasql.h"

#include "itemrowfields.h"
#include "pagewindow.h"

#include "db/placetotals.h"

namespace {

// The place condition on rows v.
const QString PlaceCondition = QStringLiteral("v.FStockID=? AND v.FSPID=? AND v.FPeriod=?");
const QString ItemLevelJoins = QStringLiteral("LEFT JOIN t_AuxItem a ON a.FAuxPropID=v.FAuxPropID "
                                              "LEFT JOIN t_AuxClass c ON c.FItemClassID=i.FAuxClassID");

QString andCondition(const script::BoundSql &where)
{
    return where.isEmpty() ? QString() : QStringLiteral(" AND ") + where.sql;
}

} // namespace

InitialDataSql InitialDataSql::build(const PlacePeriod &place, const DialogFilter &filter, bool useShortNumber,
                                     const SqlDialect &dialect)
{
    if (const auto itemLevel = filter.tryApply(ItemRowFields::filterFields(true), dialect))
        return InitialDataSql(place, *itemLevel, false, useShortNumber, dialect);
    return InitialDataSql(place, filter.apply(ItemRowFields::filterFields(false), dialect), true, useShortNumber,
                          dialect);
}

InitialDataSql::InitialDataSql(const PlacePeriod &place, const DialogFilter::Applied &applied, bool groupsFirst,
                               bool useShortNumber, const SqlDialect &dialect)
    : m_place(place)
    , m_applied(applied)
    , m_groupsFirst(groupsFirst)
    , m_keys(applied.sort)
    // With the place's columns hidden from the index choice, SQLite reaches the rows through the
    // item index while it walks the items in number order.
    , m_placeByItem(QStringLiteral("%1=? AND %2=? AND %3=?")
                        .arg(dialect.withoutIndex(QStringLiteral("v.FStockID")),
                             dialect.withoutIndex(QStringLiteral("v.FSPID")), dialect.withoutIndex(QStringLiteral("v.FPeriod"))))
{
    if (useShortNumber)
        m_keys.append({QStringLiteral("i.FShortNumber"), false});
    m_keys.append({QStringLiteral("i.FNumber"), false});
}

QVariantList InitialDataSql::placeValues() const
{
    return {m_place.stockId, m_place.spId, m_place.period};
}

script::BoundSql InitialDataSql::page(const PageWindow &window) const
{
    return m_groupsFirst ? groupedPage(window) : fastPage(window);
}

script::BoundSql InitialDataSql::fastPage(const PageWindow &window) const
{
    QStringList keyColumns;
    QList<SortKey> keyOrder;
    for (qsizetype n = 0; n < m_keys.size(); ++n) {
        const QString alias = QStringLiteral("s%1").arg(n);
        keyColumns.append(m_keys.at(n).column + QStringLiteral(" AS ") + alias);
        keyOrder.append({alias, m_keys.at(n).descending});
    }
    keyOrder.append({QStringLiteral("v.FAuxPropID"), false});
    QList<SortKey> rowOrder = m_keys;
    rowOrder.append({QStringLiteral("g.FAuxPropID"), false});

    script::BoundSql sql;
    sql.sql = QStringLiteral("WITH k AS (SELECT DISTINCT v.FItemID, v.FAuxPropID, %1 "
                             "FROM t_ICItem i CROSS JOIN ICInvInitial v %2 "
                             "WHERE v.FItemID=i.FItemID AND %3%4 ORDER BY %5 LIMIT ? OFFSET ?), "
                             "g AS (SELECT k.FItemID, k.FAuxPropID, %6 FROM k CROSS JOIN ICInvInitial v "
                             "WHERE v.FItemID=k.FItemID AND v.FAuxPropID=k.FAuxPropID AND %3 "
                             "GROUP BY k.FItemID, k.FAuxPropID) "
                             "SELECT %7 FROM g %8 ORDER BY %9")
                  .arg(keyColumns.join(QStringLiteral(", ")), ItemLevelJoins, m_placeByItem,
                       andCondition(m_applied.where), orderByText(keyOrder), ItemRowFields::groupAggregates(),
                       ItemRowFields::rowSelectList(), ItemRowFields::rowJoins(), orderByText(rowOrder));
    sql.values = placeValues() + m_applied.where.values;
    sql.values << window.limit() << window.offset();
    sql.values += placeValues();
    return sql;
}

script::BoundSql InitialDataSql::groupedPage(const PageWindow &window) const
{
    QList<SortKey> rowOrder = m_keys;
    rowOrder.append({QStringLiteral("g.FAuxPropID"), false});
    const QString where = m_applied.where.isEmpty() ? QString() : QStringLiteral(" WHERE ") + m_applied.where.sql;
    script::BoundSql sql;
    sql.sql = QStringLiteral("WITH g AS (SELECT v.FItemID, v.FAuxPropID, %1 FROM ICInvInitial v WHERE %2 "
                             "GROUP BY v.FItemID, v.FAuxPropID) "
                             "SELECT %3 FROM g %4%5 ORDER BY %6 LIMIT ? OFFSET ?")
                  .arg(ItemRowFields::groupAggregates(), PlaceCondition, ItemRowFields::rowSelectList(),
                       ItemRowFields::rowJoins(), where, orderByText(rowOrder));
    sql.values = placeValues() + m_applied.where.values;
    sql.values << window.limit() << window.offset();
    return sql;
}

script::BoundSql InitialDataSql::totals() const
{
    script::BoundSql sql;
    if (m_groupsFirst) {
        const QString where = m_applied.where.isEmpty() ? QString() : QStringLiteral(" WHERE ") + m_applied.where.sql;
        sql.sql = QStringLiteral("WITH g AS (SELECT v.FItemID, v.FAuxPropID, %1 FROM ICInvInitial v WHERE %2 "
                                 "GROUP BY v.FItemID, v.FAuxPropID) "
                                 "SELECT count(*), %3 FROM g %4%5")
                      .arg(ItemRowFields::groupAggregates(), PlaceCondition, ItemRowFields::sumsOverGroups(),
                           ItemRowFields::rowJoins(), where);
        sql.values = placeValues() + m_applied.where.values;
        return sql;
    }
    // The whole place: its totals are kept as its rows are written.
    if (m_applied.where.isEmpty()) {
        sql.sql = PlaceTotals::select();
        sql.values = placeValues();
        return sql;
    }
    // An item-level condition holds for all rows of a group or for none, so the sums over the
    // selected rows are the sums over the selected groups.
    const QString joins = QStringLiteral(" JOIN t_ICItem i ON i.FItemID=v.FItemID ") + ItemLevelJoins;
    const QString rows = QStringLiteral("FROM ICInvInitial v%1 WHERE %2%3")
                             .arg(joins, PlaceCondition, andCondition(m_applied.where));
    sql.sql = QStringLiteral("SELECT (SELECT count(*) FROM (SELECT DISTINCT v.FItemID, v.FAuxPropID %1) d), %2 %1")
                  .arg(rows, ItemRowFields::sumsOverRows());
    const QVariantList values = placeValues() + m_applied.where.values;
    sql.values = values + values;
    return sql;
}

script::BoundSql InitialDataSql::precision(qint64 placeRows) const
{
    // A small place is read whole; in a large one the items are walked from the finest precision
    // down until one is found there, which reads the whole place only when it holds few items.
    constexpr qint64 SmallPlace = 20000;
    if (placeRows <= SmallPlace)
        return {QStringLiteral("SELECT max(i.FQtyDecimal) FROM t_ICItem i WHERE i.FItemID IN "
                               "(SELECT v.FItemID FROM ICInvInitial v WHERE %1)")
                    .arg(PlaceCondition),
                placeValues()};
    return {QStringLiteral("SELECT i.FQtyDecimal FROM t_ICItem i WHERE EXISTS (SELECT 1 FROM ICInvInitial v WHERE %1 "
                           "AND v.FItemID=i.FItemID) ORDER BY i.FQtyDecimal DESC LIMIT 1")
                .arg(PlaceCondition),
            placeValues()};
}
