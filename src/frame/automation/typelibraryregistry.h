#pragma once

#include "automation_global.h"

#include <QList>
#include <QString>

struct QMetaObject;

// What a member of a published dispatch interface is.
enum class MemberKind { Method, PropertyGet, PropertyPut, PropertyGetLet };

struct TypeLibraryMember
{
    quint32 id;
    const char *name;
    MemberKind kind;
    const char *type;       // the property's or the result's Qt type name ("void" for none)
    const char *parameters; // published parameter names, comma-separated
    // Published but arriving with a later piece of the library; the class does not have it yet.
    bool pending = false;
};

struct TypeLibraryEvent
{
    quint32 id;
    const char *name;
    const char *parameters;
};

struct TypeLibraryClass
{
    const char *className;     // the creatable class, also the Qt class name
    const char *progId;        // "<library>.<class>"
    const char *classId;
    const char *interfaceId;
    const char *eventInterfaceId; // empty when the class raises no events
    QList<TypeLibraryMember> members;
    QList<TypeLibraryEvent> events;
};

// Published type libraries, so that a host can bind by member id as well as by name.
class LUMOAUTOMATION_EXPORT TypeLibraryRegistry
{
public:
    static TypeLibraryRegistry &instance();

    void registerLibrary(const QString &libraryName, const QList<TypeLibraryClass> &classes);
    QList<TypeLibraryClass> classes(const QString &libraryName) const;

    // The member of the object's class (or of a base class) with that id; null when unknown.
    const TypeLibraryMember *member(const QMetaObject *metaObject, quint32 id) const;

private:
    TypeLibraryRegistry() = default;
    QList<QPair<QString, QList<TypeLibraryClass>>> m_libraries;
};
