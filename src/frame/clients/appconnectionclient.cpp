#include "appconnectionclient.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/progids.h"
#include "frame/automation/recordset.h"

namespace {

const QString ExecuteMember = QStringLiteral("Execute");

} // namespace

AppConnectionClient::AppConnectionClient()
    : m_service(CreateObject(ProgId::AppConnection))
{
}

std::unique_ptr<Recordset> AppConnectionClient::Execute(const QString &sql) const
{
    return takeObject<Recordset>(Dispatch::call(m_service.get(), ExecuteMember, {sql}));
}
