#pragma once

#include "frame/automation/lumoerror.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <functional>
#include <optional>

class Recordset;

// Stand-ins for the middle tier, one for each service interface, registered under the real
// ProgIDs, so the frame and the dialogs are tested on exactly what they ask of their services and
// what they would send to the database. Their state is static: the library creates a new service
// object per call.
struct FakeWorld
{
    // "LumoPropsMgr.ShareProps"
    QString propsString = QStringLiteral("UserName=演示员;UserID=16;AcctDB=/tmp/none.db;");

    // "LumoMICInitial.Data" and "LumoMICInitial.DataAdj"
    QVariantMap sysParams;
    QList<QVariantList> stocks; // FItemID, FParentID, FSPID, FName, FNumber, FShortNumber, FIsStockMgr, FTypeID
    Recordset *stockRecords() const; // the stocks as FetchStocks returns them, for the caller to take
    int dataObjectsCreated = 0;
    QStringList stockTypeArguments;

    // "LumoEBCGLView.GLData"
    QSet<QString> rights; // "type/id/right"

    // "LumoNetControl.Mutex"
    int taskHandle = 7;
    QList<int> committed;
    int taskExecCalls = 0;
    int commitCalls = 0;
    QList<QVariantList> tasks; // FTaskID, FUserID, FUserName, FComputerName, FProcessID

    // "QLLogMsg.Log"
    bool logEnabled = true;
    int logObjectsCreated = 0;
    QStringList logLines;

    // "LumoCALC.Calc": the result the user closes the calculator with; none when closed without.
    std::optional<double> calcResult;

    static FakeWorld &instance();
    void reset();
};

// Registers every fake under its ProgID.
void registerFakeServices();
// The calculator alone, for suites on the real middle tier: no test may wait on its modal window.
void registerFakeCalculator();

// The error the action raised; none when it raised nothing.
std::optional<LumoError> raisedBy(const std::function<void()> &action);
