#pragma once

#include <QString>
#include <QStringList>

// The account-set tool lumo-acct beside the suite, run for what the suite offers a person:
// creating the demo account set or a new one, and naming the users of an account set. The suite
// itself never opens the account set's tables; the tool owns them as the services do.
namespace AcctTool {

// Fills the demo account set at `path` when the file is missing.
bool ensureDemo(const QString &path, QString *error);
// Makes an empty account set at `path` (a file or a postgresql:// URI) whose administrator logs
// in as `administrator`.
bool create(const QString &path, const QString &administrator, QString *error);
// The users who may log in; empty with a message when the account set cannot be read.
QStringList users(const QString &path, QString *error);

} // namespace AcctTool
