#pragma once

#include "middletier_global.h"

#include <QObject>
#include <QString>
#include <QVariant>

// "LumoPropsMgr.ShareProps": properties shared within the suite by process id and key. The
// host publishes its login here ("PropsString", and "LumoLogin" when it has a login object);
// the controls and the services read it back.
class LUMOMIDDLETIER_EXPORT LumoPropsMgrShareProps : public QObject
{
    Q_OBJECT

public:
    explicit LumoPropsMgrShareProps(QObject *parent = nullptr);

    // The value stored under the process id and key (keys without regard to case); an empty
    // variant for an unknown key or a stored object that no longer exists.
    Q_INVOKABLE QVariant GetProperty(int processId, const QString &key);
    // Stores or replaces the value; an object is not owned by the store.
    Q_INVOKABLE void SetProperty(int processId, const QString &key, const QVariant &value);
};
