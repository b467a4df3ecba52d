#pragma once

#include "frame/lumoicinitial_global.h"

#include <QDate>
#include <QVariant>

// Values as the services and the opener hand them over: flags as booleans, numbers or "True",
// dates as dates or texts.
namespace RecordValues {

LUMOICINITIAL_EXPORT bool flag(const QVariant &value);

// A record's date: a date, or a text "yyyy-mm-dd" (a time after it is ignored) or "mmddyyyy".
// Invalid for anything else, an empty text included.
LUMOICINITIAL_EXPORT QDate date(const QVariant &value);

} // namespace RecordValues
