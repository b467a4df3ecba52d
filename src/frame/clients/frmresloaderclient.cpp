#include "frmresloaderclient.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/progids.h"

namespace {

const QString LoadFrmResStringsMember = QStringLiteral("LoadFrmResStrings");
const QString SetFrmFontMember = QStringLiteral("SetFrmFont");
const QString GetZ9FontPropsMember = QStringLiteral("GetZ9FontProps");

} // namespace

FrmResLoaderClient::FrmResLoaderClient()
    : m_service(CreateObject(ProgId::FrmResLoader))
{
}

void FrmResLoaderClient::LoadFrmResStrings(QObject *form, const QString &language, const QString &emptyText,
                                           const QString &resourceSet, QObject *options) const
{
    Dispatch::call(m_service.get(), LoadFrmResStringsMember,
                   {QVariant::fromValue(form), language, emptyText, resourceSet, QVariant::fromValue(options)});
}

void FrmResLoaderClient::SetFrmFont(QObject *controls, const QString &language) const
{
    Dispatch::call(m_service.get(), SetFrmFontMember, {QVariant::fromValue(controls), language});
}

std::unique_ptr<QObject> FrmResLoaderClient::GetZ9FontProps(const QString &language) const
{
    return takeObject<QObject>(Dispatch::call(m_service.get(), GetZ9FontPropsMember, {language}));
}
