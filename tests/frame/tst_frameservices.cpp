#include "fakeservices.h"

#include "frame/errorbox.h"
#include "frame/logincontext.h"
#include "frame/messages.h"
#include "frame/netcontrol.h"
#include "frame/prompter.h"
#include "frame/qllogmsg.h"
#include "frame/sysparams.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/errobject.h"
#include "frame/automation/lumoerror.h"

#include <QTest>

class TestFrameServices : public QObject
{
    Q_OBJECT

private:
    ScriptedPrompter m_prompter;

private slots:
    void initTestCase()
    {
        registerFakeServices();
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

    void errorBoxWithErrorInfo()
    {
        ErrObject::set(LumoError(1234, QStringLiteral("磁盘已满"), QStringLiteral("LumoMICInitial.Data")));
        ShowErrorMsg(QStringLiteral("系统在调用函数LoadingStocks()时发生错误"), true);
        QCOMPARE(m_prompter.messages().size(), 1);
        const Prompter::Message &shown = m_prompter.messages().first();
        QCOMPARE(shown.caption, QStringLiteral("澄枫提示"));
        QCOMPARE(shown.text, QStringLiteral("系统在调用函数LoadingStocks()时发生错误\r\n错误原因：磁盘已满\r\n错误来源：LumoMICInitial.Data"));
        QCOMPARE(shown.buttons, Prompter::Buttons::Ok);
        QCOMPARE(shown.icon, Prompter::Icon::Information);
        QCOMPARE(ErrObject::current().number, 0); // the error number is cleared after showing
    }

    void errorBoxWithoutErrorInfoKeepsTheError()
    {
        ErrObject::set(LumoError(77, QStringLiteral("x")));
        ShowErrorMsg(QStringLiteral("只有消息"), false);
        QCOMPARE(m_prompter.messages().first().text, QStringLiteral("只有消息"));
        QCOMPARE(ErrObject::current().number, 77);
    }

    void procedureHandlerNamesTheProcedure()
    {
        reportProcedureError(QStringLiteral("FillBatManDetailByRs"), LumoError(5, QStringLiteral("坏数据"), QStringLiteral("src")));
        QVERIFY(m_prompter.messages().first().text.startsWith(QStringLiteral("系统在调用函数FillBatManDetailByRs()时发生错误\r\n")));
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

    void commitTaskOfHandleZeroMakesNoCall()
    {
        QVERIFY(!CommitTask(0));
        QCOMPARE(FakeWorld::instance().commitCalls, 0);
        QVERIFY(CommitTask(7));
        QCOMPARE(FakeWorld::instance().committed, QList<int>{7});
    }

    void refusedTaskRaisesTheConflictError()
    {
        FakeWorld::instance().taskHandle = 0;
        try {
            ExecFunc(20, QStringLiteral("Cg0802"), 0, 0);
            QFAIL("a refused task must raise");
        } catch (const LumoError &error) {
            QCOMPARE(error.source(), QStringLiteral("MNetControl.ExecFunc"));
            QCOMPARE(error.description(), Msg::TaskConflict);
            QVERIFY(error.number() > LumoError::AppBase);
        }
        FakeWorld::instance().taskHandle = 12;
        QCOMPARE(ExecFunc(20, QStringLiteral("Cg0802"), 0, 0), 12);
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

    void enabledLogWritesStartAndEnd()
    {
        const qint32 handle = LogStart(QStringLiteral("tvICInit_NodeClick"));
        QVERIFY(handle > 0);
        LogEnd(handle, 0);
        QCOMPARE(FakeWorld::instance().logLines.size(), 2);
        QVERIFY(FakeWorld::instance().logLines.first().contains(QLatin1String("tvICInit_NodeClick")));
    }

    void logEndKeepsTheCallersError()
    {
        const qint32 handle = LogStart(QStringLiteral("x"));
        ErrObject::set(LumoError(91, QStringLiteral("调用者的错误"), QStringLiteral("Caller")));
        LogEnd(handle, 1); // the fake log fails inside LogEnd
        QCOMPARE(ErrObject::current().number, 91);
        QCOMPARE(ErrObject::current().description, QStringLiteral("调用者的错误"));
        QCOMPARE(ErrObject::current().source, QStringLiteral("Caller"));
    }

    void systemParametersAddTheUserAndCountMissingAsZero()
    {
        FakeWorld::instance().propsString = QStringLiteral("UserName=张三;UserID=9;");
        ParseProps(GetPropsString());
        FakeWorld::instance().sysParams.insert(QStringLiteral("UnderStock"), QString());
        LoadSysParams(ProgId::MICInitialData);
        QCOMPARE(SysParams::toInt(SysParam::UID), 9);
        QCOMPARE(SysParams::toText(SysParam::UName), QStringLiteral("张三"));
        QCOMPARE(SysParams::toInt(SysParam::QtyDecimal), 2);
        QCOMPARE(SysParams::toInt(QStringLiteral("NoSuchParameter")), 0);
        QVERIFY(!SysParams::toBool(SysParam::UnderStock)); // empty counts as false
        QCOMPARE(FetchAmountScale(), qint16(2));
    }

    void aSecondLoadReplacesTheParameters()
    {
        FakeWorld::instance().propsString = QStringLiteral("UserName=甲;UserID=1;");
        ParseProps(GetPropsString());
        LoadSysParams(ProgId::MICInitialData);
        QCOMPARE(SysParams::toInt(SysParam::CurrentPeriod), 1);

        FakeWorld::instance().sysParams.insert(QStringLiteral("CurrentPeriod"), 5);
        FakeWorld::instance().propsString = QStringLiteral("UserName=乙;UserID=2;");
        ParseProps(GetPropsString());
        LoadSysParams(ProgId::MICInitialData);
        QCOMPARE(SysParams::toInt(SysParam::CurrentPeriod), 5);
        QCOMPARE(SysParams::toText(SysParam::UName), QStringLiteral("乙"));
        QCOMPARE(SysParams::toInt(SysParam::UID), 2);
    }
};

QTEST_MAIN(TestFrameServices)
#include "tst_frameservices.moc"
