#pragma once

#include "sqldialect.h"

// SQLite: one file per account set, write-ahead log, foreign keys switched on per connection.
class SqliteDialect final : public SqlDialect
{
public:
    static inline const QString Driver = QStringLiteral("QSQLITE");

    SqlBackend backend() const override { return SqlBackend::SQLite; }
    QString driverName() const override { return Driver; }
    QString identifier(const QString &name) const override;
    QString nullReplacement() const override;
    QString likeOperator(bool negated) const override;
    QString withoutIndex(const QString &column) const override;
    QString asText(const QString &expression) const override;
    QString dateText(const QString &expression) const override;
    QString columnType(ColumnType type, int size) const override;
    QString autoIncrementKey() const override;
    QString insertIgnore(const QString &table, const QStringList &columns) const override;
    QStringList beginExclusive(const QString &table) const override;
    QStringList resetAutoIncrement(const QString &table, const QString &column) const override;
    QStringList sessionSetup(const QString &schema) const override;
    QStringList createContainer(const QString &schema) const override;
    QStringList tableNames(const QSqlDatabase &db) const override;
    QStringList columnNames(const QSqlDatabase &db, const QString &table) const override;
    int maxBindValues() const override;
    bool isDeadlock(const QSqlError &error) const override;
    QStringList beforeRowTrigger(const RowTrigger &trigger) const override;
    QStringList dropRowTrigger(const RowTrigger &trigger) const override;
    QStringList triggerLock(const QString &table, const QString &condition) const override;
};
