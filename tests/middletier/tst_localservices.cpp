#include "servicecalls.h"

#include "frame/automation/progids.h"
#include "services/tracelog.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"

#include <QCoreApplication>
#include <QFile>
#include <QFontDatabase>
#include <QLabel>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// A stand-in for a control's collection of child controls: not their parent, it lists them.
class ControlList : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE QVariantList Items() const { return m_controls; }
    QVariantList m_controls;
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

} // namespace

// The services that need no account set: shared properties, the trace log, form fonts, and
// the registration of every ProgID.
class TestLocalServices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Keeps the log setting of these tests away from the user's own settings.
        QStandardPaths::setTestModeEnabled(true);
    }

    void cleanup()
    {
        qunsetenv(TraceLog::SwitchVariable);
        qunsetenv(TraceLog::FileVariable);
        logSettings().remove(TraceLog::EnabledSetting);
    }

    void registersEveryProgId()
    {
        // The published names, spelt out: the controls and scripts create the services by them.
        for (const char *name :
             {"LumoMICInitial.Data", "LumoConnection.AppConnection", "LumoEBCGLView.GLData", "LumoNetControl.Mutex",
              "QLLogMsg.Log", "LumoPropsMgr.ShareProps", "LumoFrmRes.FrmResLoader"}) {
            // ProgIDs are found without regard to case, as the suite's registry does.
            const auto object = CreateObject(QString::fromLatin1(name).toUpper());
            QVERIFY2(object && !object->parent(), name);
        }
    }

    void sharedPropertiesBelongToTheProcess()
    {
        const int pid = int(QCoreApplication::applicationPid());
        // Each call on a new service object: the storage belongs to the process, not to an object.
        const auto set = [&](const QString &key, const QVariant &value) {
            ServiceCalls::call(ProgId::ShareProps, u"SetProperty"_s, {pid, key, value});
        };
        const auto get = [](int process, const QString &key) {
            return ServiceCalls::call(ProgId::ShareProps, u"GetProperty"_s, {process, key});
        };
        const QString props = u"UserName=演示员;UserID=16;AcctDB={/tmp/a.db};"_s;
        set(u"PropsString"_s, props);
        QCOMPARE(get(pid, u"propsstring"_s).toString(), props);
        QVERIFY(!get(pid + 1, u"PropsString"_s).isValid());
        QVERIFY(!get(pid, u"NoSuchKey"_s).isValid());
        set(u"PropsString"_s, QString());
        QVERIFY(get(pid, u"PropsString"_s).toString().isEmpty());

        // A stored object is not kept alive by the storage.
        auto login = std::make_unique<QObject>();
        set(u"LumoLogin"_s, QVariant::fromValue(login.get()));
        QCOMPARE(get(pid, u"LumoLogin"_s).value<QObject *>(), login.get());
        login.reset();
        QVERIFY(!get(pid, u"LumoLogin"_s).value<QObject *>());
    }

    void logWritesStartAndEnd_data()
    {
        QTest::addColumn<QByteArray>("variable");
        QTest::addColumn<bool>("setting");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("switched off") << QByteArray("0") << false << false;
        QTest::newRow("environment") << QByteArray("1") << false << true;
        QTest::newRow("setting") << QByteArray() << true << true;
    }

    void logWritesStartAndEnd()
    {
        QFETCH(QByteArray, variable);
        QFETCH(bool, setting);
        QFETCH(bool, enabled);
        QTemporaryDir dir;
        const QString path = dir.filePath(u"trace.log"_s);
        qputenv(TraceLog::FileVariable, path.toLocal8Bit());
        if (setting)
            logSettings().setValue(TraceLog::EnabledSetting, true);
        if (!variable.isNull())
            qputenv(TraceLog::SwitchVariable, variable);

        const auto log = CreateObject(ProgId::LogMsgLog);
        QCOMPARE(Dispatch::call(log.get(), u"IsEnabled"_s).toBool(), enabled);
        const QString text = u"LumoICInitialCtl.ICInitCtl.tvICInit_NodeClick 显示初始化录入界面"_s;
        const int first = Dispatch::call(log.get(), u"LogStart"_s, {text}).toInt();
        const int second = Dispatch::call(log.get(), u"LogStart"_s, {u"第二项"_s}).toInt();
        Dispatch::call(log.get(), u"LogEnd"_s, {first, 7});
        if (!enabled) {
            QCOMPARE(first, 0);
            QVERIFY(!QFile::exists(path));
            return;
        }
        QVERIFY(first > 0);
        QVERIFY(second != first);
        // An entry ends once; a second end and an unknown handle write nothing.
        Dispatch::call(log.get(), u"LogEnd"_s, {first, 8});
        Dispatch::call(log.get(), u"LogEnd"_s, {first + 1000, 9});

        const QStringList lines = readAll(path).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 3);
        QVERIFY(lines.at(0).contains(u"START\t#%1\t%2"_s.arg(first).arg(text)));
        QVERIFY(lines.at(2).contains(u"END\t#%1\t%2\tvalue=7\t"_s.arg(first).arg(text)));
        QVERIFY(lines.at(2).endsWith(u" ms"_s));
        // Each line starts with its time stamp.
        QVERIFY(QDateTime::fromString(lines.at(0).left(23), u"yyyy-MM-dd hh:mm:ss.zzz"_s).isValid());
    }

    void formFontReachesEveryWidget()
    {
        QWidget form;
        auto *inner = new QWidget(&form);
        auto *label = new QLabel(u"仓    库:"_s, inner);
        auto *title = new QLabel(u"存货初始数据录入"_s, &form);
        title->setFont(QFont(title->font().family(), 15, QFont::Bold));
        auto *helper = new QObject(&form);
        helper->setProperty("font", u"untouched"_s);
        ServiceCalls::call(ProgId::FrmResLoader, u"SetFrmFont"_s, {QVariant::fromValue<QObject *>(&form), u"chs"_s});
        const bool cjkInstalled = QFontDatabase::families().contains(u"WenQuanYi Micro Hei"_s);
        // The title keeps its emphasis and takes only the family.
        for (const auto &[widget, size] : {std::pair<const QWidget *, int>{&form, 9}, {inner, 9}, {label, 9}, {title, 15}}) {
            QCOMPARE(widget->font().pointSize(), size);
            if (cjkInstalled)
                QCOMPARE(widget->font().family(), u"WenQuanYi Micro Hei"_s);
        }
        QVERIFY(title->font().bold());
        QCOMPARE(helper->property("font").toString(), u"untouched"_s);

        // A collection of controls is not their parent: its items take the font, and their children.
        QWidget tree;
        auto *node = new QLabel(u"全部仓库"_s, &tree);
        QWidget outside;
        ControlList controls;
        controls.m_controls = {QVariant::fromValue<QObject *>(&tree)};
        ServiceCalls::call(ProgId::FrmResLoader, u"SetFrmFont"_s, {QVariant::fromValue<QObject *>(&controls), u"chs"_s});
        QCOMPARE(tree.font().pointSize(), 9);
        QCOMPARE(node->font().pointSize(), 9);
        QCOMPARE(outside.font(), QApplication::font());
    }
};

QTEST_MAIN(TestLocalServices)
#include "tst_localservices.moc"
