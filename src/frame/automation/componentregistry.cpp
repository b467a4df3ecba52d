#include "componentregistry.h"

#include "lumoerror.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>

#include <dlfcn.h>

namespace {

// The folder this library was loaded from: the component libraries sit beside it.
QString binariesFolder()
{
    Dl_info info{};
    if (dladdr(reinterpret_cast<void *>(&binariesFolder), &info) != 0 && info.dli_fname)
        return QFileInfo(QString::fromLocal8Bit(info.dli_fname)).absolutePath();
    return QCoreApplication::applicationDirPath();
}

} // namespace

ComponentRegistry &ComponentRegistry::instance()
{
    static ComponentRegistry registry;
    return registry;
}

const QStringList &ComponentRegistry::componentLibraries()
{
    static const QStringList names{QStringLiteral("LumoMiddleTier"), QStringLiteral("LumoICInitialCtl")};
    return names;
}

void ComponentRegistry::registerClass(const QString &progId, ComponentFactory factory)
{
    m_factories.insert(progId.toLower(), std::move(factory));
}

bool ComponentRegistry::isRegistered(const QString &progId) const
{
    return m_factories.contains(progId.toLower());
}

QStringList ComponentRegistry::progIds() const
{
    QStringList ids = m_factories.keys();
    ids.sort();
    return ids;
}

void ComponentRegistry::loadComponentLibraries()
{
    m_librariesLoaded = true;
    const QString folder = binariesFolder();
    for (const QString &name : componentLibraries()) {
        QLibrary library(QDir(folder).filePath(QStringLiteral("lib%1.so").arg(name)));
        // Loading runs the library's registration; the library stays loaded for the process.
        library.setLoadHints(QLibrary::ExportExternalSymbolsHint);
        library.load();
    }
}

std::unique_ptr<QObject> ComponentRegistry::create(const QString &progId)
{
    auto it = m_factories.constFind(progId.toLower());
    if (it == m_factories.constEnd() && !m_librariesLoaded) {
        loadComponentLibraries();
        it = m_factories.constFind(progId.toLower());
    }
    if (it == m_factories.constEnd())
        throw LumoError(LumoError::CannotCreateObject,
                        QStringLiteral("部件不能创建对象：未注册的 ProgID \"%1\"").arg(progId),
                        QStringLiteral("CreateObject"));
    std::unique_ptr<QObject> object((*it)());
    if (!object)
        throw LumoError(LumoError::CannotCreateObject,
                        QStringLiteral("部件不能创建对象：\"%1\"").arg(progId),
                        QStringLiteral("CreateObject"));
    return object;
}

std::unique_ptr<QObject> CreateObject(const QString &progId)
{
    return ComponentRegistry::instance().create(progId);
}
