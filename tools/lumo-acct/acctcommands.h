#pragma once

#include <QString>
#include <QTextStream>

// The commands of lumo-acct; each writes its report to `out` and raises LumoError on failure.
namespace AcctCommands {

inline const QString DefaultAdministrator = QStringLiteral("Administrator");

// Makes an empty account set whose administrator logs in as `administrator`.
void create(const QString &acctDb, const QString &administrator, QTextStream &out);
void migrate(const QString &acctDb, QTextStream &out);
// Creates the account set when it does not exist yet; refuses one that already holds warehouses.
void demo(const QString &acctDb, int items, int warehouses, QTextStream &out);
void inspect(const QString &acctDb, QTextStream &out);
// The users who may log in (not forbidden), one name per line, for people and for the log-in dialog.
void users(const QString &acctDb, QTextStream &out);

} // namespace AcctCommands
