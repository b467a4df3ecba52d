#include "qllogmsg.h"

#include "frame/clients/logclient.h"

#include "frame/automation/errobject.h"
#include "frame/automation/lumoerror.h"

#include <memory>

namespace {


struct LogState
{
    std::unique_ptr<LogClient> client;
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
        log.client = std::make_unique<LogClient>();
    } catch (const LumoError &) {
        // No log service: logging stays off.
    }
}

} // namespace

bool IsLogEnabled()
{
    LogState &log = state();
    if (!log.client)
        return false;
    bool enabled = false;
    try {
        enabled = log.client->IsEnabled();
    } catch (const LumoError &) {
        enabled = false;
    }
    if (!enabled)
        log.client.reset();
    return enabled;
}

qint32 LogStart(const QString &text)
{
    ensureLogObject();
    if (!IsLogEnabled())
        return 0;
    return state().client->LogStart(text);
}

void LogEnd(qint32 handle, qint32 value)
{
    const ErrState saved = ErrObject::current();
    try {
        if (IsLogEnabled())
            state().client->LogEnd(handle, value);
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
