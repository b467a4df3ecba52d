#include "fakeservices.h"

#include "frame/inifile.h"
#include "frame/logincontext.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/pelmreg.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

// A print object as the print control offers it: its own font, and a printer with header and
// footer lines that each have a font.
class PrintFont : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString Name MEMBER name)
    Q_PROPERTY(int Charset MEMBER charset)
public:
    QString name;
    int charset = 0;
};

class PrintLine : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject *Font READ font)
public:
    QObject *font() { return &m_font; }
    PrintFont m_font;
};

class PrintObject : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject *Font READ font)
    Q_PROPERTY(QObject *Printer READ printer)
public:
    QObject *font() { return hasFont ? &m_font : nullptr; }
    QObject *printer() { return this; }
    Q_INVOKABLE QObject *Header(int line) { return &headers[line]; }
    Q_INVOKABLE QObject *Footer(int line) { return &footers[line]; }
    bool hasFont = true;
    PrintFont m_font;
    PrintLine headers[10];
    PrintLine footers[10];
};

class TestLoginContext : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_install;

    void writeScheme(const QByteArray &text)
    {
        QDir(m_install.path()).mkpath(QStringLiteral("Common"));
        QFile file(QDir(m_install.path()).filePath(QStringLiteral("Common/LumoBaseScheme.ini")));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text);
    }

private slots:
    void initTestCase()
    {
        registerFakeServices();
        qputenv(PelmReg::InstallPathEnv, m_install.path().toLocal8Bit());
    }

    void init()
    {
        FakeWorld::instance().reset();
        LoginContext::instance().reset();
    }

    void parsesThePublishedPropertyString()
    {
        QVERIFY(ParseProps(QStringLiteral("UserName = Operator1 ;UserID=16;Note={a=1;b=2};")));
        QCOMPARE((std::tuple{GetUserName(), GetUserID(), GetProp(QStringLiteral("note"))}),
                 (std::tuple{QStringLiteral("Operator1"), qint16(16), QStringLiteral("a=1;b=2")}));
        QCOMPARE(LoginContext::instance().propsString(), QStringLiteral("UserName = Operator1 ;UserID=16;Note={a=1;b=2};"));
    }

    void aSecondParseReplacesTheEntries()
    {
        ParseProps(QStringLiteral("UserName=A;UserID=1"));
        ParseProps(QStringLiteral("Other=x"));
        QCOMPARE(LoginContext::instance().props()->Count(), 1);
        QVERIFY_THROWS_EXCEPTION(LumoError, GetUserName());
        // The user ID must fit sixteen bits.
        ParseProps(QStringLiteral("UserName=A;UserID=70000"));
        QVERIFY_THROWS_EXCEPTION(LumoError, GetUserID());
    }

    void duplicateKeyFailsAtItsSecondOccurrence()
    {
        const auto error = raisedBy([] { ParseProps(QStringLiteral("UserName=A;userName=B;UserID=3")); });
        QCOMPARE(error ? error->number() : 0, LumoError::KeyExists);
        // What came before the duplicate was kept; nothing after it.
        QCOMPARE(GetUserName(), QStringLiteral("A"));
        QVERIFY(!LoginContext::instance().props()->Exists(QStringLiteral("UserID")));
    }

    void languageShortCutIgnoresThePropertyString()
    {
        FakeWorld::instance().propsString = QStringLiteral("UserName=A;LANGUAGE=eng;Region=north");
        // Other keys are looked up in the property string, fetched anew.
        QStringList found;
        for (const char *key : {"LANGUAGE", "language", "region", "missing"})
            found.append(GetLanguage(QLatin1String(key)));
        QCOMPARE(found, (QStringList{QStringLiteral("chs"), QStringLiteral("chs"), QStringLiteral("north"), QString()}));
        QCOMPARE(ensureLanguage(), QStringLiteral("chs"));
    }

    void resourceTextsPassUnchanged()
    {
        QCOMPARE(ResString(QStringLiteral("澄枫提示")), QStringLiteral("澄枫提示"));
        std::unique_ptr<QObject> options;
        LoadFormStrings(this, options, QStringLiteral("set"));
        QVERIFY(!options); // "chs" loads nothing and makes no options object
    }

    void iniValueIsCutToTheBuffer()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("x.ini"));
        QFile out(file);
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write("[Version]\nLong=" + QByteArray(300, 'x') + "\nShort = \"quoted\" \n[Other]\nShort=no\n");
        out.close();
        QCOMPARE(ReadIniString(file, QStringLiteral("Version"), QStringLiteral("Long"), QString()).size(), 254);
        QCOMPARE(ReadIniString(file, QStringLiteral("version"), QStringLiteral("SHORT"), QString()), QStringLiteral("quoted"));
        QCOMPARE(ReadIniString(file, QStringLiteral("Version"), QStringLiteral("Missing"), QStringLiteral("d")), QStringLiteral("d"));
        QCOMPARE(ReadIniString(dir.filePath(QStringLiteral("none.ini")), QStringLiteral("V"), QStringLiteral("K"), QStringLiteral("0")),
                 QStringLiteral("0"));
    }

    // Every header and footer line takes the print object's own font, or 宋体 (charset 134) when it has none.
    void printLinesTakeThePrintObjectsFont()
    {
        for (const auto &[hasFont, name, charset] : {std::tuple{true, "黑体", 1}, {false, "宋体", 134}}) {
            PrintObject print;
            print.hasFont = hasFont;
            print.m_font.name = QStringLiteral("黑体");
            print.m_font.charset = 1;
            SetPrintFonts(&print);
            for (const PrintLine *lines : {print.headers, print.footers}) {
                for (int line = 0; line < 10; ++line)
                    QCOMPARE((std::pair{lines[line].m_font.name, lines[line].m_font.charset}),
                             (std::pair{QString::fromUtf8(name), charset}));
            }
        }
    }

    void installPathComesFromTheEnvironment()
    {
        QCOMPARE(GetInstallPath(), m_install.path());
        QCOMPARE(GetCommonDir(), m_install.path() + QStringLiteral("/Common/"));
    }

    // The scheme is read once per process, so its cases run in this order in one function.
    void schemeDefaultsThenIndustryType()
    {
        writeScheme("[Version]\nOEM=0\n");
        QCOMPARE(GetSchemeInfo(), 0);
        QVERIFY(!schemeInfo().OEM);
        QVERIFY(!schemeInfo().AppName.isEmpty()); // a built-in name stands in for a missing one
        QVERIFY(!IsAppType1());
        QCOMPARE(GetIndustryType(), 0);

        // Read once: a changed file does not change the record, but the industry type is read
        // every time.
        writeScheme("[Version]\nAppType=1\nHangYeType=1\n");
        QCOMPARE(GetSchemeInfo(), 0);
        QCOMPARE(GetIndustryType(), 1);
    }
};

QTEST_MAIN(TestLoginContext)
#include "tst_logincontext.moc"
