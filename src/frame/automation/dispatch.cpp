#include "dispatch.h"

#include "lumoerror.h"
#include "typelibraryregistry.h"

#include <QMetaMethod>
#include <QMetaProperty>


namespace {

const QString source = QStringLiteral("Dispatch");

[[noreturn]] void memberNotFound(const QObject *object, const QString &member)
{
    throw LumoError(LumoError::MemberNotFound,
                    QStringLiteral("对象不支持该属性或方法：%1.%2")
                        .arg(object ? QString::fromLatin1(object->metaObject()->className()) : QStringLiteral("Nothing"),
                             member),
                    source);
}

void requireObject(const QObject *object, const QString &member)
{
    if (!object)
        throw LumoError(LumoError::ObjectNotSet, QStringLiteral("对象变量未设置：%1").arg(member), source);
}

// The argument converted to the parameter's type; a QVariant parameter takes it as it is.
QVariant convertArgument(const QVariant &arg, int typeId, const QString &member)
{
    if (typeId == QMetaType::QVariant)
        return arg;
    const QMetaType target(typeId);
    if (arg.metaType() == target)
        return arg;
    if (!arg.isValid())
        return QVariant(target);
    QVariant converted = arg;
    // An object parameter accepts any object whose class derives from it.
    if (target.flags() & QMetaType::PointerToQObject) {
        QObject *object = arg.value<QObject *>();
        const QMetaObject *wanted = target.metaObject();
        if (!object || !wanted || object->metaObject()->inherits(wanted))
            return QVariant(target, &object);
    }
    if (!converted.convert(target))
        throw LumoError(LumoError::InvalidArgument,
                        QStringLiteral("参数类型不匹配：%1 需要 %2").arg(member, QString::fromLatin1(target.name())),
                        source);
    return converted;
}

QVariant callMethod(QObject *object, const QMetaMethod &method, const QVariantList &args)
{
    const QString member = QString::fromLatin1(method.name());
    // Published members take up to fourteen arguments: the call goes straight to the meta-call
    // with an argument array of any length.
    QVector<QVariant> converted(args.size());
    QVector<void *> argv(args.size() + 1, nullptr);
    for (int i = 0; i < args.size(); ++i) {
        const int typeId = method.parameterType(i);
        converted[i] = convertArgument(args.at(i), typeId, member);
        argv[i + 1] = typeId == QMetaType::QVariant ? static_cast<void *>(&converted[i]) : converted[i].data();
    }
    QVariant result;
    if (method.returnType() == QMetaType::QVariant)
        argv[0] = &result;
    else if (method.returnType() != QMetaType::Void) {
        result = QVariant(QMetaType(method.returnType()));
        argv[0] = result.data();
    }
    QMetaObject::metacall(object, QMetaObject::InvokeMetaMethod, method.methodIndex(), argv.data());
    return result;
}

bool findMethod(const QObject *object, const QString &member, int argCount, QMetaMethod *found)
{
    const QMetaObject *mo = object->metaObject();
    const QByteArray name = member.toLatin1();
    // Last declared first, so a subclass's member wins over its base's.
    for (int i = mo->methodCount() - 1; i >= 0; --i) {
        const QMetaMethod method = mo->method(i);
        if (method.methodType() != QMetaMethod::Method && method.methodType() != QMetaMethod::Slot)
            continue;
        if (method.access() != QMetaMethod::Public || method.name() != name)
            continue;
        if (method.parameterCount() == argCount) {
            *found = method;
            return true;
        }
    }
    return false;
}

} // namespace

namespace Dispatch {

bool hasMember(const QObject *object, const QString &member)
{
    if (!object)
        return false;
    const QMetaObject *mo = object->metaObject();
    if (mo->indexOfProperty(member.toLatin1().constData()) >= 0)
        return true;
    const QByteArray name = member.toLatin1();
    for (int i = 0; i < mo->methodCount(); ++i) {
        if (mo->method(i).name() == name)
            return true;
    }
    return false;
}

QVariant getProperty(QObject *object, const QString &name)
{
    requireObject(object, name);
    const int index = object->metaObject()->indexOfProperty(name.toLatin1().constData());
    if (index < 0)
        memberNotFound(object, name);
    return object->metaObject()->property(index).read(object);
}

void setProperty(QObject *object, const QString &name, const QVariant &value)
{
    requireObject(object, name);
    const QMetaProperty property = object->metaObject()->property(
        object->metaObject()->indexOfProperty(name.toLatin1().constData()));
    if (!property.isValid() || !property.isWritable())
        memberNotFound(object, name);
    if (!property.write(object, convertArgument(value, property.typeId(), name)))
        throw LumoError(LumoError::InvalidArgument, QStringLiteral("属性值无效：%1").arg(name), source);
}

QVariant call(QObject *object, const QString &member, const QVariantList &args)
{
    requireObject(object, member);
    QMetaMethod method;
    if (findMethod(object, member, int(args.size()), &method))
        return callMethod(object, method, args);
    if (object->metaObject()->indexOfProperty(member.toLatin1().constData()) >= 0) {
        if (args.isEmpty())
            return getProperty(object, member);
        if (args.size() == 1) {
            setProperty(object, member, args.first());
            return {};
        }
    }
    memberNotFound(object, member);
}

QVariant invoke(QObject *object, const QVariant &memberIdOrName, const QVariantList &args)
{
    requireObject(object, memberIdOrName.toString());
    if (memberIdOrName.typeId() == QMetaType::QString)
        return call(object, memberIdOrName.toString(), args);
    bool ok = false;
    const quint32 id = memberIdOrName.toUInt(&ok);
    const TypeLibraryMember *m = ok ? TypeLibraryRegistry::instance().member(object->metaObject(), id) : nullptr;
    if (!m)
        memberNotFound(object, QStringLiteral("0x%1").arg(id, 8, 16, QLatin1Char('0')).toUpper());
    const QString name = QString::fromLatin1(m->name);
    switch (m->kind) {
    case MemberKind::Method:
        return call(object, name, args);
    case MemberKind::PropertyGet:
        if (!args.isEmpty())
            throw LumoError(LumoError::InvalidArgument, QStringLiteral("属性只读：%1").arg(name), source);
        return getProperty(object, name);
    case MemberKind::PropertyPut:
        if (args.size() != 1)
            throw LumoError(LumoError::InvalidArgument, QStringLiteral("属性只能写入：%1").arg(name), source);
        setProperty(object, name, args.first());
        return {};
    case MemberKind::PropertyGetLet:
        if (args.isEmpty())
            return getProperty(object, name);
        setProperty(object, name, args.first());
        return {};
    }
    memberNotFound(object, name);
}

} // namespace Dispatch
