#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>
#include <QVariantList>

// Running statements of the middle tier's own: every value bound, every failure a LumoError
// (MtError::QueryFailed) that names the statement and carries the database's message.
namespace SqlRun {

// Prepares, binds the values in order and runs one statement; the query is forward-only.
LUMOMIDDLETIER_EXPORT QSqlQuery exec(const QSqlDatabase &db, const QString &sql, const QVariantList &values = {});
LUMOMIDDLETIER_EXPORT void execAll(const QSqlDatabase &db, const QStringList &statements);
// The first field of the first row; a null variant when there is no row.
LUMOMIDDLETIER_EXPORT QVariant scalar(const QSqlDatabase &db, const QString &sql, const QVariantList &values = {});
// Qt binds a null QString as NULL; text columns that hold '' for "none" take this instead.
LUMOMIDDLETIER_EXPORT QString text(const QString &value);
// Raises the failure of a query as a LumoError.
[[noreturn]] LUMOMIDDLETIER_EXPORT void fail(const QSqlQuery &query, const QString &sql);

} // namespace SqlRun
