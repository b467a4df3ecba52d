#pragma once

#include "frame/lumoicinitial_global.h"

#include <QObject>
#include <QString>

#include <memory>

// Client of the platform's registry reader "Pelm.Reg".
class LUMOICINITIAL_EXPORT RegClient
{
public:
    RegClient();

    QString GetKeyValue(const QString &keyPath, const QString &valueName, const QString &valueType) const;

private:
    std::unique_ptr<QObject> m_service;
};
