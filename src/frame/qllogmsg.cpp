#include "qllogmsg.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/errobject.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/progids.h"

#include <memory>

namespace {


struct LogState
{
    std::unique_ptr<QObject> object;
    bool tried = false;
};

LogState &state()
{
    static LogState log;
    return log;
}

void ensureLogObject()
{
    LogState &log = state();
    if (log.tried)
        return;
    log.tried = true;
    try {
        log.object = CreateObject(ProgId::LogMsgLog);
    } catch (const LumoError &) {
        // No log service: logging stays off.
    }
}

} // namespace

bool IsLogEnabled()
{
    LogState &log = state();
    if (!log.object)
        return false;
    bool enabled = false;
    try {
        enabled = Dispatch::call(log.object.get(), QStringLiteral("IsEnabled")).toBool();
    } catch (const LumoError &) {
        enabled = false;
    }
    if (!enabled)
        log.object.reset();
    return enabled;
}

qint32 LogStart(const QString &text)
{
    ensureLogObject();
    if (!IsLogEnabled())
        return 0;
    return Dispatch::call(state().object.get(), QStringLiteral("LogStart"), {text}).toInt();
}

void LogEnd(qint32 handle, qint32 value)
{
    const ErrState saved = ErrObject::current();
    try {
        if (IsLogEnabled())
            Dispatch::call(state().object.get(), QStringLiteral("LogEnd"), {handle, value});
    } catch (const LumoError &) {
        // A failing log never disturbs the caller.
    }
    if (saved.number != 0)
        ErrObject::set(saved);
}

void resetLog()
{
    state() = LogState{};
}
