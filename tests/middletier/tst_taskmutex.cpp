#include "scratchaccountset.h"
#include "servicecalls.h"

#include "db/schema.h"
#include "db/sqlrun.h"
#include "dialect/sqldialect.h"
#include "queries/taskmutexstore.h"
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

using namespace Qt::StringLiterals;

namespace {

constexpr int EntryTask = 20;
const QString EntryFunction = u"Cg0802"_s;
// The process every Linux system runs for its whole life.
constexpr qint64 AlwaysRunning = 1;

QVariant call(const QString &member, const QVariantList &args)
{
    const auto mutex = CreateObject(ProgId::NetControlMutex);
    return Dispatch::call(mutex.get(), member, args);
}

int taskExec(const ScratchAccountSet &scratch, int taskId, const QString &computer = QSysInfo::machineHostName())
{
    return call(u"TaskExec"_s, {scratch.propsString(), taskId, EntryFunction, computer, 3, 0, 0}).toInt();
}

// A registration as another session left it.
void insertTask(const ScratchAccountSet &scratch, int taskId, int userId, const QString &computer, qint64 pid,
                int hoursAgo = 0)
{
    SqlRun::exec(scratch.db(), u"INSERT INTO t_TaskMutex (FTaskID, FFuncCode, FUserID, FComputerName, FProcessID, "
                               "FStartTime) VALUES (?,?,?,?,?,?)"_s,
                 {taskId, EntryFunction, userId, computer, pid, QDateTime::currentDateTime().addSecs(-3600 * hoursAgo)});
}

int taskCount(const ScratchAccountSet &scratch)
{
    return SqlRun::scalar(scratch.db(), u"SELECT count(*) FROM t_TaskMutex"_s).toInt();
}

qint64 endedProcessId()
{
    QProcess process;
    process.start(u"true"_s, {});
    if (!process.waitForStarted())
        return 0;
    const qint64 pid = process.processId();
    process.waitForFinished();
    return pid;
}

} // namespace

// "LumoNetControl.Mutex": who may run a task while another session holds it.
class TestTaskMutex : public QObject
{
    Q_OBJECT

private slots:
    // Every case runs on each backend; one that cannot be reached here is skipped.
    void initTestCase_data()
    {
        addBackends();
    }

    void init()
    {
        QFETCH_GLOBAL(QString, backend);
        REQUIRE_BACKEND(backend);
    }

    void registersAndCommits()
    {
        QFETCH_GLOBAL(QString, backend);
        ScratchAccountSet scratch(backend, ScratchAccountSet::Content::Created);
        const int handle = taskExec(scratch, EntryTask);
        QVERIFY(handle > 0);
        // The same session registering again keeps its one registration.
        QCOMPARE(taskExec(scratch, EntryTask), handle);
        QCOMPARE(taskCount(scratch), 1);
        QVERIFY(call(u"CommitTask"_s, {scratch.propsString(), handle}).toBool());

        // The eight-argument form records its extra value for the list of tasks.
        const int other
            = call(u"TaskExec"_s, {scratch.propsString(), 21, u"Cg0803"_s, QSysInfo::machineHostName(), 3, 1, 0, u"额外"_s}).toInt();
        QVERIFY(other > 0 && other != handle);

        const auto tasks = takeObject<Recordset>(call(u"Tasks"_s, {scratch.propsString()}));
        QVERIFY(tasks);
        // Each field as "first task,second task".
        QStringList seen;
        for (const char *field : {"FTaskHandle", "FUserID", "FUserName", "FProcessID", "FCommitted", "FFlagA", "FExtra"})
            seen.append(QVariant(ServiceCalls::column(*tasks, QLatin1String(field))).toStringList().join(u','));
        const QString pid = QString::number(QCoreApplication::applicationPid());
        QCOMPARE(seen, (QStringList{u"%1,%2"_s.arg(handle).arg(other), u"16,16"_s, u"演示员,演示员"_s, pid + u',' + pid,
                                    u"1,0"_s, u"0,1"_s, u",额外"_s}));
        tasks->MoveFirst();
        QVERIFY(tasks->Fields(u"FStartTime"_s).toDateTime().isValid());
    }

    void anotherLiveSessionHoldsItsTask_data()
    {
        QTest::addColumn<int>("user");
        QTest::addColumn<QString>("computer");
        QTest::addColumn<bool>("ended");
        QTest::addColumn<int>("hoursAgo");
        QTest::addColumn<bool>("refused");
        const QString here = QSysInfo::machineHostName();
        QTest::newRow("another user, running") << 17 << here << false << 0 << true;
        QTest::newRow("same user, another process") << 16 << here << false << 0 << true;
        // A process on another computer cannot be checked from here, so it counts as running
        // until its registration expires.
        QTest::newRow("another computer") << 17 << u"OTHER-PC"_s << true << 11 << true;
        QTest::newRow("another computer, expired") << 17 << u"OTHER-PC"_s << false << 13 << false;
        QTest::newRow("ended process, cleared") << 17 << here << true << 0 << false;
    }

    void anotherLiveSessionHoldsItsTask()
    {
        QFETCH_GLOBAL(QString, backend);
        QFETCH(int, user);
        QFETCH(QString, computer);
        QFETCH(bool, ended);
        QFETCH(int, hoursAgo);
        QFETCH(bool, refused);
        ScratchAccountSet scratch(backend, ScratchAccountSet::Content::Created);
        const qint64 pid = ended ? endedProcessId() : AlwaysRunning;
        QVERIFY(pid > 0);
        insertTask(scratch, EntryTask, user, computer, pid, hoursAgo);
        QCOMPARE(taskExec(scratch, EntryTask) > 0, !refused);
        QCOMPARE(taskCount(scratch), 1);
        QCOMPARE(SqlRun::scalar(scratch.db(), u"SELECT FUserID FROM t_TaskMutex"_s).toInt(), refused ? user : 16);
        // Another task is free; the tool's list leaves ended processes out as well.
        insertTask(scratch, EntryTask + 5, 17, QSysInfo::machineHostName(), endedProcessId());
        QVERIFY(taskExec(scratch, EntryTask + 1) > 0);
        QCOMPARE(takeObject<Recordset>(call(u"Tasks"_s, {scratch.propsString()}))->RecordCount(), 2);
    }

    // Another session's live registration is not this one's to commit or to release.
    void onlyTheOwnerCommitsAndReleases()
    {
        QFETCH_GLOBAL(QString, backend);
        ScratchAccountSet scratch(backend, ScratchAccountSet::Content::Created);
        QVERIFY(!call(u"CommitTask"_s, {scratch.propsString(), 4711}).toBool());
        insertTask(scratch, EntryTask, 17, u"OTHER-PC"_s, AlwaysRunning);
        const int foreign = SqlRun::scalar(scratch.db(), u"SELECT FTaskHandle FROM t_TaskMutex"_s).toInt();
        QVERIFY(!call(u"CommitTask"_s, {scratch.propsString(), foreign}).toBool());
        QVERIFY(!call(u"ReleaseTask"_s, {scratch.propsString(), foreign}).toBool());
        QCOMPARE(SqlRun::scalar(scratch.db(), u"SELECT FCommitted FROM t_TaskMutex"_s).toInt(), 0);
        QCOMPARE(taskExec(scratch, EntryTask), 0);

        const int own = taskExec(scratch, EntryTask + 1);
        QVERIFY(call(u"ReleaseTask"_s, {scratch.propsString(), own}).toBool());
        QVERIFY(!call(u"ReleaseTask"_s, {scratch.propsString(), own}).toBool());
        // A released handle is never handed out again.
        QVERIFY(taskExec(scratch, EntryTask + 1) > own);
    }

    // A name longer than the column is kept cut and still taken for this computer's, so the
    // registration of a process that ended is cleared.
    void longComputerNameIsKeptCut()
    {
        QFETCH_GLOBAL(QString, backend);
        ScratchAccountSet scratch(backend, ScratchAccountSet::Content::Created);
        const QString longName(Schema::ComputerNameWidth + 20, u'h');
        TaskMutexStore store(scratch.db(), SqlDialect::of(scratch.db()), longName);
        TaskRequest entry;
        entry.taskId = EntryTask;
        QVERIFY(store.registerTask({17, u"乙"_s, longName, endedProcessId()}, entry) > 0);
        QVERIFY(store.registerTask({16, u"甲"_s, longName, AlwaysRunning}, entry) > 0);
    }
};

QTEST_MAIN(TestTaskMutex)
#include "tst_taskmutex.moc"
