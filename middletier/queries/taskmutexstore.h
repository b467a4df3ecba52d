#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

class SqlDialect;
class Recordset;

// Who registers a task: a user, on a computer, in a process. Two registrations of the same
// session never conflict.
struct TaskSession
{
    int userId = 0;
    QString userName;
    QString computerName;
    qint64 processId = 0;
};

struct TaskRequest
{
    int taskId = 0;
    QString funcCode;
    int kind = 0;
    int flagA = 0;
    int flagB = 0;
    QString extra;
};

// The task table of the network task mutex (t_TaskMutex) of one account set. Every change runs
// in a transaction that holds the table against other writers, so two processes registering
// the same task at once cannot both succeed. See LumoNetControlMutex for the rules.
class LUMOMIDDLETIER_EXPORT TaskMutexStore
{
public:
    inline static const QStringList Fields{
        QStringLiteral("FTaskHandle"), QStringLiteral("FTaskID"),   QStringLiteral("FFuncCode"),
        QStringLiteral("FUserID"),     QStringLiteral("FUserName"), QStringLiteral("FComputerName"),
        QStringLiteral("FProcessID"),  QStringLiteral("FKind"),     QStringLiteral("FFlagA"),
        QStringLiteral("FFlagB"),      QStringLiteral("FExtra"),    QStringLiteral("FStartTime"),
        QStringLiteral("FCommitted")};

    // localComputer: the computer whose processes can be checked (this one).
    TaskMutexStore(const QSqlDatabase &db, const SqlDialect &dialect, const QString &localComputer);

    // The handle (> 0) of the session's registration of the task, or 0 when a live
    // registration of another session holds the same task.
    int registerTask(const TaskSession &session, const TaskRequest &request);
    // Marks the session's registration as committed; false for a handle the session does not hold.
    bool commit(const TaskSession &session, int handle);
    // Removes the session's own registration, or one that has gone stale; false otherwise.
    bool release(const TaskSession &session, int handle);
    // Every live registration, oldest first (fields above).
    Recordset *tasks();

    // Removes the registrations of processes of this computer that no longer run, and those of
    // other computers older than RemoteLifetime; how many.
    int clearStale();

    static bool processAlive(qint64 processId);

    // How long a registration of another computer counts as live: its process cannot be checked
    // from here, and a working day's session is shorter.
    static constexpr qint64 RemoteLifetimeSeconds = 12 * 60 * 60;

private:
    // The handles removed.
    QList<int> clearStaleInTransaction();
    // A computer name as the table keeps it: trimmed and cut to the column.
    static QString storedName(const QString &computerName);

    QSqlDatabase m_db;
    const SqlDialect &m_dialect;
    QString m_localComputer;
};
