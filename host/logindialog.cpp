#include "logindialog.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

LoginDialog::LoginDialog(const QString &accountSet, const QString &userName, QWidget *parent)
    : QDialog(parent)
    , m_accountSet(new QLineEdit(accountSet, this))
    , m_user(new QLineEdit(userName, this))
    , m_error(new QLabel(this))
{
    setWindowTitle(QStringLiteral("登录账套"));
    auto *browse = new QPushButton(QStringLiteral("浏览..."), this);
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString file = QFileDialog::getOpenFileName(this, QStringLiteral("选择账套"), m_accountSet->text());
        if (!file.isEmpty())
            m_accountSet->setText(file);
    });
    auto *path = new QHBoxLayout;
    path->addWidget(m_accountSet, 1);
    path->addWidget(browse);
    m_accountSet->setMinimumWidth(360);
    m_error->setStyleSheet(QStringLiteral("color: #a00000"));
    m_error->setWordWrap(true);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("登录"));
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("取消"));
    connect(buttons, &QDialogButtonBox::accepted, this, &LoginDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &LoginDialog::reject);

    auto *form = new QFormLayout(this);
    form->addRow(QStringLiteral("账套："), path);
    form->addRow(QStringLiteral("用户："), m_user);
    form->addRow(m_error);
    form->addRow(buttons);
}

void LoginDialog::accept()
{
    QString error;
    if (!AccountSetup::logIn(m_accountSet->text().trimmed(), m_user->text().trimmed(), &m_session, &error)) {
        m_error->setText(error);
        return;
    }
    QDialog::accept();
}
