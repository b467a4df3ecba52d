#include "typelibraryregistry.h"

#include <QMetaObject>

TypeLibraryRegistry &TypeLibraryRegistry::instance()
{
    static TypeLibraryRegistry registry;
    return registry;
}

void TypeLibraryRegistry::registerLibrary(const QString &libraryName, const QList<TypeLibraryClass> &classes)
{
    for (auto &library : m_libraries) {
        if (library.first == libraryName) {
            library.second = classes;
            return;
        }
    }
    m_libraries.append({libraryName, classes});
}

QList<TypeLibraryClass> TypeLibraryRegistry::classes(const QString &libraryName) const
{
    for (const auto &library : m_libraries) {
        if (library.first == libraryName)
            return library.second;
    }
    return {};
}

const TypeLibraryMember *TypeLibraryRegistry::member(const QMetaObject *metaObject, quint32 id) const
{
    for (const QMetaObject *mo = metaObject; mo; mo = mo->superClass()) {
        for (const auto &library : m_libraries) {
            for (const TypeLibraryClass &cls : library.second) {
                if (qstrcmp(cls.className, mo->className()) != 0)
                    continue;
                for (const TypeLibraryMember &m : cls.members) {
                    if (m.id == id)
                        return &m;
                }
            }
        }
    }
    return nullptr;
}
