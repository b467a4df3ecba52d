#pragma once

#include "automation_global.h"

#include <QList>
#include <QPair>
#include <QString>

// The splitter of property strings ("key=value;key={a;b=c};"), shared by the login context of
// the controls and by the services that find their account set from the same text.

// Splits the remainder at the first separator: returns the first piece and keeps the rest in the
// remainder; without a separator the whole remainder is returned and the remainder emptied.
LUMOAUTOMATION_EXPORT QString TakeToken(QString &remainder, const QString &separator);
// The next key: the text up to "=", trimmed; empty entries before it are passed over.
LUMOAUTOMATION_EXPORT QString PropKey(QString &remainder);
// The next value: up to ";", or, when it starts with "{", up to "}" with the rest of the entry
// up to ";" discarded; trimmed.
LUMOAUTOMATION_EXPORT QString PropValue(QString &remainder);

// Every entry in order, until the first empty key. Duplicate keys are kept as they stand.
LUMOAUTOMATION_EXPORT QList<QPair<QString, QString>> splitPropertyString(const QString &text);
// The value of a key (without regard to case), empty when the key is missing.
LUMOAUTOMATION_EXPORT QString propertyValue(const QString &propsString, const QString &key);
