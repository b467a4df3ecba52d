#pragma once

#include <QString>
#include <QVariant>
#include <QVariantList>

#include <functional>
#include <memory>

class Dictionary;
class Recordset;

// Late-bound calls on the middle tier's services as the controls make them, for the suites.
namespace ServiceCalls {

// The error number a LumoError raised by the action carries; 0 when nothing was raised.
int errorNumberOf(const std::function<void()> &action);
// Publishes the login the services that take no property string work on (empty: none).
void publishLogin(const QString &props);
// A member of a new object of the ProgID, called by name.
QVariant call(const QString &progId, const QString &member, const QVariantList &args);
// The same, taking the Recordset or Dictionary the member returns (empty when it returned none).
std::unique_ptr<Recordset> recordset(const QString &progId, const QString &member, const QVariantList &args);
std::unique_ptr<Dictionary> dictionary(const QString &progId, const QString &member, const QVariantList &args);
// One field of every record, in order.
QVariantList column(Recordset &rs, const QString &field);

} // namespace ServiceCalls
