#include "initialdataquery.h"

#include "itemrowfields.h"
#include "pagedresult.h"
#include "pagewindow.h"

#include "db/placetotals.h"
#include "db/recordsetbuilder.h"
#include "db/sqlrun.h"

#include "frame/automation/recordset.h"

namespace InitialDataQuery {

Dictionary *fetch(const QSqlDatabase &db, const Request &request)
{
    const PageWindow window(request.pageSize, request.pageIndex);
    const InitialDataSql sql = InitialDataSql::build(request.place, DialogFilter(request.filters, request.sort),
                                                     request.useShortNumber, SqlDialect::of(db));
    qint64 recordCount = 0;
    QVector<QVariant> sums(ItemRowFields::figureFields().size(), 0.0);
    QVariant qtyDecimal;
    const script::BoundSql totals = sql.totals();
    QSqlQuery query = SqlRun::exec(db, totals.sql, totals.values);
    if (query.next()) {
        recordCount = query.value(0).toLongLong();
        for (qsizetype f = 0; f < sums.size(); ++f)
            sums[f] = PlaceTotals::rounded(query.value(int(f) + 1).toDouble());
    }
    const script::BoundSql precision = sql.precision(recordCount);
    QSqlQuery decimals = SqlRun::exec(db, precision.sql, precision.values);
    if (decimals.next())
        qtyDecimal = decimals.value(0);

    std::unique_ptr<Recordset> rows;
    if (window.offset() < recordCount) {
        const script::BoundSql page = sql.page(window);
        QSqlQuery pageQuery = SqlRun::exec(db, page.sql, page.values);
        rows.reset(recordsetFromQuery(pageQuery, ItemRowFields::rowFields()));
    } else {
        rows = std::make_unique<Recordset>(ItemRowFields::rowFields());
    }
    return PagedResult::make(std::move(rows), window.totalPages(recordCount), recordCount,
                             PagedResult::totals(db, sums, qtyDecimal));
}

} // namespace InitialDataQuery
