#pragma once

#include "columntype.h"
#include "sqlbackend.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QStringList>

// Everything that differs between SQLite and PostgreSQL wherever SQL is written: the rewrites of
// the script executor and the filter parser, the schema's type names, keys and triggers, the
// middle tier's upserts, exclusive transactions and date text, and the catalogue queries. The
// account-set tables use unquoted identifiers, so PostgreSQL folds them to lower case and the
// unquoted output works on both backends.
class SqlDialect
{
public:
    virtual ~SqlDialect() = default;

    static const SqlDialect &of(SqlBackend backend);
    // The dialect of a connection, by its driver; any driver but PostgreSQL's counts as SQLite.
    static const SqlDialect &of(const QSqlDatabase &db);

    virtual SqlBackend backend() const = 0;
    virtual QString driverName() const = 0;

    // A table or column name as the output writes it.
    virtual QString identifier(const QString &name) const = 0;
    // The two-argument "value or replacement" function that stands for the library's isnull(a,b).
    virtual QString nullReplacement() const = 0;
    // isnull(expression, replacement) of the suite's own database.
    QString isNull(const QString &expression, const QString &replacement) const;
    // The pattern match of the filters; it ignores letter case on both backends, as the suite's
    // own database did.
    virtual QString likeOperator(bool negated) const = 0;
    // A column the planner must not choose an index for, so that it keeps the index of the
    // order it walks (SQLite's unary "+"); a backend that needs no such hint gets the column.
    virtual QString withoutIndex(const QString &column) const = 0;
    // An expression compared as text by LIKE, whatever its column type.
    virtual QString asText(const QString &expression) const = 0;
    // A DateTime column as "yyyy-mm-dd" text.
    virtual QString dateText(const QString &expression) const = 0;

    virtual QString columnType(ColumnType type, int size) const = 0;
    // The column definition after the name of an automatically numbered primary key.
    virtual QString autoIncrementKey() const = 0;

    // Insert or replace the row with the same key columns; '?' placeholders in column order.
    QString upsert(const QString &table, const QStringList &columns, const QStringList &keyColumns) const;
    // Insert unless a row with the same key exists; '?' placeholders in column order.
    virtual QString insertIgnore(const QString &table, const QStringList &columns) const = 0;

    // Statements that open a transaction holding the table against other writers until commit.
    virtual QStringList beginExclusive(const QString &table) const = 0;
    // Statements that bring an automatic key past the ids written explicitly (demo data).
    virtual QStringList resetAutoIncrement(const QString &table, const QString &column) const = 0;

    // Statements every new connection runs first; `schema` is the account set's own schema, if
    // its location names one.
    virtual QStringList sessionSetup(const QString &schema) const = 0;
    // The statement that creates the account set's own schema, if its location names one.
    virtual QStringList createContainer(const QString &schema) const = 0;

    // Introspection, names as the backend reports them (PostgreSQL: lower case).
    virtual QStringList tableNames(const QSqlDatabase &db) const = 0;
    virtual QStringList columnNames(const QSqlDatabase &db, const QString &table) const = 0;

    // How many values one statement may bind.
    virtual int maxBindValues() const = 0;
    // The statement failed because the server broke a deadlock with another session by
    // aborting this one's transaction: running it again may well succeed.
    virtual bool isDeadlock(const QSqlError &error) const = 0;

    // A trigger before each row of a table is inserted, updated or deleted; the statements refer
    // to the row as NEW and OLD and see the rows the same statement wrote before it.
    struct RowTrigger
    {
        QString name;
        QString table;
        QStringList onInsert;
        QStringList onUpdate;
        QStringList onDelete;
    };
    virtual QStringList beforeRowTrigger(const RowTrigger &trigger) const = 0;
    // Removes what beforeRowTrigger made (nothing when it is not there).
    virtual QStringList dropRowTrigger(const RowTrigger &trigger) const = 0;
    // Statements for a trigger body that lock the rows of `table` matching `condition` until
    // the transaction ends, so that what the trigger reads after them includes every change
    // committed before; empty where a writer holds the whole database anyway.
    virtual QStringList triggerLock(const QString &table, const QString &condition) const = 0;

protected:
    static QString placeholders(int count);
};
