#include "accountsession.h"
#include "frame/automation/progids.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/propertystring.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace {

const QString LoginMember = QStringLiteral("Login");

} // namespace

QString AccountSession::propsString() const
{
    return propertyEntry(QStringLiteral("UserName"), userName)
           + propertyEntry(QStringLiteral("UserID"), QString::number(userId))
           + propertyEntry(QStringLiteral("AcctDB"), accountSet);
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
        AccountSession loggedIn{accountSet, userName, userId};
        // A name or path the property string cannot carry is refused here, before it is published.
        loggedIn.propsString();
        *session = loggedIn;
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
