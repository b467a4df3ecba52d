#pragma once

#include "accountsession.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;

// Log-in to an account set: the account set (a file or a PostgreSQL URI) and the user, chosen
// from the users the account set names. A new, empty account set can be made from here.
class LoginDialog : public QDialog
{
    Q_OBJECT

public:
    LoginDialog(const QString &accountSet, const QString &userName, QWidget *parent = nullptr);

    AccountSession session() const { return m_session; }

protected:
    void accept() override;

private:
    // Reads the users of the account set named in the box into the user list.
    void listUsers();
    void createAccountSet();

    QLineEdit *m_accountSet;
    QComboBox *m_user;
    QLabel *m_users;
    QLabel *m_error;
    QString m_listed;
    AccountSession m_session;
};
