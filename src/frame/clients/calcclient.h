#pragma once

#include "frame/lumoicinitial_global.h"

#include <QObject>

#include <memory>

// Client of the suite's pocket calculator "LumoCALC.Calc".
class LUMOICINITIAL_EXPORT CalcClient
{
public:
    CalcClient();

    // Shows the calculator modal; true when the user closed it with a result.
    bool Show() const;
    // The result the user closed it with.
    double Value() const;

private:
    std::unique_ptr<QObject> m_calc;
};
