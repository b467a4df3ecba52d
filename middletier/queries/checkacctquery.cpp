#include "checkacctquery.h"

#include "accountsums.h"
#include "dialogfilter.h"
#include "itemrowfields.h"
#include "pagedresult.h"
#include "pagewindow.h"
#include "profilevalue.h"

#include "db/recordsetbuilder.h"
#include "db/sqlrun.h"

#include "frame/automation/recordset.h"

namespace {

constexpr int HomeCurrency = 1;
const QString YearParameter = QStringLiteral("CurrentYear");

const QStringList &ledgerFields()
{
    static const QStringList names{QStringLiteral("FGLBeginBalance"), QStringLiteral("FGLYtdDebit"),
                                   QStringLiteral("FGLYtdCredit"), QStringLiteral("FGLSumEndBal"),
                                   QStringLiteral("FICGLDiff")};
    return names;
}

// The sums of the totals record, in its order, over the account rows y.
QString totalsOverAccounts()
{
    static const char *const sources[] = {"FSumYtdBaseBegQty", "FSumYtdBegBal",   "FSumYtdBegDiff",
                                          "FSumYtdBaseReceive", "FSumYtdDebit",   "FSumYtdReceiveDiff",
                                          "FSumYtdBaseSend",    "FSumYtdCredit",  "FSumYtdSendDiff",
                                          "FSumBaseBegQty",     "FSumBegBal",     "FSumBegDiff"};
    QStringList sums;
    for (const char *source : sources)
        sums.append(QStringLiteral("coalesce(sum(y.%1),0)").arg(QLatin1String(source)));
    return sums.join(QStringLiteral(", "));
}

script::BoundSql reconciliationTable(const QSqlDatabase &db, int period)
{
    const script::BoundSql accounts = AccountSums::derivedTable(db, period);
    QStringList columns;
    for (const QString &name : AccountSums::fields())
        columns.append(QStringLiteral("x.") + name);
    script::BoundSql table;
    table.sql = QStringLiteral("(SELECT %1, coalesce(b.FBeginBalance,0) AS FGLBeginBalance, "
                               "coalesce(b.FYtdDebit,0) AS FGLYtdDebit, coalesce(b.FYtdCredit,0) AS FGLYtdCredit, "
                               "coalesce(b.FEndBalance,0) AS FGLSumEndBal, "
                               "x.FSumBegBal-coalesce(b.FEndBalance,0) AS FICGLDiff FROM %2 x "
                               "LEFT JOIN (SELECT FAccountID, sum(FBeginBalance) AS FBeginBalance, "
                               "sum(FYtdDebit) AS FYtdDebit, sum(FYtdCredit) AS FYtdCredit, "
                               "sum(FEndBalance) AS FEndBalance FROM t_Balance "
                               "WHERE FYear=? AND FPeriod=? AND FCurrencyID=? GROUP BY FAccountID) b "
                               "ON b.FAccountID=x.FAccountID)")
                    .arg(columns.join(QStringLiteral(", ")), accounts.sql);
    table.values = accounts.values;
    table.values << profileValue(db, YearParameter) << period << HomeCurrency;
    return table;
}

script::FilterFields reconciliationFields()
{
    script::FilterFields result = AccountSums::filterFields(QStringLiteral("y"));
    for (const QString &name : ledgerFields())
        result.add(name, QStringLiteral("y.") + name, script::FieldKind::Number);
    return result;
}

} // namespace

namespace CheckAcctQuery {

const QStringList &fields()
{
    static const QStringList names = AccountSums::fields() + ledgerFields();
    return names;
}

Dictionary *fetch(const QSqlDatabase &db, const Request &request)
{
    const PageWindow window(request.pageSize, request.pageIndex);
    const DialogFilter::Applied applied = DialogFilter(request.filters, request.sort)
                                              .apply(reconciliationFields(), SqlDialect::of(db));
    const qsizetype sumCount = request.withTotals ? ItemRowFields::figureFields().size() : 0;
    const auto empty = [&] {
        return PagedResult::make(std::make_unique<Recordset>(fields()), 0, 0,
                                 PagedResult::totals(db, QVector<QVariant>(sumCount, 0.0)));
    };

    const script::BoundSql table = reconciliationTable(db, request.period);
    QStringList conditions;
    QVariantList values = table.values;
    if (request.accountId != 0) {
        conditions.append(QStringLiteral("y.FAccountID=?"));
        values.append(request.accountId);
    }
    if (!applied.where.isEmpty()) {
        conditions.append(applied.where.sql);
        values += applied.where.values;
    }
    const QString from = QStringLiteral("FROM %1 y%2").arg(
        table.sql, conditions.isEmpty() ? QString() : QStringLiteral(" WHERE ") + conditions.join(QStringLiteral(" AND ")));

    QSqlQuery counted = SqlRun::exec(
        db,
        QStringLiteral("SELECT count(*)%1 %2")
            .arg(request.withTotals ? QStringLiteral(", ") + totalsOverAccounts() : QString(), from),
        values);
    qint64 recordCount = 0;
    QVector<QVariant> sums;
    if (counted.next()) {
        recordCount = counted.value(0).toLongLong();
        for (qsizetype f = 0; f < sumCount; ++f)
            sums.append(counted.value(int(f) + 1).toDouble());
    }
    if (recordCount == 0)
        return empty();

    QList<SortKey> order = applied.sort;
    order.append({QStringLiteral("y.FNumber"), false});
    QStringList columns;
    for (const QString &name : fields())
        columns.append(QStringLiteral("y.") + name);
    QVariantList pageValues = values;
    pageValues << window.limit() << window.offset();
    QSqlQuery page = SqlRun::exec(db,
                                  QStringLiteral("SELECT %1 %2 ORDER BY %3 LIMIT ? OFFSET ?")
                                      .arg(columns.join(QStringLiteral(", ")), from, orderByText(order)),
                                  pageValues);
    std::unique_ptr<Recordset> rows(recordsetFromQuery(page, fields()));
    return PagedResult::make(std::move(rows), window.totalPages(recordCount), recordCount,
                             PagedResult::totals(db, sums));
}

} // namespace CheckAcctQuery
