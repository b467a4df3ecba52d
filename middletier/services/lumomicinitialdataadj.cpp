#include "lumomicinitialdataadj.h"

#include "lumomicinitialdata.h"

LumoMICInitialDataAdj::LumoMICInitialDataAdj(QObject *parent)
    : QObject(parent)
{
}

QObject *LumoMICInitialDataAdj::FetchSysParameter(const QString &PropsString)
{
    return LumoMICInitialData().FetchSysParameter(PropsString);
}

QObject *LumoMICInitialDataAdj::FetchStocks(const QString &PropsString, const QString &typeList)
{
    return LumoMICInitialData().FetchStocks(PropsString, typeList);
}

QObject *LumoMICInitialDataAdj::FetchMeasureUnits(const QString &PropsString)
{
    return LumoMICInitialData().FetchMeasureUnits(PropsString);
}

void LumoMICInitialDataAdj::UpdateINIData(const QString &PropsString, const QString &script)
{
    LumoMICInitialData().UpdateINIData(PropsString, script);
}
