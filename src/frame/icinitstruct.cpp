#include "icinitstruct.h"

ICInitStruct::ICInitStruct(QObject *parent)
    : QObject(parent)
{
}

QString ICInitStruct::composedKey() const
{
    return FFieldCompose(StockID, SPID, Period, ItemID, AuxPropID);
}

void ICInitStruct::assign(const ICInitStruct &other)
{
    Period = other.Period;
    StockID = other.StockID;
    SPID = other.SPID;
    ItemID = other.ItemID;
    UnitID = other.UnitID;
    BatchNo = other.BatchNo;
    YtdAuxBegQty = other.YtdAuxBegQty;
    YtdBegBal = other.YtdBegBal;
    YtdBegDiff = other.YtdBegDiff;
    YtdAuxReceive = other.YtdAuxReceive;
    YtdDebit = other.YtdDebit;
    YtdReceiveDiff = other.YtdReceiveDiff;
    YtdAuxSend = other.YtdAuxSend;
    YtdCredit = other.YtdCredit;
    YtdSendDiff = other.YtdSendDiff;
    AuxBegQty = other.AuxBegQty;
    BegBal = other.BegBal;
    BegDiff = other.BegDiff;
    BillInterID = other.BillInterID;
    KFDate = other.KFDate;
    KFPeriod = other.KFPeriod;
    FSNListID = other.FSNListID;
    AuxUnitBegQty = other.AuxUnitBegQty;
    YtdAuxUnitBegQty = other.YtdAuxUnitBegQty;
    YtdAuxUnitSend = other.YtdAuxUnitSend;
    YtdAuxUnitReceive = other.YtdAuxUnitReceive;
    StockInDate = other.StockInDate;
    SecUnitID = other.SecUnitID;
    AuxPropID = other.AuxPropID;
    SecCoefficient = other.SecCoefficient;
    oFieldCompose = other.oFieldCompose;
    BatchManager = other.BatchManager;
}

QString FFieldCompose(qint32 stockId, qint32 spId, qint32 period, qint32 itemId, qint32 auxPropId)
{
    return QStringLiteral("%1|%2|%3|%4|%5").arg(stockId).arg(spId).arg(period).arg(itemId).arg(auxPropId);
}
