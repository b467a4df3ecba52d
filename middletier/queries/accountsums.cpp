#include "accountsums.h"

#include "dialogfilter.h"
#include "profilevalue.h"

#include "db/recordsetbuilder.h"
#include "db/sqlrun.h"

#include "frame/automation/recordset.h"

#include <utility>

namespace {

const QString CostDiffParameter = QStringLiteral("CostDiffAccountID");
// Converts a row's quantity to its item's standard unit.
const QString ToStandardUnit = QStringLiteral("coalesce(NULLIF(u.FCoefficient,0),1)");

// Each sum and what it adds up on an item account's rows and on the cost difference account's.
struct SumSource
{
    const char *name;
    const char *itemAccount;
    const char *costDiffAccount;
};

constexpr SumSource sums[] = {
    {"FSumYtdBaseBegQty", "v.FYtdAuxBegQty*%1", nullptr},
    {"FSumYtdBaseReceive", "v.FYtdAuxReceive*%1", nullptr},
    {"FSumYtdBaseSend", "v.FYtdAuxSend*%1", nullptr},
    {"FSumBaseBegQty", "v.FAuxBegQty*%1", nullptr},
    {"FSumYtdBegBal", "v.FYtdBegBal", "v.FYtdBegDiff"},
    {"FSumYtdBegDiff", "v.FYtdBegDiff", nullptr},
    {"FSumYtdDebit", "v.FYtdDebit", "v.FYtdReceiveDiff"},
    {"FSumYtdReceiveDiff", "v.FYtdReceiveDiff", nullptr},
    {"FSumYtdCredit", "v.FYtdCredit", "v.FYtdSendDiff"},
    {"FSumYtdSendDiff", "v.FYtdSendDiff", nullptr},
    {"FSumBegBal", "v.FBegBal", "v.FBegDiff"},
    {"FSumBegDiff", "v.FBegDiff", nullptr},
};

const QStringList &accountColumns()
{
    static const QStringList names{QStringLiteral("FAccountID"),  QStringLiteral("FNumber"),
                                   QStringLiteral("FName"),       QStringLiteral("FDC"),
                                   QStringLiteral("FAcctDetail"), QStringLiteral("FDetailID"),
                                   QStringLiteral("FIsCostDiff")};
    return names;
}

} // namespace

namespace AccountSums {

const QStringList &sumFields()
{
    static const QStringList names = [] {
        QStringList list;
        for (const SumSource &sum : sums)
            list.append(QString::fromLatin1(sum.name));
        return list;
    }();
    return names;
}

const QStringList &fields()
{
    static const QStringList names = accountColumns() + sumFields();
    return names;
}

script::BoundSql derivedTable(const QSqlDatabase &db, int period)
{
    const int costDiffAccount = profileValue(db, CostDiffParameter).toInt();
    QStringList itemRows;
    QStringList costDiffRows;
    QStringList totals;
    QStringList outer;
    for (const SumSource &sum : sums) {
        const QString name = QString::fromLatin1(sum.name);
        itemRows.append(QString::fromLatin1(sum.itemAccount).replace(QStringLiteral("%1"), ToStandardUnit)
                        + QStringLiteral(" AS ") + name);
        costDiffRows.append(QString::fromLatin1(sum.costDiffAccount ? sum.costDiffAccount : "0.0"));
        totals.append(QStringLiteral("sum(%1) AS %1").arg(name));
        outer.append(QStringLiteral("coalesce(s.%1,0) AS %1").arg(name));
    }
    script::BoundSql table;
    table.sql = QStringLiteral("(SELECT a.FAccountID, a.FNumber, a.FName, a.FDC, a.FDetail AS FAcctDetail, a.FDetailID, "
                               "CASE WHEN a.FAccountID=? THEN 1 ELSE 0 END AS FIsCostDiff, %1 "
                               "FROM t_Account a LEFT JOIN (SELECT FAccountID, %2 FROM ("
                               "SELECT i.FAcctID AS FAccountID, %3 FROM ICInvInitial v "
                               "JOIN t_ICItem i ON i.FItemID=v.FItemID "
                               "LEFT JOIN t_MeasureUnit u ON u.FMeasureUnitID=v.FUnitID WHERE v.FPeriod=? "
                               "UNION ALL SELECT CAST(? AS INTEGER), %4 FROM ICInvInitial v WHERE v.FPeriod=?) r "
                               "GROUP BY FAccountID) s ON s.FAccountID=a.FAccountID "
                               "WHERE a.FAccountID IN (SELECT FAcctID FROM t_ICItem WHERE FDeleted=0) "
                               "OR a.FAccountID=?)")
                    .arg(outer.join(QStringLiteral(", ")), totals.join(QStringLiteral(", ")),
                         itemRows.join(QStringLiteral(", ")), costDiffRows.join(QStringLiteral(", ")));
    table.values = {costDiffAccount, period, costDiffAccount, period, costDiffAccount};
    return table;
}

script::FilterFields filterFields(const QString &alias)
{
    script::FilterFields result;
    for (const QString &name : fields()) {
        const bool text = name == QLatin1String("FNumber") || name == QLatin1String("FName");
        result.add(name, alias + QLatin1Char('.') + name, text ? script::FieldKind::Text : script::FieldKind::Number);
    }
    return result;
}

Recordset *fetch(const QSqlDatabase &db, int period, const QString &filter, const QString &sort)
{
    const DialogFilter::Applied applied = DialogFilter({filter}, sort).apply(filterFields(QStringLiteral("x")),
                                                                            SqlDialect::of(db));
    const script::BoundSql table = derivedTable(db, period);
    QList<SortKey> order = applied.sort;
    order.append({QStringLiteral("x.FNumber"), false});
    QStringList columns;
    for (const QString &name : fields())
        columns.append(QStringLiteral("x.") + name);
    const QString where = applied.where.isEmpty() ? QString() : QStringLiteral(" WHERE ") + applied.where.sql;
    QSqlQuery query = SqlRun::exec(db,
                                   QStringLiteral("SELECT %1 FROM %2 x%3 ORDER BY %4")
                                       .arg(columns.join(QStringLiteral(", ")), table.sql, where, orderByText(order)),
                                   table.values + applied.where.values);
    return recordsetFromQuery(query, fields());
}

} // namespace AccountSums
