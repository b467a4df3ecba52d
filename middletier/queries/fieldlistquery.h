#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

class Recordset;

// GetSortByFields: the fields the filter dialog offers over the entry control's item rows, for
// conditions ("FVisForQuest") or for sorting ("FVisForOrder"). They are the fields
// FetchYtdInitialData accepts (ItemRowFields), so the dialog never offers a field the fetch
// refuses. An account set may tailor the lists in t_FieldList (data set "ICInitial"): when it
// holds rows for the data set, they decide which fields are offered, their names and their
// order (FIndex); rows for undeclared fields are passed over.
namespace FieldListQuery {

inline const QString DataSet = QStringLiteral("ICInitial");
inline const QString ConditionList = QStringLiteral("FVisForQuest");
inline const QString SortList = QStringLiteral("FVisForOrder");

// "Name" (display name), "FieldName".
LUMOMIDDLETIER_EXPORT const QStringList &fields();
// `kind` is ConditionList or SortList (without regard to case); anything else raises LumoError
// (DataError::BadFieldListKind).
LUMOMIDDLETIER_EXPORT Recordset *fetch(const QSqlDatabase &db, const QString &kind);

} // namespace FieldListQuery
