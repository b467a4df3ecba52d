#include "netcontrol.h"

#include "messages.h"

#include "frame/ctlerrors.h"
#include "frame/clients/mutexclient.h"

#include <QSysInfo>

#include <unistd.h>

namespace {

constexpr qint16 TaskKind = 3;
constexpr int ComputerNameBuffer = 40;

} // namespace

QString GetComputerName()
{
    char buffer[ComputerNameBuffer] = {};
    if (gethostname(buffer, sizeof buffer - 1) != 0 || buffer[0] == '\0')
        return QStringLiteral("NoName");
    return QString::fromLocal8Bit(buffer).trimmed();
}

qint32 ExecFunc(qint32 taskId, const QString &funcCode, qint16 flagA, qint16 flagB, const QVariant &extra)
{
    const qint32 handle = MutexClient().TaskExec(taskId, funcCode, GetComputerName(), TaskKind, flagA, flagB, extra);
    if (handle < 1)
        throw LumoError(CtlError::TaskConflict, Msg::TaskConflict, Msg::TaskConflictSource);
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
