#include "logclient.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/progids.h"

namespace {

const QString IsEnabledMember = QStringLiteral("IsEnabled");
const QString LogStartMember = QStringLiteral("LogStart");
const QString LogEndMember = QStringLiteral("LogEnd");

} // namespace

LogClient::LogClient()
    : m_service(CreateObject(ProgId::LogMsgLog))
{
}

bool LogClient::IsEnabled() const
{
    return Dispatch::call(m_service.get(), IsEnabledMember).toBool();
}

qint32 LogClient::LogStart(const QString &text) const
{
    return Dispatch::call(m_service.get(), LogStartMember, {text}).toInt();
}

void LogClient::LogEnd(qint32 handle, qint32 value) const
{
    Dispatch::call(m_service.get(), LogEndMember, {handle, value});
}
