#include "tst_taskmutex.h"

#include "scratchaccountset.h"

#include "db/sqlrun.h"
#include "frame/automation/progids.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/recordset.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QProcess>
#include <QSysInfo>
#include <QTest>

namespace {

constexpr int EntryTask = 20;
const QString EntryFunction = QStringLiteral("Cg0802");
// The process every Linux system runs for its whole life.
constexpr qint64 AlwaysRunning = 1;

QVariant call(const QString &member, const QVariantList &args)
{
    const auto mutex = CreateObject(ProgId::NetControlMutex);
    return Dispatch::call(mutex.get(), member, args);
}

int taskExec(const ScratchAccountSet &scratch, int taskId, const QString &computer = QSysInfo::machineHostName())
{
    return call(QStringLiteral("TaskExec"), {scratch.propsString(), taskId, EntryFunction, computer, 3, 0, 0}).toInt();
}

// A registration as another session left it.
void insertTask(const ScratchAccountSet &scratch, int taskId, int userId, const QString &computer, qint64 pid)
{
    SqlRun::exec(
        scratch.db(),
        QStringLiteral("INSERT INTO t_TaskMutex (FTaskID, FFuncCode, FUserID, FComputerName, FProcessID, FStartTime) "
                       "VALUES (?,?,?,?,?,?)"),
        {taskId, EntryFunction, userId, computer, pid, QDateTime::currentDateTime()});
}

int taskCount(const ScratchAccountSet &scratch)
{
    return SqlRun::scalar(scratch.db(), QStringLiteral("SELECT count(*) FROM t_TaskMutex")).toInt();
}

qint64 endedProcessId()
{
    QProcess process;
    process.start(QStringLiteral("true"), {});
    if (!process.waitForStarted())
        return 0;
    const qint64 pid = process.processId();
    process.waitForFinished();
    return pid;
}

} // namespace

// Every case runs on each backend; one that cannot be reached here is skipped.
void TestTaskMutex::initTestCase_data()
{
    addBackendColumn();
    addBackendRows();
}

void TestTaskMutex::init()
{
    QFETCH_GLOBAL(QString, backend);
    REQUIRE_BACKEND(backend);
}

void TestTaskMutex::registersAndCommits()
{
    QFETCH_GLOBAL(QString, backend);
    ScratchAccountSet scratch(backend, ScratchAccountSet::Content::Created);
    const int handle = taskExec(scratch, EntryTask);
    QVERIFY(handle > 0);
    // The same session registering again keeps its one registration.
    QCOMPARE(taskExec(scratch, EntryTask), handle);
    QCOMPARE(taskCount(scratch), 1);
    QVERIFY(call(QStringLiteral("CommitTask"), {scratch.propsString(), handle}).toBool());

    // The eight-argument form records its extra value for the network control tool.
    const int other = call(QStringLiteral("TaskExec"), {scratch.propsString(), 21, QStringLiteral("Cg0803"),
                                                        QSysInfo::machineHostName(), 3, 1, 0, QStringLiteral("额外")})
                          .toInt();
    QVERIFY(other > 0 && other != handle);

    const auto tasks = takeObject<Recordset>(call(QStringLiteral("Tasks"), {scratch.propsString()}));
    QVERIFY(tasks);
    QCOMPARE(tasks->RecordCount(), 2);
    tasks->MoveFirst();
    QCOMPARE(tasks->Fields(QStringLiteral("FTaskHandle")).toInt(), handle);
    QCOMPARE(tasks->Fields(QStringLiteral("FUserID")).toInt(), 16);
    QCOMPARE(tasks->Fields(QStringLiteral("FUserName")).toString(), QStringLiteral("演示员"));
    QCOMPARE(tasks->Fields(QStringLiteral("FProcessID")).toLongLong(), QCoreApplication::applicationPid());
    QCOMPARE(tasks->Fields(QStringLiteral("FCommitted")).toInt(), 1);
    QVERIFY(tasks->Fields(QStringLiteral("FStartTime")).toDateTime().isValid());
    tasks->MoveNext();
    QCOMPARE(tasks->Fields(QStringLiteral("FExtra")).toString(), QStringLiteral("额外"));
    QCOMPARE(tasks->Fields(QStringLiteral("FFlagA")).toInt(), 1);
    QCOMPARE(tasks->Fields(QStringLiteral("FCommitted")).toInt(), 0);
}

void TestTaskMutex::refusesLiveTaskOfAnotherSession()
{
    QFETCH_GLOBAL(QString, backend);
    ScratchAccountSet scratch(backend, ScratchAccountSet::Content::Created);
    // Another user on this computer, in a running process.
    insertTask(scratch, EntryTask, 17, QSysInfo::machineHostName(), AlwaysRunning);
    QCOMPARE(taskExec(scratch, EntryTask), 0);
    // Another task is free.
    QVERIFY(taskExec(scratch, EntryTask + 1) > 0);

    // The same user in another process counts as another session too.
    ScratchAccountSet second(backend, ScratchAccountSet::Content::Created);
    insertTask(second, EntryTask, 16, QSysInfo::machineHostName(), AlwaysRunning);
    QCOMPARE(taskExec(second, EntryTask), 0);

    // A process on another computer cannot be checked from here, so it counts as running.
    ScratchAccountSet third(backend, ScratchAccountSet::Content::Created);
    insertTask(third, EntryTask, 17, QStringLiteral("OTHER-PC"), endedProcessId());
    QCOMPARE(taskExec(third, EntryTask), 0);
    QCOMPARE(taskCount(third), 1);
}

void TestTaskMutex::clearsTasksOfEndedProcesses()
{
    QFETCH_GLOBAL(QString, backend);
    ScratchAccountSet scratch(backend, ScratchAccountSet::Content::Created);
    const qint64 ended = endedProcessId();
    QVERIFY(ended > 0);
    insertTask(scratch, EntryTask, 17, QSysInfo::machineHostName(), ended);
    const int handle = taskExec(scratch, EntryTask);
    QVERIFY(handle > 0);
    QCOMPARE(taskCount(scratch), 1);
    QCOMPARE(SqlRun::scalar(scratch.db(), QStringLiteral("SELECT FUserID FROM t_TaskMutex")).toInt(), 16);

    // The tool's list leaves ended processes out as well.
    insertTask(scratch, EntryTask + 5, 17, QSysInfo::machineHostName(), ended);
    const auto tasks = takeObject<Recordset>(call(QStringLiteral("Tasks"), {scratch.propsString()}));
    QCOMPARE(tasks->RecordCount(), 1);
}

void TestTaskMutex::commitsOnlyOwnHandles()
{
    QFETCH_GLOBAL(QString, backend);
    ScratchAccountSet scratch(backend, ScratchAccountSet::Content::Created);
    QVERIFY(!call(QStringLiteral("CommitTask"), {scratch.propsString(), 4711}).toBool());
    insertTask(scratch, EntryTask, 17, QSysInfo::machineHostName(), AlwaysRunning);
    const int foreign = SqlRun::scalar(scratch.db(), QStringLiteral("SELECT FTaskHandle FROM t_TaskMutex")).toInt();
    QVERIFY(!call(QStringLiteral("CommitTask"), {scratch.propsString(), foreign}).toBool());
    QCOMPARE(SqlRun::scalar(scratch.db(), QStringLiteral("SELECT FCommitted FROM t_TaskMutex")).toInt(), 0);
}

void TestTaskMutex::releaseFreesTheTask()
{
    QFETCH_GLOBAL(QString, backend);
    ScratchAccountSet scratch(backend, ScratchAccountSet::Content::Created);
    insertTask(scratch, EntryTask, 17, QStringLiteral("OTHER-PC"), AlwaysRunning);
    const int foreign = SqlRun::scalar(scratch.db(), QStringLiteral("SELECT FTaskHandle FROM t_TaskMutex")).toInt();
    QCOMPARE(taskExec(scratch, EntryTask), 0);
    QVERIFY(call(QStringLiteral("ReleaseTask"), {scratch.propsString(), foreign}).toBool());
    QVERIFY(!call(QStringLiteral("ReleaseTask"), {scratch.propsString(), foreign}).toBool());
    const int handle = taskExec(scratch, EntryTask);
    QVERIFY(handle > 0);
    // A released handle is never handed out again.
    QVERIFY(handle != foreign);
}
