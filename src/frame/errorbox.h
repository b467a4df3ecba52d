#pragma once

#include "lumoicinitial_global.h"
#include "prompter.h"

#include <QString>

class LumoError;

// The one message box of the library. With `withErrorInfo` the current error's description and
// source follow the message on their own lines, and the current error is cleared.
LUMOICINITIAL_EXPORT void ShowErrorMsg(const QString &message, bool withErrorInfo);
// The text ShowErrorMsg shows, for the current error.
LUMOICINITIAL_EXPORT QString errorMessageText(const QString &message, bool withErrorInfo);

// A procedure's handler: makes the caught error current and shows "系统在调用函数X()时发生错误"
// with it.
LUMOICINITIAL_EXPORT void reportProcedureError(const QString &procedure, const LumoError &error);

// A question with Yes and No and the question icon, under the usual caption or the one given;
// true only for Yes.
LUMOICINITIAL_EXPORT bool askYesNo(const QString &question);
LUMOICINITIAL_EXPORT bool askYesNo(const QString &question, const QString &caption);
// The same with Cancel, for questions a Cancel must be able to stop (Escape answers Cancel).
LUMOICINITIAL_EXPORT Prompter::Answer askYesNoCancel(const QString &question);
// An information box with OK.
LUMOICINITIAL_EXPORT void tellUser(const QString &message);
