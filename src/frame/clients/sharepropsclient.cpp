#include "sharepropsclient.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/progids.h"

namespace {

const QString GetPropertyMember = QStringLiteral("GetProperty");

} // namespace

SharePropsClient::SharePropsClient()
    : m_service(CreateObject(ProgId::ShareProps))
{
}

QVariant SharePropsClient::GetProperty(qint32 processId, const QString &key) const
{
    return Dispatch::call(m_service.get(), GetPropertyMember, {processId, key});
}
