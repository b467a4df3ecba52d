#include "glviewclient.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/progids.h"
#include "frame/automation/recordset.h"

#include <QWidget>

namespace {

const QString ItemLookUpMember = QStringLiteral("ItemLookUp");
const QString ReturnOK = QStringLiteral("ReturnOK");

} // namespace

GLViewClient::GLViewClient()
    : m_service(CreateObject(ProgId::GLView))
{
}

std::unique_ptr<Recordset> GLViewClient::ItemLookUp(const QString &condition, const QString &pattern,
                                                    QWidget *parent) const
{
    const auto result = takeObject<Dictionary>(Dispatch::call(
        m_service.get(), ItemLookUpMember,
        {condition, pattern, QString(), QVariant::fromValue(static_cast<QObject *>(parent))}));
    if (!result || !result->Item(ReturnOK).toBool())
        return {};
    auto item = std::make_unique<Recordset>(result->Keys());
    item->appendRow(result->Items().toVector());
    return item;
}
