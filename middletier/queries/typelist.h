#pragma once

#include "middletier_global.h"

#include <QList>
#include <QString>

// The warehouse types FetchStocks receives as an SQL list text, "(500,502,20291,20293)": blanks
// around the numbers are allowed, nothing else. The numbers are bound, never spliced, so any
// other text is refused with LumoError (MtError::BadTypeList). An empty text means all types.
LUMOMIDDLETIER_EXPORT QList<int> parseTypeList(const QString &text);
