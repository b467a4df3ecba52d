#include "sharedpropertystore.h"

#include <QCoreApplication>

namespace {

QString entryKey(qint64 processId, const QString &key)
{
    return QString::number(processId) + QLatin1Char('/') + key.toLower();
}

} // namespace

SharedPropertyStore &SharedPropertyStore::instance()
{
    static SharedPropertyStore store;
    return store;
}

QVariant SharedPropertyStore::value(qint64 processId, const QString &key) const
{
    QMutexLocker lock(&m_mutex);
    const auto it = m_entries.constFind(entryKey(processId, key));
    if (it == m_entries.constEnd())
        return {};
    if (it->value.metaType().flags() & QMetaType::PointerToQObject)
        return it->object ? QVariant::fromValue(it->object.data()) : QVariant();
    return it->value;
}

void SharedPropertyStore::setValue(qint64 processId, const QString &key, const QVariant &value)
{
    QMutexLocker lock(&m_mutex);
    Entry entry{value, {}};
    if (value.metaType().flags() & QMetaType::PointerToQObject)
        entry.object = value.value<QObject *>();
    m_entries.insert(entryKey(processId, key), entry);
}

QString SharedPropertyStore::currentPropsString() const
{
    return value(QCoreApplication::applicationPid(), PropsStringKey).toString();
}
