#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <memory>

class Dictionary;
class Recordset;

// The answer of the paged fetches of the entry control (item rows, reconciliation rows): a
// Dictionary with "Rows" (the page), "TotalPages", "RecordCount" and "Totals" (one record with
// the twelve sums of the whole selection, named as the grid's totals row reads them, and
// FQtyDecimal, the quantity decimals to show them with).
namespace PagedResult {

inline const QString RowsKey = QStringLiteral("Rows");
inline const QString TotalPagesKey = QStringLiteral("TotalPages");
inline const QString RecordCountKey = QStringLiteral("RecordCount");
inline const QString TotalsKey = QStringLiteral("Totals");

// FInitYtdBegQty ... FInitBegDiff, FQtyDecimal.
LUMOMIDDLETIER_EXPORT const QStringList &totalFields();

// The totals record; without sums it has no record at all. Its FQtyDecimal is `qtyDecimal`, or
// the account set's "QtyDecimal" when that is null.
std::unique_ptr<Recordset> totals(const QSqlDatabase &db, const QVector<QVariant> &sums,
                                  const QVariant &qtyDecimal = {});

// A new Dictionary; the caller owns it and the two recordsets in it.
Dictionary *make(std::unique_ptr<Recordset> rows, int totalPages, qint64 recordCount, std::unique_ptr<Recordset> totals);

} // namespace PagedResult
