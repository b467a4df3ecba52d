#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>
#include <QVariantList>

class SqlDialect;

// Inserts many rows into one table quickly: rows are gathered into multi-row INSERT statements
// of one prepared shape, so a million rows cost a few ten thousand executions. The caller holds
// the transaction; flush() writes what is still gathered.
class LUMOMIDDLETIER_EXPORT BulkInserter
{
public:
    BulkInserter(const QSqlDatabase &db, const SqlDialect &dialect, const QString &table, const QStringList &columns);
    ~BulkInserter();

    BulkInserter(const BulkInserter &) = delete;
    BulkInserter &operator=(const BulkInserter &) = delete;

    // One row, values in column order.
    void add(const QVariantList &row);
    void flush();

    qint64 rowsWritten() const { return m_written; }

private:
    QString insertText(int rows) const;
    void execute(QSqlQuery &query, const QString &sql);

    QSqlDatabase m_db;
    QString m_table;
    QStringList m_columns;
    int m_rowsPerStatement;
    QSqlQuery m_fullBatch;
    QVariantList m_pending;
    qint64 m_written = 0;
};
