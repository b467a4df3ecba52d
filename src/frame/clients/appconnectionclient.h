#pragma once

#include "frame/lumoicinitial_global.h"

#include <QObject>
#include <QString>

#include <memory>

class Recordset;

// Client of the suite's connection service "LumoConnection.AppConnection": plain statements on
// the current account set.
class LUMOICINITIAL_EXPORT AppConnectionClient
{
public:
    AppConnectionClient();

    // The statement's rows; empty when the service returns nothing.
    std::unique_ptr<Recordset> Execute(const QString &sql) const;

private:
    std::unique_ptr<QObject> m_service;
};
