#pragma once

#include "components_global.h"

#include <QObject>

// "LumoCALC.Calc": the suite's pocket calculator as a component. Show opens it modal over the
// active window; Value is the result the user closed it with.
class LUMOSUITECOMPONENTS_EXPORT LumoCALCCalc : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double Value READ Value)

public:
    // True when the user closed the calculator with "确定" (Value then holds the result shown);
    // false for Esc, "取消" or the window's close button.
    Q_INVOKABLE bool Show();
    double Value() const { return m_value; }

private:
    double m_value = 0;
};
