#pragma once

#include <QString>
#include <QTextStream>

// The commands of lumo-acct; each writes its report to `out` and raises LumoError on failure.
namespace AcctCommands {

void create(const QString &acctDb, QTextStream &out);
void migrate(const QString &acctDb, QTextStream &out);
// Creates the account set when it does not exist yet; refuses one that already holds warehouses.
void demo(const QString &acctDb, int items, int warehouses, QTextStream &out);
void inspect(const QString &acctDb, QTextStream &out);

} // namespace AcctCommands
