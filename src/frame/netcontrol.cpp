#include "netcontrol.h"

#include "messages.h"

#include "frame/ctlerrors.h"
#include "frame/clients/mutexclient.h"

#include <QSysInfo>

namespace {

constexpr qint16 TaskKind = 3;
const QString NoName = QStringLiteral("NoName");

} // namespace

QString GetComputerName()
{
    // The whole name, as the task mutex itself sees this computer: a cut name would not be taken
    // for this computer's, so a registration of a process that died would never be cleared.
    const QString name = QSysInfo::machineHostName().trimmed();
    return name.isEmpty() ? NoName : name;
}

qint32 ExecFunc(qint32 taskId, const QString &funcCode, qint16 flagA, qint16 flagB, const QVariant &extra)
{
    const MutexClient mutex;
    const qint32 handle = mutex.TaskExec(taskId, funcCode, GetComputerName(), TaskKind, flagA, flagB, extra);
    if (handle < 1) {
        const std::optional<TaskHolder> holder = mutex.holder(taskId);
        throw LumoError(CtlError::TaskConflict,
                        holder ? Msg::TaskHeldBy.arg(holder->userName, holder->computerName) : Msg::TaskConflict,
                        Msg::TaskConflictSource);
    }
    return handle;
}

bool CommitTask(qint32 handle)
{
    if (handle == 0)
        return false;
    try {
        return MutexClient().CommitTask(handle);
    } catch (const LumoError &) {
        return false;
    }
}
