#include "componentregistry.h"

#include "lumoerror.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>
#include <QSettings>

namespace {

// The suite's registration of its component libraries: written beside the binaries when they are
// built or installed, so the registry itself names no library.
const QString ManifestFile = QStringLiteral("LumoComponents.ini");
const QString LibrariesKey = QStringLiteral("Components/Libraries");

} // namespace

ComponentRegistry &ComponentRegistry::instance()
{
    static ComponentRegistry registry;
    return registry;
}

QStringList ComponentRegistry::componentLibraries()
{
    const QDir folder(QCoreApplication::applicationDirPath());
    const QSettings manifest(folder.filePath(ManifestFile), QSettings::IniFormat);
    QStringList files;
    for (const QString &name : manifest.value(LibrariesKey).toStringList())
        files.append(folder.filePath(name.trimmed()));
    return files;
}

void ComponentRegistry::registerClass(const QString &progId, ComponentFactory factory)
{
    // A component library loaded for another ProgID does not replace what the host (or a test)
    // registered itself; a registration made on purpose replaces the earlier one.
    if (m_loadingLibraries && m_factories.contains(progId.toLower()))
        return;
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
    m_loadingLibraries = true;
    for (const QString &file : componentLibraries()) {
        QLibrary library(file);
        // Loading runs the library's registration; the library stays loaded for the process.
        library.setLoadHints(QLibrary::ExportExternalSymbolsHint);
        library.load();
    }
    m_loadingLibraries = false;
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
