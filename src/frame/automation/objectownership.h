#pragma once

#include <QObject>
#include <QVariant>

#include <memory>

// Takes ownership of a parentless object a late-bound call returned in a variant. A variant that
// holds no object, or an object of another class, gives an empty pointer (and the object, if any,
// stays with whoever owns it).
template<class T>
std::unique_ptr<T> takeObject(const QVariant &value)
{
    QObject *object = value.value<QObject *>();
    T *typed = qobject_cast<T *>(object);
    if (!typed || typed->parent())
        return {};
    return std::unique_ptr<T>(typed);
}

// The object in a variant without taking it.
template<class T>
T *objectIn(const QVariant &value)
{
    return qobject_cast<T *>(value.value<QObject *>());
}
