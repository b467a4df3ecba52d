#pragma once

#include "frame/lumoicinitial_global.h"

#include <QObject>
#include <QString>

#include <memory>

// Client of the suite's trace log service "QLLogMsg.Log".
class LUMOICINITIAL_EXPORT LogClient
{
public:
    LogClient();

    bool IsEnabled() const;
    // The handle LogEnd closes.
    qint32 LogStart(const QString &text) const;
    void LogEnd(qint32 handle, qint32 value) const;

private:
    std::unique_ptr<QObject> m_service;
};
