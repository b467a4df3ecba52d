#pragma once

#include "automation_global.h"

#include <QHash>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

using ComponentFactory = std::function<QObject *()>;

// Creation of objects by ProgID. Component libraries register their classes from a static
// initializer when they are loaded; a ProgID nobody registered yet makes the registry load, once,
// the component libraries that "LumoComponents.ini" beside the application lists, as a COM
// registry would.
class LUMOAUTOMATION_EXPORT ComponentRegistry
{
public:
    static ComponentRegistry &instance();

    // Replaces an earlier factory of the ProgID, except while the component libraries load: what
    // was registered before them stands.
    void registerClass(const QString &progId, ComponentFactory factory);
    bool isRegistered(const QString &progId) const;
    QStringList progIds() const;

    // A new parentless object; throws LumoError naming an unknown ProgID.
    std::unique_ptr<QObject> create(const QString &progId);

    // The library files searched for ProgIDs that are not registered yet.
    static QStringList componentLibraries();

private:
    ComponentRegistry() = default;
    void loadComponentLibraries();

    QHash<QString, ComponentFactory> m_factories; // keyed by the ProgID in lower case
    bool m_librariesLoaded = false;
    bool m_loadingLibraries = false;
};

LUMOAUTOMATION_EXPORT std::unique_ptr<QObject> CreateObject(const QString &progId);
