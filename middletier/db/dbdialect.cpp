#include "dbdialect.h"

#include "postgresdialect.h"
#include "sqlitedialect.h"

const DbDialect &DbDialect::of(AcctDbLocation::Backend backend)
{
    static const SqliteDialect sqlite;
    static const PostgresDialect postgres;
    if (backend == AcctDbLocation::Backend::PostgreSQL)
        return postgres;
    return sqlite;
}

const DbDialect &DbDialect::of(const QSqlDatabase &db)
{
    return of(db.driverName() == PostgresDialect::Driver ? AcctDbLocation::Backend::PostgreSQL
                                                         : AcctDbLocation::Backend::SQLite);
}

QString DbDialect::placeholders(int count)
{
    QStringList marks;
    marks.reserve(count);
    for (int i = 0; i < count; ++i)
        marks.append(QStringLiteral("?"));
    return marks.join(QLatin1Char(','));
}

QString DbDialect::upsert(const QString &table, const QStringList &columns, const QStringList &keyColumns) const
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
