#include "logincontext.h"

#include "inifile.h"

#include "frame/clients/frmresloaderclient.h"
#include "frame/clients/regclient.h"
#include "frame/clients/sharepropsclient.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/progids.h"
#include "frame/automation/propertystring.h"

#include <QCoreApplication>
#include <QDir>

#include <limits>

namespace {

const QString ProductKey = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\NORVANE\\LumoPRODUCT");
const QString LanguageKey = QStringLiteral("LANGUAGE");
const QString OnlyLanguage = QStringLiteral("chs");
const QString SchemeFile = QStringLiteral("LumoBaseScheme.ini");
const QString SchemeSection = QStringLiteral("Version");
constexpr int OverflowError = 6;
// Header and footer lines of a print object, and the font they get without one of its own.
constexpr int PrintLines = 10;
const QString DefaultPrintFont = QStringLiteral("宋体");
constexpr int DefaultPrintCharset = 134;

// A member's value; null when the object or the member is missing.
QVariant memberValue(QObject *object, const QString &member, const QVariantList &args = {})
{
    return object && Dispatch::hasMember(object, member) ? Dispatch::call(object, member, args) : QVariant();
}

QObject *childObject(QObject *object, const QString &member, const QVariantList &args = {})
{
    return memberValue(object, member, args).value<QObject *>();
}

// Product names for a scheme file that names none.
QString builtInProductName(qint32 appType)
{
    switch (appType) {
    case 1: return QStringLiteral("澄枫财务管理");
    case 2: return QStringLiteral("澄枫供应链管理");
    default: return QStringLiteral("澄枫企业管理");
    }
}

} // namespace

LoginContext::LoginContext()
    : m_props(std::make_unique<Dictionary>())
{
}

LoginContext &LoginContext::instance()
{
    static LoginContext context;
    return context;
}

void LoginContext::reset()
{
    m_propsString.clear();
    m_props = std::make_unique<Dictionary>();
    m_loginObject.clear();
    m_language.clear();
    m_formResLoader.reset();
}

QVariant GetShareProperty(const QString &key)
{
    return SharePropsClient().GetProperty(qint32(QCoreApplication::applicationPid()), key);
}

QObject *GetLoginObject()
{
    return GetShareProperty(QStringLiteral("LumoLogin")).value<QObject *>();
}

QString GetPropsString()
{
    if (QObject *login = LoginContext::instance().loginObject())
        return Dispatch::getProperty(login, QStringLiteral("PropsString")).toString();
    return GetShareProperty(QStringLiteral("PropsString")).toString();
}

bool ParseProps(const QString &text)
{
    LoginContext &context = LoginContext::instance();
    context.m_propsString = text;
    context.m_props = std::make_unique<Dictionary>();
    QString remainder = text;
    for (;;) {
        const QString key = PropKey(remainder);
        if (key.isEmpty())
            break;
        context.m_props->Add(key, PropValue(remainder));
    }
    return true;
}

QString GetProp(const QString &key)
{
    Dictionary *props = LoginContext::instance().props();
    if (!props->Exists(key))
        throw LumoError(LumoError::ItemNotFound, QStringLiteral("登录信息中没有关键字：%1").arg(key),
                        QStringLiteral("MParse.GetProp"));
    return props->Item(key).toString();
}

QString GetUserName()
{
    return GetProp(QStringLiteral("UserName"));
}

qint16 GetUserID()
{
    const QString text = GetProp(QStringLiteral("UserID")).trimmed();
    bool ok = false;
    const int id = text.toInt(&ok);
    if (!ok || id < std::numeric_limits<qint16>::min() || id > std::numeric_limits<qint16>::max())
        throw LumoError(OverflowError, QStringLiteral("用户号无效：%1").arg(text), QStringLiteral("MParse.GetUserID"));
    return qint16(id);
}

QString GetLanguage(const QString &key)
{
    // The library always runs in "chs", whatever the property string says.
    if (key.toUpper() == LanguageKey)
        return OnlyLanguage;
    const QString props = (GetPropsString() + QLatin1Char(';')).toUpper();
    const QString wanted = key.toUpper() + QLatin1Char('=');
    const qsizetype at = props.indexOf(wanted);
    if (at < 0)
        return {};
    const qsizetype start = at + wanted.size();
    const QString original = GetPropsString() + QLatin1Char(';');
    return original.mid(start, original.indexOf(QLatin1Char(';'), start) - start);
}

QString ensureLanguage()
{
    LoginContext &context = LoginContext::instance();
    if (context.m_language.isEmpty())
        context.m_language = GetLanguage(LanguageKey);
    return context.m_language;
}

QString ResString(const QString &text)
{
    return text;
}

void LoadFormStrings(QObject *form, std::unique_ptr<QObject> &options, const QString &resourceSet)
{
    const QString language = ensureLanguage();
    if (language.compare(OnlyLanguage, Qt::CaseInsensitive) == 0)
        return;
    const FrmResLoaderClient loader;
    if (!options) {
        options = CreateObject(QString(ProgId::Dictionary));
        Dispatch::call(options.get(), QStringLiteral("setItem"), {QStringLiteral("NeedMLColumnHeaders"), true});
    }
    loader.LoadFrmResStrings(form, language, QString(), resourceSet, options.get());
}

void SetFormFont(QObject *controls)
{
    LoginContext &context = LoginContext::instance();
    const QString language = ensureLanguage();
    if (!context.m_formResLoader)
        context.m_formResLoader = std::make_unique<FrmResLoaderClient>();
    context.m_formResLoader->SetFrmFont(controls, language);
}

std::unique_ptr<QObject> GetFontProps()
{
    const QString language = ensureLanguage();
    std::unique_ptr<FrmResLoaderClient> loader;
    try {
        loader = std::make_unique<FrmResLoaderClient>();
    } catch (const LumoError &) {
        return {};
    }
    return loader->GetZ9FontProps(language);
}

void SetPrintFonts(QObject *printObject)
{
    QObject *font = childObject(printObject, QStringLiteral("Font"));
    const QString name = memberValue(font, QStringLiteral("Name")).toString();
    const QVariant charset = memberValue(font, QStringLiteral("Charset"));
    QObject *printer = childObject(printObject, QStringLiteral("Printer"));
    for (int line = 0; line < PrintLines; ++line) {
        for (const QString &part : {QStringLiteral("Header"), QStringLiteral("Footer")}) {
            QObject *lineFont = childObject(childObject(printer, part, {line}), QStringLiteral("Font"));
            if (!lineFont)
                continue;
            Dispatch::setProperty(lineFont, QStringLiteral("Name"), name.isEmpty() ? DefaultPrintFont : name);
            Dispatch::setProperty(lineFont, QStringLiteral("Charset"),
                                  charset.isNull() ? QVariant(DefaultPrintCharset) : charset);
        }
    }
}

QString GetInstallPath()
{
    return RegClient().GetKeyValue(ProductKey, QStringLiteral("Path"), QStringLiteral("1"));
}

QString GetCommonDir()
{
    // The suite's folders end with the platform's separator, "Common" included.
    const QString sep = QDir::separator();
    QString path = GetInstallPath();
    if (!path.endsWith(sep))
        path += sep;
    return path + QStringLiteral("Common") + sep;
}

qint32 GetSchemeInfo()
{
    LoginContext &context = LoginContext::instance();
    if (context.m_schemeFilled)
        return context.m_scheme.AppType;
    SchemeInfo &scheme = context.m_scheme;
    try {
        const QString common = GetCommonDir();
        const QString file = common + SchemeFile;
        scheme.AppType = ReadIniString(file, SchemeSection, QStringLiteral("AppType"), QStringLiteral("0")).toInt();
        scheme.OEM = ReadIniString(file, SchemeSection, QStringLiteral("OEM"), QStringLiteral("0")).toInt() != 0;
        scheme.AppName = ReadIniString(file, SchemeSection, QStringLiteral("AppName"), QString());
        if (scheme.OEM)
            scheme.iconPath = common + QStringLiteral("bmp") + QDir::separator() + QStringLiteral("Lumo.ico");
        else if (scheme.AppName.isEmpty())
            scheme.AppName = builtInProductName(scheme.AppType);
        scheme.AppName = scheme.AppName.trimmed();
        scheme.AppName.remove(QLatin1Char('\r')).remove(QLatin1Char('\n')).remove(QChar(0));
        context.m_schemeFilled = true;
    } catch (const LumoError &) {
        // A scheme that cannot be read leaves the record as far as it was filled.
    }
    return scheme.AppType;
}

const SchemeInfo &schemeInfo()
{
    GetSchemeInfo();
    return LoginContext::instance().m_scheme;
}

bool IsAppType1()
{
    return GetSchemeInfo() == 1;
}

qint32 GetIndustryType()
{
    return ReadIniString(GetCommonDir() + SchemeFile, SchemeSection, QStringLiteral("HangYeType"), QStringLiteral("0"))
        .toInt();
}
