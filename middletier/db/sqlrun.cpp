#include "sqlrun.h"

#include "mterrors.h"

#include <QSqlError>

namespace {

constexpr int StatementStartLength = 80;

} // namespace

namespace SqlRun {

void fail(const QSqlQuery &query, const QString &sql)
{
    const QString detail =
        QStringLiteral("%1 [%2]").arg(query.lastError().text(), sql.simplified().left(StatementStartLength));
    throw LumoError(MtError::QueryFailed, MtError::QueryFailedText.arg(detail), QStringLiteral("LumoMiddleTier"));
}

QString text(const QString &value)
{
    return value.isNull() ? QStringLiteral("") : value;
}

QSqlQuery exec(const QSqlDatabase &db, const QString &sql, const QVariantList &values)
{
    QSqlQuery query(db);
    query.setForwardOnly(true);
    if (values.isEmpty()) {
        if (!query.exec(sql))
            fail(query, sql);
        return query;
    }
    if (!query.prepare(sql))
        fail(query, sql);
    for (const QVariant &value : values)
        query.addBindValue(value);
    if (!query.exec())
        fail(query, sql);
    return query;
}

void execAll(const QSqlDatabase &db, const QStringList &statements)
{
    for (const QString &sql : statements)
        exec(db, sql);
}

QVariant scalar(const QSqlDatabase &db, const QString &sql, const QVariantList &values)
{
    QSqlQuery query = exec(db, sql, values);
    return query.next() ? query.value(0) : QVariant();
}

} // namespace SqlRun
