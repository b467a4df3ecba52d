#include "gldataclient.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/progids.h"

namespace {

const QString AccessCheckMember = QStringLiteral("AccessCheck");

} // namespace

GLDataClient::GLDataClient()
    : m_service(CreateObject(ProgId::GLData))
{
}

bool GLDataClient::AccessCheck(qint32 objectType, qint32 objectId, qint32 right) const
{
    return Dispatch::call(m_service.get(), AccessCheckMember, {objectType, objectId, right}).toBool();
}
