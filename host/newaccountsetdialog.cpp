#include "newaccountsetdialog.h"

#include "accttool.h"

#include "frame/waitcursor.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

const QString DefaultAdministrator = QStringLiteral("Administrator");

} // namespace

NewAccountSetDialog::NewAccountSetDialog(QWidget *parent)
    : QDialog(parent)
    , m_accountSet(new QLineEdit(this))
    , m_administrator(new QLineEdit(DefaultAdministrator, this))
    , m_error(new QLabel(this))
{
    setWindowTitle(QStringLiteral("新建账套"));
    setObjectName(QStringLiteral("newAccountSetDialog"));
    m_accountSet->setObjectName(QStringLiteral("accountSet"));
    m_accountSet->setPlaceholderText(QStringLiteral("账套文件，或 postgresql://用户:密码@主机:端口/数据库"));
    m_accountSet->setMinimumWidth(360);
    m_administrator->setObjectName(QStringLiteral("administrator"));
    auto *browse = new QPushButton(QStringLiteral("浏览..."), this);
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString file = QFileDialog::getSaveFileName(this, QStringLiteral("新账套文件"), m_accountSet->text(),
                                                          QStringLiteral("账套 (*.db)"));
        if (!file.isEmpty())
            m_accountSet->setText(file);
    });
    auto *path = new QHBoxLayout;
    path->addWidget(m_accountSet, 1);
    path->addWidget(browse);
    m_error->setObjectName(QStringLiteral("error"));
    m_error->setStyleSheet(QStringLiteral("color: #a00000"));
    m_error->setWordWrap(true);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("创建"));
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("create"));
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("取消"));
    connect(buttons, &QDialogButtonBox::accepted, this, &NewAccountSetDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &NewAccountSetDialog::reject);

    auto *form = new QFormLayout(this);
    form->addRow(QStringLiteral("账套："), path);
    form->addRow(QStringLiteral("管理员："), m_administrator);
    form->addRow(m_error);
    form->addRow(buttons);
}

QString NewAccountSetDialog::accountSet() const
{
    return m_accountSet->text().trimmed();
}

QString NewAccountSetDialog::administrator() const
{
    return m_administrator->text().trimmed();
}

void NewAccountSetDialog::accept()
{
    if (accountSet().isEmpty()) {
        m_error->setText(QStringLiteral("请输入新账套的文件或 PostgreSQL 地址。"));
        return;
    }
    QString error;
    bool made = false;
    {
        const WaitCursor busy;
        made = AcctTool::create(accountSet(), administrator(), &error);
    }
    if (!made) {
        m_error->setText(error);
        adjustSize(); // the message may need more lines than the dialog has
        return;
    }
    QDialog::accept();
}
