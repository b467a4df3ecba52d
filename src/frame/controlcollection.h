#pragma once

#include "lumoicinitial_global.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantList>

// The child controls of a control, by object name ("tvICInit", "vsICInit", "BarList", ...).
class LUMOICINITIAL_EXPORT ControlCollection : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int Count READ Count)

public:
    explicit ControlCollection(QObject *owner);

    int Count() const;
    // The named child, or null.
    Q_INVOKABLE QObject *Item(const QString &name) const;
    Q_INVOKABLE QStringList Names() const;
    // Every named child, for services that walk the controls (fonts, form strings).
    Q_INVOKABLE QVariantList Items() const;

private:
    QList<QObject *> children() const;

    QPointer<QObject> m_owner;
};
