#pragma once

#include "accountsession.h"

#include <QDialog>

class QLabel;
class QLineEdit;

// Log-in to an account set: the account set (a file or a PostgreSQL URI) and the user.
class LoginDialog : public QDialog
{
    Q_OBJECT

public:
    LoginDialog(const QString &accountSet, const QString &userName, QWidget *parent = nullptr);

    AccountSession session() const { return m_session; }

protected:
    void accept() override;

private:
    QLineEdit *m_accountSet;
    QLineEdit *m_user;
    QLabel *m_error;
    AccountSession m_session;
};
