#pragma once

#include "frame/lumoicinitial_global.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

#include <memory>
#include <optional>

// Who holds a task that was refused.
struct TaskHolder
{
    QString userName;
    QString computerName;
};

// Client of the suite's network task mutex. A host that logged in through its own login object
// registers tasks there (that object knows its session, so no property string goes with the
// calls); otherwise a "LumoNetControl.Mutex" service of our own does, told the current property
// string.
class LUMOICINITIAL_EXPORT MutexClient
{
public:
    MutexClient();

    // The handle of the registration, below 1 when the task is refused. `extra` goes along only
    // when valid.
    qint32 TaskExec(qint32 taskId, const QString &funcCode, const QString &computerName, qint16 kind, qint16 flagA,
                    qint16 flagB, const QVariant &extra = QVariant()) const;
    bool CommitTask(qint32 handle) const;
    // The session of another process that holds the task, from the service's list of tasks;
    // empty when that cannot be told (a host's login object keeps no list, or the list cannot
    // be read).
    std::optional<TaskHolder> holder(qint32 taskId) const;

private:
    QPointer<QObject> m_login;
    std::unique_ptr<QObject> m_mutex;
};
