#include "tst_localservices.h"

#include "frame/automation/progids.h"
#include "services/tracelog.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/objectownership.h"

#include <QCoreApplication>
#include <QFile>
#include <QFontDatabase>
#include <QLabel>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {

// A stand-in for a control's collection of child controls: not their parent, it lists them.
class ControlList : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE QVariantList Items() const
    {
        QVariantList items;
        for (QObject *control : m_controls)
            items.append(QVariant::fromValue(control));
        return items;
    }
    QList<QObject *> m_controls;
};

QSettings logSettings()
{
    return QSettings(TraceLog::SettingsOrganization, TraceLog::SettingsApplication);
}

QString readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QVariant callService(const QString &progId, const QString &member, const QVariantList &args = {})
{
    const auto service = CreateObject(progId);
    return Dispatch::call(service.get(), member, args);
}

} // namespace

void TestLocalServices::initTestCase()
{
    // Keeps the log setting of these tests away from the user's own settings.
    QStandardPaths::setTestModeEnabled(true);
}

void TestLocalServices::cleanup()
{
    qunsetenv(TraceLog::SwitchVariable);
    qunsetenv(TraceLog::FileVariable);
    logSettings().remove(TraceLog::EnabledSetting);
}

void TestLocalServices::registersEveryProgId_data()
{
    QTest::addColumn<QString>("progId");
    QTest::addColumn<QString>("className");
    QTest::newRow("data") << QStringLiteral("LumoMICInitial.Data") << "LumoMICInitialData";
    QTest::newRow("connection") << QStringLiteral("LumoConnection.AppConnection") << "LumoConnectionAppConnection";
    QTest::newRow("ledger") << QStringLiteral("LumoEBCGLView.GLData") << "LumoEBCGLViewGLData";
    QTest::newRow("mutex") << QStringLiteral("LumoNetControl.Mutex") << "LumoNetControlMutex";
    QTest::newRow("log") << QStringLiteral("QLLogMsg.Log") << "QLLogMsgLog";
    QTest::newRow("shared properties") << QStringLiteral("LumoPropsMgr.ShareProps") << "LumoPropsMgrShareProps";
    QTest::newRow("form resources") << QStringLiteral("LumoFrmRes.FrmResLoader") << "LumoFrmResFrmResLoader";
}

void TestLocalServices::registersEveryProgId()
{
    QFETCH(QString, progId);
    QVERIFY(ComponentRegistry::instance().isRegistered(progId));
    // ProgIDs are found without regard to case, as the suite's registry does.
    const auto object = CreateObject(progId.toUpper());
    QVERIFY(object);
    QTEST(QString::fromLatin1(object->metaObject()->className()), "className");
    QVERIFY(!object->parent());
}

void TestLocalServices::sharedPropertiesRoundTrip()
{
    const int pid = int(QCoreApplication::applicationPid());
    const QString props = QStringLiteral("UserName=演示员;UserID=16;AcctDB={/tmp/a.db};");
    callService(ProgId::ShareProps, QStringLiteral("SetProperty"), {pid, QStringLiteral("PropsString"), props});
    // A new service object sees what another one stored: the storage belongs to the process.
    QCOMPARE(
        callService(ProgId::ShareProps, QStringLiteral("GetProperty"), {pid, QStringLiteral("propsstring")}).toString(),
        props);
    QVERIFY(!callService(ProgId::ShareProps, QStringLiteral("GetProperty"), {pid + 1, QStringLiteral("PropsString")})
                 .isValid());
    QVERIFY(
        !callService(ProgId::ShareProps, QStringLiteral("GetProperty"), {pid, QStringLiteral("NoSuchKey")}).isValid());
    callService(ProgId::ShareProps, QStringLiteral("SetProperty"), {pid, QStringLiteral("PropsString"), QString()});
    QVERIFY(callService(ProgId::ShareProps, QStringLiteral("GetProperty"), {pid, QStringLiteral("PropsString")})
                .toString()
                .isEmpty());
}

void TestLocalServices::sharedObjectIsNotKeptAlive()
{
    const int pid = int(QCoreApplication::applicationPid());
    auto login = std::make_unique<QObject>();
    callService(ProgId::ShareProps, QStringLiteral("SetProperty"),
                {pid, QStringLiteral("LumoLogin"), QVariant::fromValue(login.get())});
    QCOMPARE(callService(ProgId::ShareProps, QStringLiteral("GetProperty"), {pid, QStringLiteral("LumoLogin")})
                 .value<QObject *>(),
             login.get());
    login.reset();
    QVERIFY(!callService(ProgId::ShareProps, QStringLiteral("GetProperty"), {pid, QStringLiteral("LumoLogin")})
                 .value<QObject *>());
}

void TestLocalServices::logIsOffUnlessSwitchedOn()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("trace.log"));
    qputenv(TraceLog::FileVariable, path.toLocal8Bit());
    qputenv(TraceLog::SwitchVariable, "0");
    QVERIFY(!callService(ProgId::LogMsgLog, QStringLiteral("IsEnabled")).toBool());
    QCOMPARE(callService(ProgId::LogMsgLog, QStringLiteral("LogStart"), {QStringLiteral("不记录")}).toInt(), 0);
    callService(ProgId::LogMsgLog, QStringLiteral("LogEnd"), {0, 1});
    QVERIFY(!QFile::exists(path));
}

void TestLocalServices::logWritesStartAndEnd_data()
{
    QTest::addColumn<bool>("bySetting");
    QTest::newRow("environment") << false;
    QTest::newRow("setting") << true;
}

void TestLocalServices::logWritesStartAndEnd()
{
    QFETCH(bool, bySetting);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("trace.log"));
    qputenv(TraceLog::FileVariable, path.toLocal8Bit());
    if (bySetting)
        logSettings().setValue(TraceLog::EnabledSetting, true);
    else
        qputenv(TraceLog::SwitchVariable, "1");

    const auto log = CreateObject(ProgId::LogMsgLog);
    QVERIFY(Dispatch::call(log.get(), QStringLiteral("IsEnabled")).toBool());
    const QString text = QStringLiteral("LumoICInitialCtl.ICInitCtl.tvICInit_NodeClick 显示初始化录入界面");
    const int first = Dispatch::call(log.get(), QStringLiteral("LogStart"), {text}).toInt();
    const int second = Dispatch::call(log.get(), QStringLiteral("LogStart"), {QStringLiteral("第二项")}).toInt();
    QVERIFY(first > 0);
    QVERIFY(second != first);
    Dispatch::call(log.get(), QStringLiteral("LogEnd"), {first, 7});
    // An entry ends once; a second end and an unknown handle write nothing.
    Dispatch::call(log.get(), QStringLiteral("LogEnd"), {first, 8});
    Dispatch::call(log.get(), QStringLiteral("LogEnd"), {first + 1000, 9});

    const QStringList lines = readAll(path).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.at(0).contains(QStringLiteral("START\t#%1\t%2").arg(first).arg(text)));
    QVERIFY(lines.at(2).contains(QStringLiteral("END\t#%1\t%2\tvalue=7\t").arg(first).arg(text)));
    QVERIFY(lines.at(2).endsWith(QStringLiteral(" ms")));
    // Each line starts with its time stamp.
    QVERIFY(QDateTime::fromString(lines.at(0).left(23), QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz")).isValid());
}

void TestLocalServices::printFontProperties()
{
    const auto props = takeObject<Dictionary>(
        callService(ProgId::FrmResLoader, QStringLiteral("GetZ9FontProps"), {QStringLiteral("chs")}));
    QVERIFY(props);
    QCOMPARE(props->Item(QStringLiteral("Name")).toString(), QStringLiteral("宋体"));
    QCOMPARE(props->Item(QStringLiteral("Charset")).toInt(), 134);
    QCOMPARE(props->Item(QStringLiteral("Size")).toInt(), 9);
}

void TestLocalServices::formFontReachesEveryWidget()
{
    QWidget form;
    auto *inner = new QWidget(&form);
    auto *label = new QLabel(QStringLiteral("仓    库:"), inner);
    auto *title = new QLabel(QStringLiteral("存货初始数据录入"), &form);
    QFont titleFont = title->font();
    titleFont.setPointSize(15);
    titleFont.setBold(true);
    title->setFont(titleFont);
    auto *helper = new QObject(&form);
    helper->setProperty("font", QStringLiteral("untouched"));
    callService(ProgId::FrmResLoader, QStringLiteral("SetFrmFont"),
                {QVariant::fromValue<QObject *>(&form), QStringLiteral("chs")});
    const bool cjkInstalled = QFontDatabase::families().contains(QStringLiteral("WenQuanYi Micro Hei"));
    for (const QWidget *widget : QList<const QWidget *>{&form, inner, label}) {
        QCOMPARE(widget->font().pointSize(), 9);
        if (cjkInstalled)
            QCOMPARE(widget->font().family(), QStringLiteral("WenQuanYi Micro Hei"));
    }
    // The title keeps its emphasis and takes only the family.
    QCOMPARE(title->font().pointSize(), 15);
    QVERIFY(title->font().bold());
    if (cjkInstalled)
        QCOMPARE(title->font().family(), QStringLiteral("WenQuanYi Micro Hei"));
    QCOMPARE(helper->property("font").toString(), QStringLiteral("untouched"));
}

void TestLocalServices::formFontReachesCollectionItems()
{
    QWidget tree;
    auto *node = new QLabel(QStringLiteral("全部仓库"), &tree);
    QWidget outside;
    ControlList controls;
    controls.m_controls = {&tree};
    callService(ProgId::FrmResLoader, QStringLiteral("SetFrmFont"),
                {QVariant::fromValue<QObject *>(&controls), QStringLiteral("chs")});
    QCOMPARE(tree.font().pointSize(), 9);
    QCOMPARE(node->font().pointSize(), 9);
    // A widget the collection does not list keeps its font.
    QCOMPARE(outside.font(), QApplication::font());
}

#include "tst_localservices.moc"
