#pragma once

#include "frame/lumoicinitial_global.h"

#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

// Client of the suite's shared-property service "LumoPropsMgr.ShareProps": values the log-in
// leaves for a process, such as its property string and login object.
class LUMOICINITIAL_EXPORT SharePropsClient
{
public:
    SharePropsClient();

    QVariant GetProperty(qint32 processId, const QString &key) const;

private:
    std::unique_ptr<QObject> m_service;
};
