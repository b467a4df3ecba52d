#include "taskmutexstore.h"

#include "db/schema.h"
#include "db/sqlrun.h"
#include "db/transaction.h"
#include "dialect/sqldialect.h"

#include "frame/automation/recordset.h"

#include <QDateTime>
#include <QFileInfo>

namespace {

const QString Table = QStringLiteral("t_TaskMutex");

// SQLite hands a DateTime column back as its text, PostgreSQL as a date-time.
QVariant asDateTime(const QVariant &value)
{
    if (value.isNull())
        return {};
    if (value.typeId() == QMetaType::QDateTime)
        return value;
    return QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
}

} // namespace

TaskMutexStore::TaskMutexStore(const QSqlDatabase &db, const SqlDialect &dialect, const QString &localComputer)
    : m_db(db)
    , m_dialect(dialect)
    , m_localComputer(storedName(localComputer))
{
}

QString TaskMutexStore::storedName(const QString &computerName)
{
    return computerName.trimmed().left(Schema::ComputerNameWidth);
}

bool TaskMutexStore::processAlive(qint64 processId)
{
    return processId > 0 && QFileInfo::exists(QStringLiteral("/proc/%1").arg(processId));
}

QList<int> TaskMutexStore::clearStaleInTransaction()
{
    QSqlQuery all = SqlRun::exec(
        m_db, QStringLiteral("SELECT FTaskHandle, FProcessID, FComputerName, FStartTime FROM t_TaskMutex"));
    const QDateTime expired = QDateTime::currentDateTime().addSecs(-RemoteLifetimeSeconds);
    QList<int> stale;
    while (all.next()) {
        const bool local = all.value(2).toString().compare(m_localComputer, Qt::CaseInsensitive) == 0;
        if (local ? !processAlive(all.value(1).toLongLong()) : asDateTime(all.value(3)).toDateTime() < expired)
            stale.append(all.value(0).toInt());
    }
    all.finish();
    for (const int handle : stale)
        SqlRun::exec(m_db, QStringLiteral("DELETE FROM t_TaskMutex WHERE FTaskHandle=?"), {handle});
    return stale;
}

int TaskMutexStore::clearStale()
{
    Transaction transaction(m_db, m_dialect, Table);
    const qsizetype removed = clearStaleInTransaction().size();
    transaction.commit();
    return int(removed);
}

int TaskMutexStore::registerTask(const TaskSession &session, const TaskRequest &request)
{
    Transaction transaction(m_db, m_dialect, Table);
    clearStaleInTransaction();
    const QString computerName = storedName(session.computerName);
    const QVariantList sessionValues{request.taskId, session.userId, SqlRun::text(computerName), session.processId};

    const int conflicts = SqlRun::scalar(m_db,
                                         QStringLiteral("SELECT count(*) FROM t_TaskMutex WHERE FTaskID=? AND NOT "
                                                        "(FUserID=? AND FComputerName=? AND FProcessID=?)"),
                                         sessionValues)
                              .toInt();
    if (conflicts > 0) {
        transaction.commit(); // keeps the removal of stale registrations
        return 0;
    }

    const QDateTime now = QDateTime::currentDateTime();
    const QVariant own = SqlRun::scalar(m_db,
                                        QStringLiteral("SELECT FTaskHandle FROM t_TaskMutex WHERE FTaskID=? AND "
                                                       "FUserID=? AND FComputerName=? AND FProcessID=?"),
                                        sessionValues);
    int handle = own.toInt();
    if (!own.isNull()) {
        // A session registering its task again starts it afresh under the same handle.
        SqlRun::exec(m_db,
                     QStringLiteral("UPDATE t_TaskMutex SET FFuncCode=?, FKind=?, FFlagA=?, FFlagB=?, FExtra=?, "
                                    "FStartTime=?, FCommitted=0, FCommitTime=NULL WHERE FTaskHandle=?"),
                     {SqlRun::text(request.funcCode), request.kind, request.flagA, request.flagB,
                      SqlRun::text(request.extra), now, handle});
    } else {
        QSqlQuery insert = SqlRun::exec(
            m_db,
            QStringLiteral(
                "INSERT INTO t_TaskMutex (FTaskID, FFuncCode, FUserID, FUserName, FComputerName, FProcessID, "
                "FKind, FFlagA, FFlagB, FExtra, FStartTime, FCommitted) "
                "VALUES (?,?,?,?,?,?,?,?,?,?,?,0) RETURNING FTaskHandle"),
            {request.taskId, SqlRun::text(request.funcCode), session.userId, SqlRun::text(session.userName),
             SqlRun::text(computerName), session.processId, request.kind, request.flagA, request.flagB,
             SqlRun::text(request.extra), now});
        insert.next();
        handle = insert.value(0).toInt();
        insert.finish();
    }
    transaction.commit();
    return handle;
}

bool TaskMutexStore::commit(const TaskSession &session, int handle)
{
    Transaction transaction(m_db, m_dialect, Table);
    const QSqlQuery update = SqlRun::exec(
        m_db,
        QStringLiteral(
            "UPDATE t_TaskMutex SET FCommitted=1, FCommitTime=? WHERE FTaskHandle=? AND FUserID=? AND FProcessID=?"),
        {QDateTime::currentDateTime(), handle, session.userId, session.processId});
    const bool committed = update.numRowsAffected() > 0;
    transaction.commit();
    return committed;
}

bool TaskMutexStore::release(const TaskSession &session, int handle)
{
    Transaction transaction(m_db, m_dialect, Table);
    const bool stale = clearStaleInTransaction().contains(handle);
    const QSqlQuery remove = SqlRun::exec(
        m_db,
        QStringLiteral(
            "DELETE FROM t_TaskMutex WHERE FTaskHandle=? AND FUserID=? AND FComputerName=? AND FProcessID=?"),
        {handle, session.userId, SqlRun::text(storedName(session.computerName)), session.processId});
    const bool removed = stale || remove.numRowsAffected() > 0;
    transaction.commit();
    return removed;
}

Recordset *TaskMutexStore::tasks()
{
    clearStale();
    QSqlQuery query = SqlRun::exec(
        m_db, QStringLiteral("SELECT %1 FROM t_TaskMutex ORDER BY FTaskHandle").arg(Fields.join(QLatin1Char(','))));
    const int startTime = int(Fields.indexOf(QStringLiteral("FStartTime")));
    auto rs = std::make_unique<Recordset>(Fields);
    while (query.next()) {
        QVector<QVariant> row;
        for (int i = 0; i < Fields.size(); ++i)
            row.append(i == startTime ? asDateTime(query.value(i)) : query.value(i));
        rs->appendRow(std::move(row));
    }
    rs->MoveFirst();
    return rs.release();
}
