#include "mutexclient.h"

#include "frame/logincontext.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/progids.h"
#include "frame/automation/recordset.h"

#include <QCoreApplication>

namespace {

const QString TaskExecMember = QStringLiteral("TaskExec");
const QString CommitTaskMember = QStringLiteral("CommitTask");
const QString TasksMember = QStringLiteral("Tasks");
const QString TaskIdField = QStringLiteral("FTaskID");
const QString UserIdField = QStringLiteral("FUserID");
const QString UserNameField = QStringLiteral("FUserName");
const QString ComputerNameField = QStringLiteral("FComputerName");
const QString ProcessIdField = QStringLiteral("FProcessID");

} // namespace

MutexClient::MutexClient()
    : m_login(GetLoginObject())
{
    if (!m_login)
        m_mutex = CreateObject(ProgId::NetControlMutex);
}

qint32 MutexClient::TaskExec(qint32 taskId, const QString &funcCode, const QString &computerName, qint16 kind,
                             qint16 flagA, qint16 flagB, const QVariant &extra) const
{
    QVariantList args{taskId, funcCode, computerName, kind, flagA, flagB};
    if (extra.isValid())
        args.append(extra);
    if (m_login)
        return Dispatch::call(m_login, TaskExecMember, args).toInt();
    args.prepend(GetPropsString());
    return Dispatch::call(m_mutex.get(), TaskExecMember, args).toInt();
}

bool MutexClient::CommitTask(qint32 handle) const
{
    if (m_login)
        return Dispatch::call(m_login, CommitTaskMember, {handle}).toBool();
    return Dispatch::call(m_mutex.get(), CommitTaskMember, {GetPropsString(), handle}).toBool();
}

std::optional<TaskHolder> MutexClient::holder(qint32 taskId) const
{
    if (m_login)
        return std::nullopt;
    std::unique_ptr<Recordset> tasks;
    try {
        tasks = takeObject<Recordset>(Dispatch::call(m_mutex.get(), TasksMember, {GetPropsString()}));
    } catch (const LumoError &) {
        return std::nullopt;
    }
    for (int row = 0; tasks && row < tasks->RecordCount(); ++row) {
        if (tasks->value(row, TaskIdField).toInt() != taskId
            || tasks->value(row, ProcessIdField).toLongLong() == QCoreApplication::applicationPid())
            continue;
        // A registration may carry no name; its user number still says who it is.
        QString user = tasks->value(row, UserNameField).toString();
        if (user.isEmpty())
            user = tasks->value(row, UserIdField).toString();
        return TaskHolder{user, tasks->value(row, ComputerNameField).toString()};
    }
    return std::nullopt;
}
