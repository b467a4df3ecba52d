#pragma once

#include "lumoicinitial_global.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

#include <memory>

class Dictionary;
class FrmResLoaderClient;

// What the product scheme file says about the installed product, read once per process.
struct SchemeInfo
{
    qint32 AppType = 0;
    QString AppName;
    bool OEM = false;
    QString iconPath;
};

// The process-wide login context shared by both controls and every dialog: the property string as
// fetched, its parsed entries, the language, and the objects kept for resources.
class LUMOICINITIAL_EXPORT LoginContext
{
public:
    static LoginContext &instance();

    QString propsString() const { return m_propsString; }
    Dictionary *props() const { return m_props.get(); }
    QObject *loginObject() const { return m_loginObject; }
    // A host that logs in through its own login object hands it here; normally nobody does.
    void setLoginObject(QObject *object) { m_loginObject = object; }
    QString language() const { return m_language; }

    // Forgets everything (tests and a new log-in).
    void reset();

private:
    LoginContext();
    friend bool ParseProps(const QString &text);
    friend QString ensureLanguage();
    friend void SetFormFont(QObject *controls);
    friend qint32 GetSchemeInfo();
    friend const SchemeInfo &schemeInfo();

    QString m_propsString;
    std::unique_ptr<Dictionary> m_props;
    QPointer<QObject> m_loginObject;
    QString m_language;
    std::unique_ptr<FrmResLoaderClient> m_formResLoader;
    SchemeInfo m_scheme;
    bool m_schemeFilled = false;
};

// The shared-property service of the suite, a new service object per call.
LUMOICINITIAL_EXPORT QVariant GetShareProperty(const QString &key);
LUMOICINITIAL_EXPORT QObject *GetLoginObject();
// Asks the service every time; nothing is cached.
LUMOICINITIAL_EXPORT QString GetPropsString();
// Replaces the parsed entries; a key that occurs twice raises the collection's error.
LUMOICINITIAL_EXPORT bool ParseProps(const QString &text);
// A missing key raises an error.
LUMOICINITIAL_EXPORT QString GetProp(const QString &key);
LUMOICINITIAL_EXPORT QString GetUserName();
LUMOICINITIAL_EXPORT qint16 GetUserID();
LUMOICINITIAL_EXPORT QString GetLanguage(const QString &key);
// The language, cached in the login context on first use.
LUMOICINITIAL_EXPORT QString ensureLanguage();

// Every user-visible text passes through here so that a translation step can be put in later.
LUMOICINITIAL_EXPORT QString ResString(const QString &text);
// Loads translated form strings for other languages than "chs"; `options` is made when empty.
LUMOICINITIAL_EXPORT void LoadFormStrings(QObject *form, std::unique_ptr<QObject> &options, const QString &resourceSet);
LUMOICINITIAL_EXPORT void SetFormFont(QObject *controls);
LUMOICINITIAL_EXPORT std::unique_ptr<QObject> GetFontProps();
// Gives the header and footer lines 0 to 9 of the print object's printer (members Header(i) and
// Footer(i), each with a Font) the print object's own font name and character set, "宋体" and
// 134 where it has none.
LUMOICINITIAL_EXPORT void SetPrintFonts(QObject *printObject);

LUMOICINITIAL_EXPORT QString GetInstallPath();
LUMOICINITIAL_EXPORT QString GetCommonDir();
LUMOICINITIAL_EXPORT qint32 GetSchemeInfo();
LUMOICINITIAL_EXPORT const SchemeInfo &schemeInfo();
LUMOICINITIAL_EXPORT bool IsAppType1();
LUMOICINITIAL_EXPORT qint32 GetIndustryType();
