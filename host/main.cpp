#include "accountsession.h"
#include "accttool.h"
#include "frame/automation/progids.h"
#include "logindialog.h"
#include "scripthost.h"
#include "suitewindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFont>
#include <QFontDatabase>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>

#include <cstdio>

namespace {

const QString DefaultUser = QStringLiteral("演示员");

void fail(const QString &message)
{
    std::fprintf(stderr, "lumo-suite: %s\n", message.toUtf8().constData());
}

// A script run, or a look at the help, without a display uses the offscreen platform.
void chooseHeadlessPlatform(int argc, char **argv)
{
    bool headless = false;
    for (int i = 1; i < argc; ++i) {
        for (const char *option : {"--script", "--help", "-h", "--help-all", "-?"})
            headless = headless || qstrcmp(argv[i], option) == 0;
    }
    if (headless && qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace

int main(int argc, char **argv)
{
    chooseHeadlessPlatform(argc, argv);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("lumo-suite"));
    QApplication::setOrganizationName(QStringLiteral("Lumo"));
    // The suite speaks Chinese: the standard buttons of Qt's own dialogs read 是, 否, 取消.
    QTranslator qtTexts;
    if (qtTexts.load(QLocale(QLocale::Chinese, QLocale::China), QStringLiteral("qtbase"), QStringLiteral("_"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&qtTexts);
    // Toolbar icons come from the desktop's freedesktop theme, else from Adwaita. The offscreen
    // platform of scripted runs names no theme and knows no icon folders at all.
    QIcon::setFallbackThemeName(QStringLiteral("Adwaita"));
    if (QIcon::themeName().isEmpty())
        QIcon::setThemeName(QStringLiteral("Adwaita"));
    QStringList iconFolders = QIcon::themeSearchPaths();
    for (const QString &folder : QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("icons"),
                                                           QStandardPaths::LocateDirectory)) {
        if (!iconFolders.contains(folder))
            iconFolders << folder;
    }
    QIcon::setThemeSearchPaths(iconFolders);
    QFont font(QStringLiteral("WenQuanYi Micro Hei"));
    font.setPointSize(9);
    QApplication::setFont(font);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("The suite host of the inventory opening-balance controls."));
    parser.addHelpOption();
    const QCommandLineOption demo(QStringLiteral("demo"), QStringLiteral("Use (and create on first use) the demo account set."));
    const QCommandLineOption accountSet(QStringLiteral("account-set"), QStringLiteral("The account set: a file or a postgresql:// URI."), QStringLiteral("PATH"));
    const QCommandLineOption user(QStringLiteral("user"), QStringLiteral("The user to log in as."), QStringLiteral("NAME"), DefaultUser);
    const QCommandLineOption script(QStringLiteral("script"), QStringLiteral("Run a JavaScript file instead of waiting for a person."), QStringLiteral("FILE.js"));
    const QCommandLineOption open(QStringLiteral("open"), QStringLiteral("Open a control at start (ProgID)."), QStringLiteral("PROGID"));
    parser.addOptions({demo, accountSet, user, script, open});
    parser.process(app);

    QString path = parser.value(accountSet);
    if (parser.isSet(demo)) {
        path = path.isEmpty() ? AccountSetup::demoAccountSetPath() : path;
        QString error;
        if (!AcctTool::ensureDemo(path, &error)) {
            fail(error);
            return 2;
        }
    }

    AccountSession session;
    if (!path.isEmpty()) {
        QString error;
        if (!AccountSetup::logIn(path, parser.value(user), &session, &error)) {
            fail(error);
            return 2;
        }
    } else if (parser.isSet(script)) {
        fail(QStringLiteral("a script needs --demo or --account-set PATH"));
        return 2;
    } else {
        LoginDialog login(AccountSetup::demoAccountSetPath(), parser.value(user));
        if (login.exec() != QDialog::Accepted)
            return 0;
        session = login.session();
    }
    AccountSetup::publish(session);

    SuiteWindow suite(session);
    if (parser.isSet(script)) {
        suite.show();
        return runScript(parser.value(script), suite);
    }
    suite.show();
    suite.openControl(parser.value(open).isEmpty() ? QString(ProgId::ICInitCtl) : parser.value(open));
    return app.exec();
}
