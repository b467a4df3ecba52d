#pragma once

#include "automation_global.h"

#include <QList>
#include <QPair>
#include <QString>

// The splitter and writer of property strings ("key=value;key={a;b=c};"), shared by the login
// context of the controls, the services that find their account set from the same text and the
// host that publishes it.
//
// A value in braces runs to the first "}" that is not doubled; "}}" inside braces stands for one
// "}". So any value can be carried whole, except blanks at its ends (values are trimmed).

// Splits the remainder at the first separator: returns the first piece and keeps the rest in the
// remainder; without a separator the whole remainder is returned and the remainder emptied.
LUMOAUTOMATION_EXPORT QString TakeToken(QString &remainder, const QString &separator);
// The next key: the text up to "=", trimmed; empty entries before it are passed over.
LUMOAUTOMATION_EXPORT QString PropKey(QString &remainder);
// The next value: up to ";", or, when it starts with "{", up to the closing "}" (with "}}" read
// as "}") and the rest of the entry up to ";" discarded; trimmed.
LUMOAUTOMATION_EXPORT QString PropValue(QString &remainder);

// Every entry in order, until the first empty key. Duplicate keys are kept as they stand.
LUMOAUTOMATION_EXPORT QList<QPair<QString, QString>> splitPropertyString(const QString &text);
// The value of a key (without regard to case), empty when the key is missing.
LUMOAUTOMATION_EXPORT QString propertyValue(const QString &propsString, const QString &key);

// One entry "key=value;", the value in braces when it holds ";", "=", "{" or "}", so that it
// reads back whole and cannot end early to plant another key. Throws LumoError for a key that is
// empty or holds any of those or blanks at its ends, and for a value with blanks at its ends.
LUMOAUTOMATION_EXPORT QString propertyEntry(const QString &key, const QString &value);
