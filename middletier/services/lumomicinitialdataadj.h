#pragma once

#include "middletier_global.h"

#include <QObject>
#include <QString>

// "LumoMICInitial.DataAdj": the data service of the adjustment control and its batch dialog.
// For now it answers the members it shares with "LumoMICInitial.Data", with the same arguments,
// results and errors (see LumoMICInitialData): enough for the adjustment control to show.
class LUMOMIDDLETIER_EXPORT LumoMICInitialDataAdj : public QObject
{
    Q_OBJECT

public:
    explicit LumoMICInitialDataAdj(QObject *parent = nullptr);

    Q_INVOKABLE QObject *FetchSysParameter(const QString &PropsString);
    Q_INVOKABLE QObject *FetchStocks(const QString &PropsString, const QString &typeList = QString());
    Q_INVOKABLE QObject *FetchMeasureUnits(const QString &PropsString);
    Q_INVOKABLE void UpdateINIData(const QString &PropsString, const QString &script);
};
