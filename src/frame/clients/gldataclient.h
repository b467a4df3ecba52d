#pragma once

#include "frame/lumoicinitial_global.h"

#include <QObject>

#include <memory>

// Client of the ledger data service "LumoEBCGLView.GLData".
class LUMOICINITIAL_EXPORT GLDataClient
{
public:
    GLDataClient();

    bool AccessCheck(qint32 objectType, qint32 objectId, qint32 right) const;

private:
    std::unique_ptr<QObject> m_service;
};
