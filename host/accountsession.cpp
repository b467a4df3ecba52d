#include "accountsession.h"
#include "frame/automation/progids.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace {

const QString LoginMember = QStringLiteral("Login");

// Values holding ";" or "=" (a PostgreSQL URI) are wrapped in braces.
QString entry(const QString &key, const QString &value)
{
    const bool wrap = value.contains(QLatin1Char(';')) || value.contains(QLatin1Char('='));
    return key + QLatin1Char('=') + (wrap ? QLatin1Char('{') + value + QLatin1Char('}') : value) + QLatin1Char(';');
}

} // namespace

QString AccountSession::propsString() const
{
    return entry(QStringLiteral("UserName"), userName) + entry(QStringLiteral("UserID"), QString::number(userId))
           + entry(QStringLiteral("AcctDB"), accountSet);
}

namespace AccountSetup {

QString demoAccountSetPath()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(folder);
    return QDir(folder).filePath(QStringLiteral("demo-account-set.db"));
}

bool logIn(const QString &accountSet, const QString &userName, AccountSession *session, QString *error)
{
    try {
        const std::unique_ptr<QObject> glData = CreateObject(ProgId::GLData);
        const int userId = Dispatch::call(glData.get(), LoginMember, {accountSet, userName}).toInt();
        *session = AccountSession{accountSet, userName, userId};
        return true;
    } catch (const LumoError &e) {
        *error = e.description();
        return false;
    }
}

void publish(const AccountSession &session)
{
    const std::unique_ptr<QObject> share = CreateObject(ProgId::ShareProps);
    Dispatch::call(share.get(), QStringLiteral("SetProperty"),
                   {qint32(QCoreApplication::applicationPid()), QStringLiteral("PropsString"), session.propsString()});
}

} // namespace AccountSetup
