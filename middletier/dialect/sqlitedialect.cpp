#include "sqlitedialect.h"

#include <QSqlQuery>
#include <QVariant>

QString SqliteDialect::columnType(ColumnType type, int size) const
{
    switch (type) {
    case ColumnType::Integer:
    case ColumnType::SmallInt:
    case ColumnType::BigInt:
        return QStringLiteral("INTEGER");
    case ColumnType::Real:
        return QStringLiteral("REAL");
    case ColumnType::Text:
        return QStringLiteral("VARCHAR(%1)").arg(size);
    case ColumnType::LongText:
    case ColumnType::Date:
    case ColumnType::DateTime:
        return QStringLiteral("TEXT");
    }
    return QStringLiteral("TEXT");
}

QString SqliteDialect::autoIncrementKey() const
{
    // AUTOINCREMENT never hands out an id again, not even the last one after it was deleted:
    // a task handle must not come back for another task.
    return QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT");
}

QString SqliteDialect::identifier(const QString &name) const
{
    return name;
}

QString SqliteDialect::nullReplacement() const
{
    return QStringLiteral("ifnull");
}

QString SqliteDialect::likeOperator(bool negated) const
{
    // SQLite's LIKE already ignores the case of ASCII letters.
    return negated ? QStringLiteral("NOT LIKE") : QStringLiteral("LIKE");
}

QString SqliteDialect::withoutIndex(const QString &column) const
{
    return QLatin1Char('+') + column;
}

QString SqliteDialect::asText(const QString &expression) const
{
    // SQLite compares any value as text.
    return expression;
}

QString SqliteDialect::dateText(const QString &expression) const
{
    return QStringLiteral("substr(%1,1,10)").arg(expression);
}

QString SqliteDialect::insertIgnore(const QString &table, const QStringList &columns) const
{
    return QStringLiteral("INSERT OR IGNORE INTO %1 (%2) VALUES (%3)")
        .arg(table, columns.join(QLatin1Char(',')), placeholders(int(columns.size())));
}

QStringList SqliteDialect::beginExclusive(const QString &) const
{
    // A deferred BEGIN would let two writers read first and then dead-lock on the upgrade.
    return {QStringLiteral("BEGIN IMMEDIATE")};
}

QStringList SqliteDialect::resetAutoIncrement(const QString &, const QString &) const
{
    // sqlite_sequence already follows the largest id ever written.
    return {};
}

QStringList SqliteDialect::sessionSetup(const QString &) const
{
    return {QStringLiteral("PRAGMA foreign_keys=ON"), QStringLiteral("PRAGMA journal_mode=WAL"),
            QStringLiteral("PRAGMA synchronous=NORMAL")};
}

QStringList SqliteDialect::createContainer(const QString &) const
{
    return {};
}

QStringList SqliteDialect::tableNames(const QSqlDatabase &db) const
{
    QSqlQuery query(db);
    query.exec(QStringLiteral("SELECT name FROM sqlite_master WHERE type='table' AND name NOT LIKE 'sqlite_%'"));
    QStringList names;
    while (query.next())
        names.append(query.value(0).toString());
    return names;
}

QStringList SqliteDialect::columnNames(const QSqlDatabase &db, const QString &table) const
{
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT name FROM pragma_table_info(?)"));
    query.addBindValue(table);
    query.exec();
    QStringList names;
    while (query.next())
        names.append(query.value(0).toString());
    return names;
}

int SqliteDialect::maxBindValues() const
{
    // The limit of SQLite builds before 3.32; newer ones allow more, but longer statements
    // gain nothing measurable.
    return 999;
}

bool SqliteDialect::isDeadlock(const QSqlError &) const
{
    // Writers queue for the one database lock (with a busy timeout) and never deadlock.
    return false;
}

QStringList SqliteDialect::beforeRowTrigger(const RowTrigger &trigger) const
{
    // SQLite has one trigger per kind of change.
    const auto create = [&](const char *suffix, const char *event, const QStringList &statements) {
        return QStringLiteral("CREATE TRIGGER %1_%2 BEFORE %3 ON %4 FOR EACH ROW BEGIN %5; END")
            .arg(trigger.name, QLatin1String(suffix), QLatin1String(event), trigger.table,
                 statements.join(QStringLiteral("; ")));
    };
    return {create("Ins", "INSERT", trigger.onInsert), create("Upd", "UPDATE", trigger.onUpdate),
            create("Del", "DELETE", trigger.onDelete)};
}

QStringList SqliteDialect::dropRowTrigger(const RowTrigger &trigger) const
{
    QStringList statements;
    for (const char *suffix : {"Ins", "Upd", "Del"})
        statements.append(QStringLiteral("DROP TRIGGER IF EXISTS %1_%2").arg(trigger.name, QLatin1String(suffix)));
    return statements;
}

QStringList SqliteDialect::triggerLock(const QString &, const QString &) const
{
    // A writer holds the whole database until it commits.
    return {};
}
