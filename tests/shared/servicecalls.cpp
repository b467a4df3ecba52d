#include "servicecalls.h"
#include "fakeservices.h"

#include "mterrors.h"
#include "services/sharedpropertystore.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/recordset.h"

#include <QCoreApplication>

namespace ServiceCalls {

int errorNumberOf(const std::function<void()> &action)
{
    const std::optional<LumoError> error = raisedBy(action);
    return error ? error->number() : 0;
}

void publishLogin(const QString &props)
{
    SharedPropertyStore::instance().setValue(QCoreApplication::applicationPid(), SharedPropertyStore::PropsStringKey,
                                             props);
}

QVariant call(const QString &progId, const QString &member, const QVariantList &args)
{
    const auto object = CreateObject(progId);
    return Dispatch::call(object.get(), member, args);
}

std::unique_ptr<Recordset> recordset(const QString &progId, const QString &member, const QVariantList &args)
{
    return takeObject<Recordset>(call(progId, member, args));
}

std::unique_ptr<Dictionary> dictionary(const QString &progId, const QString &member, const QVariantList &args)
{
    return takeObject<Dictionary>(call(progId, member, args));
}

QVariantList column(Recordset &rs, const QString &field)
{
    QVariantList values;
    for (rs.MoveFirst(); !rs.atEnd(); rs.MoveNext())
        values.append(rs.Fields(field));
    rs.MoveFirst();
    return values;
}

} // namespace ServiceCalls
