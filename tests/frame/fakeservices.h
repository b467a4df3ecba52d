#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

class Recordset;

// Stand-ins for the middle tier, registered under the real ProgIDs, so the frame can be tested on
// what it asks of its services. Their state is static: the frame creates a new object per call.
struct FakeWorld
{
    QString propsString = QStringLiteral("UserName=演示员;UserID=16;AcctDB=/tmp/none.db;");
    QVariantMap sysParams;
    QList<QVariantList> stocks; // FItemID, FParentID, FSPID, FName, FNumber, FShortNumber, FIsStockMgr, FTypeID
    int scale = 2;
    QSet<QString> rights; // "type/id/right"
    int taskHandle = 7;
    QList<int> committed;
    int taskExecCalls = 0;
    int commitCalls = 0;
    int dataObjectsCreated = 0;
    QStringList stockTypeArguments;
    int initialDataCalls = 0;
    bool logEnabled = true;
    int logObjectsCreated = 0;
    QStringList logLines;

    static FakeWorld &instance();
    void reset();
};

// Registers every fake under its ProgID (again after a reset of the world).
void registerFakeServices();
