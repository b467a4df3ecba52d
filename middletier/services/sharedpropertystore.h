#pragma once

#include "middletier_global.h"

#include <QHash>
#include <QMutex>
#include <QPointer>
#include <QString>
#include <QVariant>

// The process-wide storage behind "LumoPropsMgr.ShareProps": values by process id and key
// (keys without regard to case). An object stored as a value is not owned: it is handed out
// while it lives and reads as empty once it has been destroyed.
class LUMOMIDDLETIER_EXPORT SharedPropertyStore
{
public:
    static inline const QString PropsStringKey = QStringLiteral("PropsString");

    static SharedPropertyStore &instance();

    QVariant value(qint64 processId, const QString &key) const;
    void setValue(qint64 processId, const QString &key, const QVariant &value);

    // The login the host published for this process: its "PropsString", empty when none.
    QString currentPropsString() const;

private:
    SharedPropertyStore() = default;

    struct Entry
    {
        QVariant value;
        QPointer<QObject> object; // set when the value is an object
    };

    mutable QMutex m_mutex;
    QHash<QString, Entry> m_entries; // "pid/key" in lower case
};
