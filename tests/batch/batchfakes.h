#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>

// Stand-ins for the middle tier under the real ProgIDs, so the batch dialog is tested on exactly
// what it asks of its services and what it would send to the database. The state is static
// because the dialog creates a new service object per call.
struct BatchWorld
{
    QString propsString = QStringLiteral("UserName=演示员;UserID=16;AcctDB=/tmp/batch-none.db;");

    // FetchYtdBatManDetail: the arguments of every call and the records it answers.
    QList<QVariantList> detailCalls;
    QStringList detailFields;
    QList<QVariantList> detailRows;
    bool failDetail = false;

    // Execute of the connection: the statements received and the answers.
    QStringList executed;
    int scale = 2;
    double unitCoefficient = 1;
    double secCoefficient = 0;

    // UpdateINIData: the property strings and scripts received.
    QStringList updateProps;
    QStringList scripts;
    bool failUpdate = false;

    static BatchWorld &instance();
    void reset();
};

// The error texts the fakes raise.
inline const QString DetailFailure = QStringLiteral("批次明细读取失败");
inline const QString UpdateFailure = QStringLiteral("脚本执行失败");

// Registers the fakes under "LumoMICInitial.Data", "LumoConnection.AppConnection" and
// "LumoPropsMgr.ShareProps".
void registerBatchFakes();

// The detail fields in the order the data service delivers them.
QStringList detailFieldNames();
