#include "logindialog.h"

#include "accttool.h"
#include "newaccountsetdialog.h"

#include "frame/waitcursor.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

LoginDialog::LoginDialog(const QString &accountSet, const QString &userName, QWidget *parent)
    : QDialog(parent)
    , m_accountSet(new QLineEdit(accountSet, this))
    , m_user(new QComboBox(this))
    , m_users(new QLabel(this))
    , m_error(new QLabel(this))
{
    setWindowTitle(QStringLiteral("登录账套"));
    setObjectName(QStringLiteral("loginDialog"));
    m_accountSet->setObjectName(QStringLiteral("accountSet"));
    m_accountSet->setMinimumWidth(360);
    m_user->setObjectName(QStringLiteral("user"));
    m_user->setEditable(true);
    m_user->setInsertPolicy(QComboBox::NoInsert);
    m_user->setEditText(userName);
    m_users->setObjectName(QStringLiteral("users"));
    m_users->setWordWrap(true);
    m_error->setObjectName(QStringLiteral("error"));
    m_error->setStyleSheet(QStringLiteral("color: #a00000"));
    m_error->setWordWrap(true);

    auto *browse = new QPushButton(QStringLiteral("浏览..."), this);
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString file = QFileDialog::getOpenFileName(this, QStringLiteral("选择账套"), m_accountSet->text());
        if (!file.isEmpty()) {
            m_accountSet->setText(file);
            listUsers();
        }
    });
    auto *create = new QPushButton(QStringLiteral("新建账套..."), this);
    create->setObjectName(QStringLiteral("newAccountSet"));
    connect(create, &QPushButton::clicked, this, &LoginDialog::createAccountSet);
    connect(m_accountSet, &QLineEdit::editingFinished, this, &LoginDialog::listUsers);
    auto *path = new QHBoxLayout;
    path->addWidget(m_accountSet, 1);
    path->addWidget(browse);
    path->addWidget(create);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("登录"));
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("logIn"));
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("取消"));
    connect(buttons, &QDialogButtonBox::accepted, this, &LoginDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &LoginDialog::reject);

    auto *form = new QFormLayout(this);
    form->addRow(QStringLiteral("账套："), path);
    form->addRow(QStringLiteral("用户："), m_user);
    form->addRow(m_users);
    form->addRow(m_error);
    form->addRow(buttons);
    listUsers();
}

void LoginDialog::listUsers()
{
    const QString accountSet = m_accountSet->text().trimmed();
    if (accountSet == m_listed)
        return;
    m_listed = accountSet;
    const QString typed = m_user->currentText();
    m_user->clear();
    m_user->setEditText(typed);
    const bool missingFile = !accountSet.contains(QLatin1String("://")) && !QFileInfo::exists(accountSet);
    if (accountSet.isEmpty() || missingFile) {
        m_users->setText(QStringLiteral("账套不存在，可以用“新建账套...”创建。"));
        return;
    }
    QString error;
    QStringList names;
    {
        const WaitCursor busy;
        names = AcctTool::users(accountSet, &error);
    }
    if (!error.isEmpty()) {
        m_users->setText(error);
        return;
    }
    m_user->addItems(names);
    m_user->setEditText(names.contains(typed) || names.isEmpty() ? typed : names.first());
    m_users->setText(QStringLiteral("本账套的用户：%1").arg(names.join(QStringLiteral("、"))));
}

void LoginDialog::createAccountSet()
{
    NewAccountSetDialog made(this);
    if (made.exec() != QDialog::Accepted)
        return;
    m_accountSet->setText(made.accountSet());
    m_user->setEditText(made.administrator());
    listUsers();
    m_error->clear();
}

void LoginDialog::accept()
{
    QString error;
    if (!AccountSetup::logIn(m_accountSet->text().trimmed(), m_user->currentText().trimmed(), &m_session, &error)) {
        m_error->setText(error);
        adjustSize(); // the message may need more lines than the dialog has
        return;
    }
    QDialog::accept();
}
