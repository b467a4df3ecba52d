#pragma once

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

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
    int dataObjectsCreated = 0;
    QStringList stockTypeArguments;
    int initialDataCalls = 0;
    // FetchYtdBatManDetail: the arguments of every call and the records it answers.
    QList<QVariantList> detailCalls;
    QStringList detailFields;
    QList<QVariantList> detailRows;
    bool failDetail = false;
    // UpdateINIData: the property strings and scripts received.
    QStringList updateProps;
    QStringList scripts;
    bool failUpdate = false;

    // "LumoConnection.AppConnection": the statements Execute received and its answers.
    QStringList executed;
    int scale = 2;
    double unitCoefficient = 1;
    double secCoefficient = 0;

    // "LumoEBCGLView.GLData"
    QSet<QString> rights; // "type/id/right"

    // "LumoNetControl.Mutex"
    int taskHandle = 7;
    QList<int> committed;
    int taskExecCalls = 0;
    int commitCalls = 0;

    // "QLLogMsg.Log"
    bool logEnabled = true;
    int logObjectsCreated = 0;
    QStringList logLines;

    static FakeWorld &instance();
    void reset();
};

// The error texts the fakes raise.
inline const QString DetailFailure = QStringLiteral("批次明细读取失败");
inline const QString UpdateFailure = QStringLiteral("脚本执行失败");

// Registers every fake under its ProgID.
void registerFakeServices();
