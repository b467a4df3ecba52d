#pragma once

#include "acctdblocation.h"
#include "columntype.h"
#include "middletier_global.h"

#include <QSqlDatabase>
#include <QStringList>

// Everything the middle tier writes differently for SQLite and PostgreSQL: type names,
// automatic keys, "value or replacement", date text, the exclusive transaction, the catalogue
// queries. Tables use unquoted identifiers, so PostgreSQL folds them to lower case.
class LUMOMIDDLETIER_EXPORT DbDialect
{
public:
    virtual ~DbDialect() = default;

    static const DbDialect &of(AcctDbLocation::Backend backend);
    // The dialect of an open connection, by its driver.
    static const DbDialect &of(const QSqlDatabase &db);

    virtual AcctDbLocation::Backend backend() const = 0;
    virtual QString driverName() const = 0;

    virtual QString columnType(ColumnType type, int size) const = 0;
    // The column definition after the name of an automatically numbered primary key.
    virtual QString autoIncrementKey() const = 0;
    // isnull(expression, replacement) of the suite's own database.
    virtual QString isNull(const QString &expression, const QString &replacement) const = 0;
    // A DateTime column as "yyyy-mm-dd" text.
    virtual QString dateText(const QString &expression) const = 0;

    // Insert or replace the row with the same key columns; '?' placeholders in column order.
    QString upsert(const QString &table, const QStringList &columns, const QStringList &keyColumns) const;
    // Insert unless a row with the same key exists; '?' placeholders in column order.
    virtual QString insertIgnore(const QString &table, const QStringList &columns) const = 0;

    // Statements that open a transaction holding the table against other writers until commit.
    virtual QStringList beginExclusive(const QString &table) const = 0;
    // Statements that bring an automatic key past the ids written explicitly (demo data).
    virtual QStringList resetAutoIncrement(const QString &table, const QString &column) const = 0;

    // Statements every new connection runs first.
    virtual QStringList sessionSetup(const AcctDbLocation &location) const = 0;
    // The statement that creates the location's own schema, if it names one.
    virtual QStringList createContainer(const AcctDbLocation &location) const = 0;

    // Introspection, names as the backend reports them (PostgreSQL: lower case).
    virtual QStringList tableNames(const QSqlDatabase &db) const = 0;
    virtual QStringList columnNames(const QSqlDatabase &db, const QString &table) const = 0;

    // How many values one statement may bind.
    virtual int maxBindValues() const = 0;

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

protected:
    static QString placeholders(int count);
};
