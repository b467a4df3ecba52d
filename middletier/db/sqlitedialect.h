#pragma once

#include "dbdialect.h"

// SQLite: one file per account set, write-ahead log, foreign keys switched on per connection.
class LUMOMIDDLETIER_EXPORT SqliteDialect final : public DbDialect
{
public:
    static inline const QString Driver = QStringLiteral("QSQLITE");

    AcctDbLocation::Backend backend() const override { return AcctDbLocation::Backend::SQLite; }
    QString driverName() const override { return Driver; }
    QString columnType(ColumnType type, int size) const override;
    QString autoIncrementKey() const override;
    QString isNull(const QString &expression, const QString &replacement) const override;
    QString dateText(const QString &expression) const override;
    QString insertIgnore(const QString &table, const QStringList &columns) const override;
    QStringList beginExclusive(const QString &table) const override;
    QStringList resetAutoIncrement(const QString &table, const QString &column) const override;
    QStringList sessionSetup(const AcctDbLocation &location) const override;
    QStringList createContainer(const AcctDbLocation &location) const override;
    QStringList tableNames(const QSqlDatabase &db) const override;
    QStringList columnNames(const QSqlDatabase &db, const QString &table) const override;
    int maxBindValues() const override;
    QStringList beforeRowTrigger(const RowTrigger &trigger) const override;
};
