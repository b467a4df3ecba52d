#pragma once

#include <QString>

// A log-in to an account set: who, on which account set, and the property string the suite
// publishes for the controls.
struct AccountSession
{
    QString accountSet; // SQLite path or postgresql:// URI
    QString userName;
    int userId = 0;

    // Throws LumoError for a user name or account set the property string cannot carry.
    QString propsString() const;
};

namespace AccountSetup {

// The demo account set of this user, made by lumo-acct on first use.
QString demoAccountSetPath();
// Checks the user against the account set's users; the session with the user's number.
bool logIn(const QString &accountSet, const QString &userName, AccountSession *session, QString *error);
// Puts the property string into the shared-property service for this process.
void publish(const AccountSession &session);

} // namespace AccountSetup
