#pragma once

#include "middletier_global.h"

#include <QElapsedTimer>
#include <QHash>
#include <QMutex>
#include <QString>

// The trace behind "QLLogMsg.Log": pairs of start and end lines with time stamps and the
// elapsed milliseconds, appended to a text file. It is on when the environment says LUMO_LOG=1
// or the setting "Log/Enabled" of "LumoICInitial" is true; the file is LUMO_LOG_FILE, else
// lumo-trace.log in the application's local data folder.
class LUMOMIDDLETIER_EXPORT TraceLog
{
public:
    static inline const char *SwitchVariable = "LUMO_LOG";
    static inline const char *FileVariable = "LUMO_LOG_FILE";
    static inline const QString SettingsOrganization = QStringLiteral("Lumo");
    static inline const QString SettingsApplication = QStringLiteral("LumoICInitial");
    static inline const QString EnabledSetting = QStringLiteral("Log/Enabled");
    static inline const QString FileName = QStringLiteral("lumo-trace.log");

    static TraceLog &instance();

    bool enabled() const;
    QString filePath() const;

    // The handle of the new entry; 0 (and nothing written) when the trace is off.
    int start(const QString &text);
    // Writes the end line of a started entry; an unknown handle writes nothing.
    void end(int handle, int value);

private:
    TraceLog() = default;
    void write(const QString &line);

    struct Entry
    {
        QString text;
        QElapsedTimer timer;
    };

    QMutex m_mutex;
    QHash<int, Entry> m_open;
    int m_lastHandle = 0;
};
