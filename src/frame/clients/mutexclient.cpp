#include "mutexclient.h"

#include "frame/logincontext.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/progids.h"

namespace {

const QString TaskExecMember = QStringLiteral("TaskExec");
const QString CommitTaskMember = QStringLiteral("CommitTask");

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
