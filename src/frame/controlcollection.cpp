#include "controlcollection.h"

ControlCollection::ControlCollection(QObject *owner)
    : QObject(owner)
    , m_owner(owner)
{
    setObjectName(QStringLiteral("Controls"));
}

QList<QObject *> ControlCollection::children() const
{
    QList<QObject *> named;
    if (!m_owner)
        return named;
    for (QObject *child : m_owner->findChildren<QObject *>()) {
        if (!child->objectName().isEmpty() && child != this && !child->objectName().startsWith(QLatin1String("qt_")))
            named.append(child);
    }
    return named;
}

int ControlCollection::Count() const
{
    return int(children().size());
}

QObject *ControlCollection::Item(const QString &name) const
{
    return m_owner ? m_owner->findChild<QObject *>(name) : nullptr;
}

QStringList ControlCollection::Names() const
{
    QStringList names;
    for (QObject *child : children())
        names.append(child->objectName());
    return names;
}

QVariantList ControlCollection::Items() const
{
    QVariantList items;
    for (QObject *child : children())
        items.append(QVariant::fromValue(child));
    return items;
}
