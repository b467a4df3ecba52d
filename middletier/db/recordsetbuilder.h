#pragma once

#include "middletier_global.h"

#include <QStringList>

class QSqlQuery;
class Recordset;

// Materializes an executed query as the Recordset a service hands out (new, parentless: the
// caller owns it). With field names given, they replace the backend's names column by column,
// so a result reads "FItemID" on PostgreSQL too, where unquoted names come back in lower case.
LUMOMIDDLETIER_EXPORT Recordset *recordsetFromQuery(QSqlQuery &query, const QStringList &fieldNames = {});
