#include "regclient.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/progids.h"

namespace {

const QString GetKeyValueMember = QStringLiteral("GetKeyValue");

} // namespace

RegClient::RegClient()
    : m_service(CreateObject(ProgId::Reg))
{
}

QString RegClient::GetKeyValue(const QString &keyPath, const QString &valueName, const QString &valueType) const
{
    return Dispatch::call(m_service.get(), GetKeyValueMember, {keyPath, valueName, valueType}).toString();
}
