#include "pagedresult.h"

#include "itemrowfields.h"
#include "profilevalue.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/recordset.h"

namespace PagedResult {

const QStringList &totalFields()
{
    static const QStringList fields = ItemRowFields::figureFields() + QStringList{QStringLiteral("FQtyDecimal")};
    return fields;
}

std::unique_ptr<Recordset> totals(const QSqlDatabase &db, const QVector<QVariant> &sums, const QVariant &qtyDecimal)
{
    auto record = std::make_unique<Recordset>(totalFields());
    if (!sums.isEmpty()) {
        QVector<QVariant> row = sums;
        row.append(qtyDecimal.isNull() ? profileValue(db, QStringLiteral("QtyDecimal")) : qtyDecimal);
        record->appendRow(std::move(row));
    }
    record->MoveFirst();
    return record;
}

Dictionary *make(std::unique_ptr<Recordset> rows, int totalPages, qint64 recordCount, std::unique_ptr<Recordset> totals)
{
    auto result = std::make_unique<Dictionary>();
    result->setItem(RowsKey, QVariant::fromValue<QObject *>(rows.release()));
    result->setItem(TotalPagesKey, totalPages);
    result->setItem(RecordCountKey, int(recordCount));
    result->setItem(TotalsKey, QVariant::fromValue<QObject *>(totals.release()));
    return result.release();
}

} // namespace PagedResult
