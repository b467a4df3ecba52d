#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>

namespace AccessQuery {

// Whether the user holds every bit of `right` on the object. An administrator holds every
// right; an unknown or forbidden user holds none.
LUMOMIDDLETIER_EXPORT bool allowed(const QSqlDatabase &db, int userId, int objectType, int objectId, qint64 right);

} // namespace AccessQuery
