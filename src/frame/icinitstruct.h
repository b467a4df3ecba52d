#pragma once

#include "lumoicinitial_global.h"

#include <QObject>
#include <QString>

// One initial balance as the controls and the batch dialogs pass it around: every field is a
// published read/write property. The fields keep their published names, so they are public data
// rather than m_-prefixed members.
class LUMOICINITIAL_EXPORT ICInitStruct : public QObject
{
    Q_OBJECT
    Q_PROPERTY(short Period MEMBER Period)
    Q_PROPERTY(int StockID MEMBER StockID)
    Q_PROPERTY(int SPID MEMBER SPID)
    Q_PROPERTY(int ItemID MEMBER ItemID)
    Q_PROPERTY(int UnitID MEMBER UnitID)
    Q_PROPERTY(QString BatchNo MEMBER BatchNo)
    Q_PROPERTY(double YtdAuxBegQty MEMBER YtdAuxBegQty)
    Q_PROPERTY(double YtdBegBal MEMBER YtdBegBal)
    Q_PROPERTY(double YtdBegDiff MEMBER YtdBegDiff)
    Q_PROPERTY(double YtdAuxReceive MEMBER YtdAuxReceive)
    Q_PROPERTY(double YtdDebit MEMBER YtdDebit)
    Q_PROPERTY(double YtdReceiveDiff MEMBER YtdReceiveDiff)
    Q_PROPERTY(double YtdAuxSend MEMBER YtdAuxSend)
    Q_PROPERTY(double YtdCredit MEMBER YtdCredit)
    Q_PROPERTY(double YtdSendDiff MEMBER YtdSendDiff)
    Q_PROPERTY(double AuxBegQty MEMBER AuxBegQty)
    Q_PROPERTY(double BegBal MEMBER BegBal)
    Q_PROPERTY(double BegDiff MEMBER BegDiff)
    Q_PROPERTY(int BillInterID MEMBER BillInterID)
    Q_PROPERTY(QString KFDate MEMBER KFDate)
    Q_PROPERTY(int KFPeriod MEMBER KFPeriod)
    Q_PROPERTY(int FSNListID MEMBER FSNListID)
    Q_PROPERTY(double AuxUnitBegQty MEMBER AuxUnitBegQty)
    Q_PROPERTY(double YtdAuxUnitBegQty MEMBER YtdAuxUnitBegQty)
    Q_PROPERTY(double YtdAuxUnitSend MEMBER YtdAuxUnitSend)
    Q_PROPERTY(double YtdAuxUnitReceive MEMBER YtdAuxUnitReceive)
    Q_PROPERTY(QString StockInDate MEMBER StockInDate)
    Q_PROPERTY(int SecUnitID MEMBER SecUnitID)
    Q_PROPERTY(int AuxPropID MEMBER AuxPropID)
    Q_PROPERTY(double SecCoefficient MEMBER SecCoefficient)
    Q_PROPERTY(QString oFieldCompose MEMBER oFieldCompose)
    Q_PROPERTY(bool BatchManager MEMBER BatchManager)

public:
    Q_INVOKABLE explicit ICInitStruct(QObject *parent = nullptr);

    // The composed key "StockID|SPID|Period|ItemID|AuxPropID" of this record's own numbers.
    QString composedKey() const;
    // Copies every field from another record.
    void assign(const ICInitStruct &other);

    short Period = 0;
    int StockID = 0;
    int SPID = 0;
    int ItemID = 0;
    int UnitID = 0;
    QString BatchNo;
    double YtdAuxBegQty = 0.0;
    double YtdBegBal = 0.0;
    double YtdBegDiff = 0.0;
    double YtdAuxReceive = 0.0;
    double YtdDebit = 0.0;
    double YtdReceiveDiff = 0.0;
    double YtdAuxSend = 0.0;
    double YtdCredit = 0.0;
    double YtdSendDiff = 0.0;
    double AuxBegQty = 0.0;
    double BegBal = 0.0;
    double BegDiff = 0.0;
    int BillInterID = 0;
    QString KFDate;
    int KFPeriod = 0;
    int FSNListID = 0;
    double AuxUnitBegQty = 0.0;
    double YtdAuxUnitBegQty = 0.0;
    double YtdAuxUnitSend = 0.0;
    double YtdAuxUnitReceive = 0.0;
    QString StockInDate;
    int SecUnitID = 0;
    int AuxPropID = 0;
    double SecCoefficient = 0.0;
    QString oFieldCompose;
    bool BatchManager = false;
};

// The composed key of an item row: the five numbers as decimal integers joined by "|".
LUMOICINITIAL_EXPORT QString FFieldCompose(qint32 stockId, qint32 spId, qint32 period, qint32 itemId, qint32 auxPropId);
