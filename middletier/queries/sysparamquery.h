#pragma once

#include "middletier_global.h"

#include <QDate>
#include <QSqlDatabase>

class Dictionary;

namespace SysParamQuery {

// A new Dictionary (keys without regard to case) with every declared system parameter, typed
// (see SystemParameterDecl::typed); a parameter without a row gives its default.
LUMOMIDDLETIER_EXPORT Dictionary *fetch(const QSqlDatabase &db, const QDate &today = QDate::currentDate());

} // namespace SysParamQuery
