#pragma once

#include "lumoicinitial_global.h"

#include <QString>

// The suite's trace log: procedures write a start and an end entry when the log service is on.
LUMOICINITIAL_EXPORT qint32 LogStart(const QString &text);
LUMOICINITIAL_EXPORT bool IsLogEnabled();
// Keeps the current error as it was, so logging never hides the error a caller is handling.
LUMOICINITIAL_EXPORT void LogEnd(qint32 handle, qint32 value);
// Forgets the log object and that it was tried (tests).
LUMOICINITIAL_EXPORT void resetLog();
