#pragma once

#include "lumoicinitial_global.h"

#include <QString>
#include <QVariant>

// Registration of running functions with the suite's network task mutex, so that two users or two
// windows do not run conflicting functions on one account set.

// The machine's host name, whole; "NoName" when it cannot be read.
LUMOICINITIAL_EXPORT QString GetComputerName();
// Registers a task; the handle (> 0). A refusal raises the conflict error, which names the user
// and computer holding the task when the mutex can tell.
LUMOICINITIAL_EXPORT qint32 ExecFunc(qint32 taskId, const QString &funcCode, qint16 flagA, qint16 flagB,
                                     const QVariant &extra = QVariant());
// Commits a registered task; false for handle 0 (no call) and for any failure.
LUMOICINITIAL_EXPORT bool CommitTask(qint32 handle);

// The entry control's function.
inline constexpr qint32 EntryTaskId = 20;
inline constexpr const char *EntryFuncCode = "Cg0802";
