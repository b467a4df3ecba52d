#include "fakeservices.h"

#include "frame/errorbox.h"
#include "frame/logincontext.h"
#include "frame/messages.h"
#include "frame/netcontrol.h"
#include "frame/prompter.h"
#include "frame/qllogmsg.h"
#include "frame/sysparams.h"

#include "frame/clients/initialdataclient.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/errobject.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/recordset.h"

#include <QCoreApplication>
#include <QTest>

#include <functional>

using ServiceCall = std::function<void()>;
Q_DECLARE_METATYPE(ServiceCall)

namespace {

const QString EmptyDataProgId = QStringLiteral("Test.EmptyData");

// A data service that answers every member with nothing.
class EmptyData : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE QObject *FetchSysParameter(const QString &) { return nullptr; }
    Q_INVOKABLE QObject *FetchStocks(const QString &, const QString &) { return nullptr; }
    Q_INVOKABLE QObject *FetchYtdAccounts(const QString &, int) { return nullptr; }
    Q_INVOKABLE QObject *FetchYtdInitialData(const QString &, int, int, int, int, int, const QString &, const QString &,
                                             const QString &, const QString &, bool) { return nullptr; }
    Q_INVOKABLE QObject *FetchYtdBatManDetail(const QString &, int, int, int, int, int, int, bool, bool,
                                              const QString &) { return nullptr; }
    Q_INVOKABLE QObject *FetchYtdItemDetail(const QString &, const QString &) { return nullptr; }
    Q_INVOKABLE QObject *GetInitData(const QString &, const QString &) { return nullptr; }
};

} // namespace

class TestFrameServices : public QObject
{
    Q_OBJECT

private:
    ScriptedPrompter m_prompter;

private slots:
    void initTestCase()
    {
        registerFakeServices();
        ComponentRegistry::instance().registerClass(EmptyDataProgId, [] { return new EmptyData; });
        Prompter::install(&m_prompter);
    }

    void cleanupTestCase() { Prompter::install(nullptr); }

    void init()
    {
        FakeWorld::instance().reset();
        LoginContext::instance().reset();
        m_prompter.clear();
        ErrObject::clear();
        resetLog();
    }

    // The procedure's error box: the reason and source follow when asked for, and the error is
    // cleared once shown; without them the error is left for the caller.
    void errorBox()
    {
        ErrObject::set(LumoError(1234, QStringLiteral("磁盘已满"), QStringLiteral("LumoMICInitial.Data")));
        ShowErrorMsg(QStringLiteral("系统在调用函数LoadingStocks()时发生错误"), true);
        QCOMPARE(m_prompter.messages().size(), 1);
        const Prompter::Message &shown = m_prompter.messages().first();
        QCOMPARE((std::tuple{shown.caption, shown.text, shown.buttons, shown.icon}),
                 (std::tuple{QStringLiteral("澄枫提示"),
                             QStringLiteral("系统在调用函数LoadingStocks()时发生错误\r\n错误原因：磁盘已满\r\n错误来源：LumoMICInitial.Data"),
                             Prompter::Buttons::Ok, Prompter::Icon::Information}));
        QCOMPARE(ErrObject::current().number, 0);

        ErrObject::set(LumoError(77, QStringLiteral("x")));
        ShowErrorMsg(QStringLiteral("只有消息"), false);
        QCOMPARE(m_prompter.messages().last().text, QStringLiteral("只有消息"));
        QCOMPARE(ErrObject::current().number, 77);
    }

    void accessRefusedTellsTheUser()
    {
        FakeWorld::instance().rights = {QStringLiteral("1099/10/16")};
        QVERIFY(CheckAccess(1099, 10, 16));
        QVERIFY(m_prompter.messages().isEmpty());
        QVERIFY(!CheckAccess(1099, 10, 32768));
        QCOMPARE(m_prompter.messages().size(), 1);
        QCOMPARE(m_prompter.messages().first().text, QStringLiteral("没有权限,请与系统管理员联系"));
        // An error inside the check counts as a refusal.
        QVERIFY(!CheckAccess(-1, 10, 16));
        QCOMPARE(m_prompter.messages().size(), 2);
    }

    void refusedTaskRaisesTheConflictError()
    {
        FakeWorld::instance().taskHandle = 0;
        const std::optional<LumoError> error = raisedBy([] { ExecFunc(20, QStringLiteral("Cg0802"), 0, 0); });
        QVERIFY(error);
        QCOMPARE((std::pair{error->source(), error->description()}),
                 (std::pair{QStringLiteral("MNetControl.ExecFunc"), Msg::TaskConflict}));
        QVERIFY(error->number() > LumoError::AppBase);
        // The message names who holds the task, passing over this process's own registrations.
        const qint64 self = QCoreApplication::applicationPid();
        FakeWorld::instance().tasks = {{20, 16, QStringLiteral("演示员"), QStringLiteral("HERE"), self},
                                       {21, 9, QStringLiteral("张三"), QStringLiteral("PC-21"), 77},
                                       {20, 9, QString(), QStringLiteral("PC-20"), 78}};
        const std::optional<LumoError> held = raisedBy([] { ExecFunc(20, QStringLiteral("Cg0802"), 0, 0); });
        QCOMPARE(held ? held->description() : QString(),
                 Msg::TaskHeldBy.arg(QStringLiteral("9"), QStringLiteral("PC-20")));
        FakeWorld::instance().taskHandle = 12;
        QCOMPARE(ExecFunc(20, QStringLiteral("Cg0802"), 0, 0), 12);
    }

    void logWritesStartAndEndAndKeepsTheCallersError()
    {
        const qint32 handle = LogStart(QStringLiteral("tvICInit_NodeClick"));
        QVERIFY(handle > 0);
        LogEnd(handle, 0);
        QCOMPARE(FakeWorld::instance().logLines.size(), 2);
        QVERIFY(FakeWorld::instance().logLines.first().contains(QLatin1String("tvICInit_NodeClick")));
        ErrObject::set(LumoError(91, QStringLiteral("调用者的错误"), QStringLiteral("Caller")));
        LogEnd(handle, 1); // the fake log fails inside LogEnd
        const auto &kept = ErrObject::current();
        QCOMPARE((std::tuple{kept.number, kept.description, kept.source}),
                 (std::tuple{91, QStringLiteral("调用者的错误"), QStringLiteral("Caller")}));
    }

    void disabledLogIsDroppedAfterTheFirstStart()
    {
        FakeWorld::instance().logEnabled = false;
        QCOMPARE(LogStart(QStringLiteral("one")), 0);
        QCOMPARE(LogStart(QStringLiteral("two")), 0);
        QVERIFY(!IsLogEnabled());
        QCOMPARE(FakeWorld::instance().logObjectsCreated, 1); // never created again
        QVERIFY(FakeWorld::instance().logLines.isEmpty());
    }

    void systemParametersAddTheUserAndAreReplacedByASecondLoad()
    {
        FakeWorld::instance().propsString = QStringLiteral("UserName=张三;UserID=9;");
        ParseProps(GetPropsString());
        FakeWorld::instance().sysParams.insert(QStringLiteral("UnderStock"), QString());
        LoadSysParams(ProgId::MICInitialData);
        const auto loaded = [] {
            return QStringLiteral("%1 %2 %3 %4 %5").arg(SysParams::toText(SysParam::UName))
                .arg(SysParams::toInt(SysParam::UID)).arg(SysParams::toInt(SysParam::CurrentPeriod))
                .arg(SysParams::toInt(SysParam::QtyDecimal))
                .arg(SysParams::toInt(QStringLiteral("NoSuchParameter")));
        };
        QCOMPARE(loaded(), QStringLiteral("张三 9 1 2 0"));
        QVERIFY(!SysParams::toBool(SysParam::UnderStock)); // empty counts as false
        QCOMPARE(FetchAmountScale(), qint16(2));

        // The property string is fetched anew for the second load.
        FakeWorld::instance().sysParams.insert(QStringLiteral("CurrentPeriod"), 5);
        FakeWorld::instance().propsString = QStringLiteral("UserName=乙;UserID=2;");
        ParseProps(GetPropsString());
        LoadSysParams(ProgId::MICInitialData);
        QCOMPARE(loaded(), QStringLiteral("乙 2 5 2 0"));
    }

    // Hosts and scripts tell these errors apart by number, text and source.
    void emptyAnswerRaisesItsError_data()
    {
        QTest::addColumn<ServiceCall>("call");
        QTest::addColumn<QString>("error"); // number, description, source
        const auto add = [](const char *name, ServiceCall call, int code, const QString &text, const QString &source) {
            QTest::newRow(name) << call << QStringLiteral("%1 %2 %3").arg(code).arg(text, source);
        };
        using Client = InitialDataClient;
        add("system parameters", [] { LoadSysParams(EmptyDataProgId); }, 533, "数据服务没有返回系统参数", "LoadSysParams");
        add("stocks", [] { Client(EmptyDataProgId).FetchStocks(QString()); }, 543, "数据服务没有返回仓库", "FetchStocks");
        add("accounts", [] { Client(EmptyDataProgId).FetchYtdAccounts(1); }, 545, "数据服务没有返回科目", "FetchYtdAccounts");
        add("initial data", [] { Client(EmptyDataProgId).FetchYtdInitialData(1, 0, 1, 50, 1, {}, {}, {}, {}, false); },
            553, "数据服务没有返回初始数据", "FetchYtdInitialData");
        add("batch detail", [] { Client(EmptyDataProgId).FetchYtdBatManDetail(1, 1, 0, 7, 0, 1, true, false, {}); },
            555, "数据服务没有返回批次明细", "FetchYtdBatManDetail");
        add("item detail", [] { Client(EmptyDataProgId).FetchYtdItemDetail(QStringLiteral("01")); }, 573,
            "数据服务没有返回结果：FetchYtdItemDetail", "FetchYtdItemDetail");
        add("saved rows", [] { Client(EmptyDataProgId).GetInitData(QStringLiteral("1|0|1|7")); }, 573,
            "数据服务没有返回结果：GetInitData", "GetInitData");
    }

    void emptyAnswerRaisesItsError()
    {
        QFETCH(ServiceCall, call);
        QFETCH(QString, error);
        const std::optional<LumoError> raised = raisedBy(call);
        QVERIFY(raised);
        QCOMPARE(QStringLiteral("%1 %2 %3").arg(raised->number()).arg(raised->description(), raised->source()), error);
    }
};

QTEST_MAIN(TestFrameServices)
#include "tst_frameservices.moc"
