#pragma once

#include "middletier_global.h"
#include "schema.h"

#include <QDate>
#include <QSqlDatabase>

class SqlDialect;

// Creates and upgrades the tables of one account set. Every change runs in one transaction, so
// an interrupted upgrade leaves the older version intact.
class LUMOMIDDLETIER_EXPORT SchemaManager
{
public:
    SchemaManager(const QSqlDatabase &db, const SqlDialect &dialect);

    // The schema version of the account set; 0 when it has no version table.
    int version() const;
    // The database (or schema) holds no table at all.
    bool isEmpty() const;

    // Creates the tables as they stood at the version, with the rows every account set needs
    // (system parameters, the home currency, the administrator).
    void create(int version = Schema::CurrentVersion, const QDate &today = QDate::currentDate());
    // Brings an older account set to the current version; returns the version it had.
    // Throws LumoError when the account set is newer than this program.
    int migrate(const QDate &today = QDate::currentDate());

private:
    void seed(int from, int to, const QDate &today);
    void recordVersion(int version);

    QSqlDatabase m_db;
    const SqlDialect &m_dialect;
};
