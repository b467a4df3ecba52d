#pragma once

#include "middletier_global.h"

#include <QObject>
#include <QString>

// "QLLogMsg.Log": the suite's trace log (see TraceLog for where it writes and how it is
// switched on).
class LUMOMIDDLETIER_EXPORT QLLogMsgLog : public QObject
{
    Q_OBJECT

public:
    explicit QLLogMsgLog(QObject *parent = nullptr);

    Q_INVOKABLE bool IsEnabled();
    // Writes a start line; the handle of the entry, 0 when the log is off.
    Q_INVOKABLE int LogStart(const QString &text);
    // Writes the end line of the entry with the value and the elapsed milliseconds.
    Q_INVOKABLE void LogEnd(int handle, int value);
};
