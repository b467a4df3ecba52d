#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>

class SqlDialect;

// A transaction that rolls back unless it was committed, so an exception leaves the account
// set as it was.
class LUMOMIDDLETIER_EXPORT Transaction
{
public:
    explicit Transaction(const QSqlDatabase &db);
    // Holds the table against every other writer until commit (the task mutex, migrations).
    Transaction(const QSqlDatabase &db, const SqlDialect &dialect, const QString &exclusiveTable);
    ~Transaction();

    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit();

private:
    QSqlDatabase m_db;
    bool m_open = false;
};
