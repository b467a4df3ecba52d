#pragma once

#include "automation_global.h"

#include <QObject>
#include <QVariant>
#include <QVariantList>

// Late-bound calls: a member of an object by its published name or by its member id, with the
// arguments converted to the member's parameter types. Errors the member raises (LumoError)
// reach the caller unchanged; an unknown member or a failed conversion raises LumoError too.
namespace Dispatch {

// A Q_INVOKABLE method matched by name and argument count, or else a Q_PROPERTY (no argument:
// read, one argument: write).
LUMOAUTOMATION_EXPORT QVariant call(QObject *object, const QString &member, const QVariantList &args = {});
// By name (a text) or by member id of a registered type library (a number).
LUMOAUTOMATION_EXPORT QVariant invoke(QObject *object, const QVariant &memberIdOrName, const QVariantList &args = {});
LUMOAUTOMATION_EXPORT QVariant getProperty(QObject *object, const QString &name);
LUMOAUTOMATION_EXPORT void setProperty(QObject *object, const QString &name, const QVariant &value);
// Whether the object has a method or property of that name.
LUMOAUTOMATION_EXPORT bool hasMember(const QObject *object, const QString &member);

} // namespace Dispatch
