#include "netcontrol.h"

#include "logincontext.h"
#include "messages.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/progids.h"

#include <QSysInfo>

#include <unistd.h>

namespace {

constexpr qint16 TaskKind = 3;
constexpr int ComputerNameBuffer = 40;
constexpr int TaskConflictError = LumoError::AppBase + 100;

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
    QObject *login = GetLoginObject();
    QVariantList args{taskId, funcCode, GetComputerName(), TaskKind, flagA, flagB};
    if (extra.isValid())
        args.append(extra);
    QVariant result;
    if (login) {
        result = Dispatch::call(login, QStringLiteral("TaskExec"), args);
    } else {
        const std::unique_ptr<QObject> mutex = CreateObject(ProgId::NetControlMutex);
        args.prepend(GetPropsString());
        result = Dispatch::call(mutex.get(), QStringLiteral("TaskExec"), args);
    }
    const qint32 handle = result.toInt();
    if (handle < 1)
        throw LumoError(TaskConflictError, Msg::TaskConflict, Msg::TaskConflictSource);
    return handle;
}

bool CommitTask(qint32 handle)
{
    if (handle == 0)
        return false;
    try {
        if (QObject *login = GetLoginObject())
            return Dispatch::call(login, QStringLiteral("CommitTask"), {handle}).toBool();
        const std::unique_ptr<QObject> mutex = CreateObject(ProgId::NetControlMutex);
        return Dispatch::call(mutex.get(), QStringLiteral("CommitTask"), {GetPropsString(), handle}).toBool();
    } catch (const LumoError &) {
        return false;
    }
}
