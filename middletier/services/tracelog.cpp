#include "tracelog.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace {

const QString StampFormat = QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz");

} // namespace

TraceLog &TraceLog::instance()
{
    static TraceLog log;
    return log;
}

bool TraceLog::enabled() const
{
    if (qgetenv(SwitchVariable) == "1")
        return true;
    const QSettings settings(SettingsOrganization, SettingsApplication);
    return settings.value(EnabledSetting, false).toBool();
}

QString TraceLog::filePath() const
{
    const QString path = qEnvironmentVariable(FileVariable);
    if (!path.isEmpty())
        return path;
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QLatin1Char('/') + FileName;
}

void TraceLog::write(const QString &line)
{
    const QString path = filePath();
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text))
        return; // a trace that cannot be written never disturbs the caller
    const QString stamped = QStringLiteral("%1\t%2\t%3\n")
                                .arg(QDateTime::currentDateTime().toString(StampFormat))
                                .arg(QCoreApplication::applicationPid())
                                .arg(line);
    file.write(stamped.toUtf8());
}

int TraceLog::start(const QString &text)
{
    if (!enabled())
        return 0;
    QMutexLocker lock(&m_mutex);
    const int handle = ++m_lastHandle;
    Entry &entry = m_open[handle];
    entry.text = text;
    entry.timer.start();
    write(QStringLiteral("START\t#%1\t%2").arg(handle).arg(text));
    return handle;
}

void TraceLog::end(int handle, int value)
{
    QMutexLocker lock(&m_mutex);
    const auto it = m_open.find(handle);
    if (it == m_open.end())
        return;
    const Entry entry = *it;
    m_open.erase(it);
    write(QStringLiteral("END\t#%1\t%2\tvalue=%3\t%4 ms")
              .arg(handle)
              .arg(entry.text)
              .arg(value)
              .arg(entry.timer.elapsed()));
}
