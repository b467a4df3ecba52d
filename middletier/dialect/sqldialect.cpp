#include "sqldialect.h"

#include "postgresdialect.h"
#include "sqlitedialect.h"

const SqlDialect &SqlDialect::of(SqlBackend backend)
{
    static const SqliteDialect sqlite;
    static const PostgresDialect postgres;
    if (backend == SqlBackend::PostgreSQL)
        return postgres;
    return sqlite;
}

const SqlDialect &SqlDialect::of(const QSqlDatabase &db)
{
    return of(db.driverName().compare(PostgresDialect::Driver, Qt::CaseInsensitive) == 0 ? SqlBackend::PostgreSQL
                                                                                         : SqlBackend::SQLite);
}

QString SqlDialect::isNull(const QString &expression, const QString &replacement) const
{
    return QStringLiteral("%1(%2,%3)").arg(nullReplacement(), expression, replacement);
}

QString SqlDialect::placeholders(int count)
{
    QStringList marks;
    marks.reserve(count);
    for (int i = 0; i < count; ++i)
        marks.append(QStringLiteral("?"));
    return marks.join(QLatin1Char(','));
}

QString SqlDialect::upsert(const QString &table, const QStringList &columns, const QStringList &keyColumns) const
{
    // Both backends take the same ON CONFLICT clause.
    QStringList updates;
    for (const QString &column : columns) {
        if (!keyColumns.contains(column, Qt::CaseInsensitive))
            updates.append(QStringLiteral("%1=excluded.%1").arg(column));
    }
    const QString action = updates.isEmpty() ? QStringLiteral("DO NOTHING")
                                             : QStringLiteral("DO UPDATE SET ") + updates.join(QLatin1Char(','));
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3) ON CONFLICT (%4) %5")
        .arg(table, columns.join(QLatin1Char(',')), placeholders(int(columns.size())),
             keyColumns.join(QLatin1Char(',')), action);
}
