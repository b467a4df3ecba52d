#pragma once

#include "acctdblocation.h"
#include "middletier_global.h"

#include <QSqlDatabase>

class SqlDialect;

// One account set is one database. Services find it from the property string's "AcctDB" and
// work on this thread's connection to it, opened on first use and kept for the thread (a
// QSqlDatabase must stay in the thread that opened it). The first opening in a process brings an
// older account set up to the current schema version.
class LUMOMIDDLETIER_EXPORT AccountSet
{
public:
    static inline const QString AcctDbKey = QStringLiteral("AcctDB");

    // The account set named by the property string; throws LumoError when "AcctDB" is missing,
    // the account set does not exist or cannot be opened.
    static AccountSet fromPropsString(const QString &propsString);
    // An existing account set, migrated when it is older than this program.
    static AccountSet open(const QString &acctDb);
    // A new account set: the SQLite file must not exist yet, the PostgreSQL database (or the
    // schema named in the URI) must hold no tables.
    static AccountSet create(const QString &acctDb);
    // Brings an existing account set to the current schema version; returns the version it had.
    static int migrate(const QString &acctDb);
    // Forgets this thread's connection to the account set (before its file is removed).
    static void close(const QString &acctDb);

    QSqlDatabase database() const { return m_db; }
    const SqlDialect &dialect() const;
    const AcctDbLocation &location() const { return m_location; }

private:
    AccountSet(const AcctDbLocation &location, const QSqlDatabase &db);

    AcctDbLocation m_location;
    QSqlDatabase m_db;
};
