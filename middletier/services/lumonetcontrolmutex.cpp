#include "lumonetcontrolmutex.h"

#include "db/accountset.h"
#include "queries/taskmutexstore.h"

#include "frame/automation/propertystring.h"
#include "frame/automation/recordset.h"

#include <QCoreApplication>
#include <QSysInfo>

namespace {

const QString UserIdKey = QStringLiteral("UserID");
const QString UserNameKey = QStringLiteral("UserName");

TaskSession sessionOf(const QString &props, const QString &computerName)
{
    return {propertyValue(props, UserIdKey).trimmed().toInt(), propertyValue(props, UserNameKey), computerName,
            QCoreApplication::applicationPid()};
}

TaskMutexStore storeOf(const AccountSet &set)
{
    return TaskMutexStore(set.database(), set.dialect(), QSysInfo::machineHostName());
}

} // namespace

LumoNetControlMutex::LumoNetControlMutex(QObject *parent)
    : QObject(parent)
{
}

int LumoNetControlMutex::TaskExec(const QString &PropsString, int taskId, const QString &funcCode,
                                  const QString &computerName, int kind, int flagA, int flagB, const QVariant &extra)
{
    const AccountSet set = AccountSet::fromPropsString(PropsString);
    return storeOf(set).registerTask(sessionOf(PropsString, computerName.trimmed()),
                                     {taskId, funcCode, kind, flagA, flagB, extra.toString()});
}

bool LumoNetControlMutex::CommitTask(const QString &PropsString, int handle)
{
    const AccountSet set = AccountSet::fromPropsString(PropsString);
    return storeOf(set).commit(sessionOf(PropsString, QSysInfo::machineHostName()), handle);
}

bool LumoNetControlMutex::ReleaseTask(const QString &PropsString, int handle)
{
    const AccountSet set = AccountSet::fromPropsString(PropsString);
    return storeOf(set).release(sessionOf(PropsString, QSysInfo::machineHostName()), handle);
}

QObject *LumoNetControlMutex::Tasks(const QString &PropsString)
{
    const AccountSet set = AccountSet::fromPropsString(PropsString);
    return storeOf(set).tasks();
}
