#include "initialdataquery.h"

#include "itemrowfields.h"
#include "pagedresult.h"
#include "pagewindow.h"
#include "dataerrors.h"

#include "db/placetotals.h"
#include "db/recordsetbuilder.h"
#include "db/sqlrun.h"

#include "frame/automation/lumoerror.h"
#include "frame/automation/recordset.h"

namespace InitialDataQuery {

Dictionary *fetch(const QSqlDatabase &db, const Request &request)
{
    const PageWindow window(request.pageSize, request.pageIndex);
    const DialogFilter filter(request.filters, request.sort);
    const auto sql = InitialDataSql::build(request.place, filter, request.useShortNumber, SqlDialect::of(db));
    // A text the parser refuses is said so, rather than answered with an empty place.
    if (!sql)
        throw LumoError(DataError::BadFilter,
                        filter.refusal(ItemRowFields::filterFields(false), SqlDialect::of(db)),
                        QStringLiteral("FetchYtdInitialData"));
    qint64 recordCount = 0;
    QVector<QVariant> sums(ItemRowFields::figureFields().size(), 0.0);
    QVariant qtyDecimal;
    const script::BoundSql totals = sql->totals();
    QSqlQuery sumsQuery = SqlRun::exec(db, totals.sql, totals.values);
    if (sumsQuery.next()) {
        recordCount = sumsQuery.value(0).toLongLong();
        for (qsizetype f = 0; f < sums.size(); ++f)
            sums[f] = PlaceTotals::rounded(sumsQuery.value(int(f) + 1).toDouble());
    }
    const script::BoundSql precision = sql->precision(recordCount);
    QSqlQuery decimals = SqlRun::exec(db, precision.sql, precision.values);
    if (decimals.next())
        qtyDecimal = decimals.value(0);

    std::unique_ptr<Recordset> rows;
    if (window.offset() < recordCount) {
        const script::BoundSql page = sql->page(window);
        QSqlQuery query = SqlRun::exec(db, page.sql, page.values);
        rows.reset(recordsetFromQuery(query, ItemRowFields::rowFields()));
    } else {
        rows = std::make_unique<Recordset>(ItemRowFields::rowFields());
    }
    return PagedResult::make(std::move(rows), window.totalPages(recordCount), recordCount,
                             PagedResult::totals(db, sums, qtyDecimal));
}

} // namespace InitialDataQuery
