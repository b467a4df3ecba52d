#pragma once

#include "middletier_global.h"

#include <QObject>
#include <QString>
#include <QVariant>

// "LumoNetControl.Mutex": the network task mutex of an account set, kept in its table
// t_TaskMutex so that it holds across processes and computers.
//
// Rules:
// - A registration belongs to a session: the user ("UserID" of the property string), the
//   computer (the name the caller passes, trimmed and cut to the 80 characters the table keeps;
//   the controls pass this machine's host name, as the service sees it) and the process (this
//   process's id).
// - A task conflicts with a registration of the same task id on the same account set by
//   another session. Registrations of one session never conflict: a session registering its
//   task again gets its own handle back, with the registration started afresh.
// - funcCode, kind, flagA, flagB and extra are recorded for the list of tasks (Tasks); they do
//   not change the conflict rule.
// - Before every check a registration that has gone stale is removed: one of a process of this
//   computer that no longer runs (no /proc/<pid>), and one of another computer registered more
//   than 12 hours ago (its process cannot be checked from here).
// - CommitTask marks that the registering function has finished starting; the registration
//   stays and keeps excluding other sessions until its session releases it or it goes stale.
//   Nobody else can release a live registration.
class LUMOMIDDLETIER_EXPORT LumoNetControlMutex : public QObject
{
    Q_OBJECT

public:
    explicit LumoNetControlMutex(QObject *parent = nullptr);

    // The handle (> 0) of the registration, or 0 when a live registration of another session
    // holds the task.
    Q_INVOKABLE int TaskExec(const QString &PropsString, int taskId, const QString &funcCode,
                             const QString &computerName, int kind, int flagA, int flagB,
                             const QVariant &extra = QVariant());
    // True when the handle is a registration of this process and user; false otherwise.
    Q_INVOKABLE bool CommitTask(const QString &PropsString, int handle);
    // Removes a registration of this session, or one that has gone stale; false otherwise.
    Q_INVOKABLE bool ReleaseTask(const QString &PropsString, int handle);
    // A new Recordset of the live registrations: FTaskHandle, FTaskID, FFuncCode, FUserID,
    // FUserName, FComputerName, FProcessID, FKind, FFlagA, FFlagB, FExtra, FStartTime, FCommitted.
    Q_INVOKABLE QObject *Tasks(const QString &PropsString);
};
