#pragma once

#include "middletier_global.h"

#include <QString>

// The log-in of the suite host to an account set.
namespace LoginQuery {

// The user's FUserID in the account set `acctDb` (a SQLite path or a PostgreSQL URI). Raises
// LumoError with a text the user can read when the account set cannot be opened (see
// AccountSet::open), the user is unknown (DataError::UnknownUser) or forbidden
// (DataError::ForbiddenUser).
LUMOMIDDLETIER_EXPORT int userId(const QString &acctDb, const QString &userName);

} // namespace LoginQuery
