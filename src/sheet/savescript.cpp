#include "savescript.h"

#include "sheet/entrysheet.h"
#include "sheet/sqltext.h"

#include "frame/icinitstruct.h"
#include "frame/messages.h"

#include "frame/ctlerrors.h"

namespace {

const QString DeletedRowSeparator = QStringLiteral("|");

const QString InsertHead = QStringLiteral(
    "Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo, "
    "FYtdAuxBegQty,FYtdBegBal,FYtdBegDiff, FYtdAuxReceive,FYtdDebit,FYtdReceiveDiff, "
    "FYtdAuxSend,FYtdCredit,FYtdSendDiff, FAuxBegQty,FBegBal,FBegDiff, "
    "FAuxUnitBegQty,FYtdAuxUnitBegQty,FYtdAuxUnitSend, "
    "FYtdAuxUnitReceive,FStockInDate,FSecUnitID,FAuxPropID,FSecCoefficient,FFieldCompose) Values(");
// An item row carries branch '0' and no batch number.
const QString BranchNo = QStringLiteral("'0'");
const QString NoBatchNo = QStringLiteral("''");

QString figure(double value)
{
    return SqlText::number(value);
}

QString whole(qint64 value)
{
    return QString::number(value);
}

// The twelve figures in column order, then the four secondary-unit quantities.
QStringList insertFigures(const ICInitStruct &r)
{
    return {figure(r.YtdAuxBegQty),  figure(r.YtdBegBal),         figure(r.YtdBegDiff),      figure(r.YtdAuxReceive),
            figure(r.YtdDebit),      figure(r.YtdReceiveDiff),    figure(r.YtdAuxSend),      figure(r.YtdCredit),
            figure(r.YtdSendDiff),   figure(r.AuxBegQty),         figure(r.BegBal),          figure(r.BegDiff),
            figure(r.AuxUnitBegQty), figure(r.YtdAuxUnitBegQty), figure(r.YtdAuxUnitSend), figure(r.YtdAuxUnitReceive)};
}

QString insertStatement(const ICInitStruct &r)
{
    QStringList values{BranchNo, whole(r.Period), whole(r.StockID), whole(r.SPID),
                       whole(r.ItemID), whole(r.UnitID), NoBatchNo};
    values += insertFigures(r);
    values += {SqlText::quoted(r.StockInDate), whole(r.SecUnitID), whole(r.AuxPropID), figure(r.SecCoefficient),
               SqlText::quoted(r.composedKey())};
    return SaveScript::itemInsertHead() + values.join(u',') + u')';
}

QString updateStatement(const ICInitStruct &r)
{
    const QString newKey = SqlText::quoted(r.composedKey());
    const QString oldKey = SqlText::quoted(r.oFieldCompose);
    if (r.BatchManager)
        return QStringLiteral("update icinvinitial set FItemID=%1,funitid=%2,FFieldCompose=%3,FAuxPropID=%4"
                              " where FFieldCompose=%5")
            .arg(whole(r.ItemID), whole(r.UnitID), newKey, whole(r.AuxPropID), oldKey);

    const std::pair<const char *, double> figures[] = {
        {"FYtdAuxBegQty", r.YtdAuxBegQty},         {"FYtdBegBal", r.YtdBegBal},
        {"FYtdBegDiff", r.YtdBegDiff},             {"FYtdAuxReceive", r.YtdAuxReceive},
        {"FYtdDebit", r.YtdDebit},                 {"FYtdReceiveDiff", r.YtdReceiveDiff},
        {"FYtdAuxSend", r.YtdAuxSend},             {"FYtdCredit", r.YtdCredit},
        {"FYtdSendDiff", r.YtdSendDiff},           {"FAuxBegQty", r.AuxBegQty},
        {"FBegBal", r.BegBal},                     {"FBegDiff", r.BegDiff},
        {"FAuxUnitBegQty", r.AuxUnitBegQty},       {"FYtdAuxUnitBegQty", r.YtdAuxUnitBegQty},
        {"FYtdAuxUnitSend", r.YtdAuxUnitSend},     {"FYtdAuxUnitReceive", r.YtdAuxUnitReceive},
    };
    QString text = QStringLiteral("update icinvinitial set FItemID=%1, funitid=%2 ,FStockInDate=%3")
                       .arg(whole(r.ItemID), whole(r.UnitID), SqlText::quoted(r.StockInDate));
    for (const auto &[column, value] : figures)
        text += u',' + QLatin1String(column) + u'=' + figure(value);
    text += QStringLiteral(",FFieldCompose=%1 ,FAuxPropID=%2 where FFieldCompose=%3")
                .arg(newKey, whole(r.AuxPropID), oldKey);
    return text;
}

// The four deletes of one deleted row: serial numbers first, as their sub-select needs the
// balance rows still present, then the balance rows (batch lines included).
QStringList deleteStatements(const QString &deletedRow, const EntryPlace &place, qint32 period)
{
    const QStringList parts = deletedRow.split(DeletedRowSeparator);
    bool itemOk = false;
    bool auxOk = false;
    const qint64 itemId = parts.size() == 2 ? parts.at(0).trimmed().toLongLong(&itemOk) : 0;
    const qint64 auxPropId = parts.size() == 2 ? parts.at(1).trimmed().toLongLong(&auxOk) : 0;
    if (!itemOk || !auxOk)
        throw LumoError(CtlError::MalformedDeletedRow, QStringLiteral("删除的行无法识别：%1").arg(deletedRow),
                        QStringLiteral("SaveScript"));

    const QString where = QStringLiteral("Where FStockID=%1 And FSPID=%2 And FPeriod=%3 And FItemID = %4 And "
                                         "FAuxPropID = %5")
                              .arg(whole(place.stockId), whole(place.spId), whole(period), whole(itemId),
                                   whole(auxPropId));
    const QString serials =
        QStringLiteral("Where FSNListID In (Select Distinct FSNListID From ICInvinitial %1)").arg(where);
    return {QStringLiteral("Delete ICSerial ") + serials, QStringLiteral("Delete ICSerialFlow ") + serials,
            QStringLiteral("Delete ICSerial_F1 ") + serials, QStringLiteral("Delete from ICInvInitial ") + where};
}

} // namespace

namespace SaveScript {

QString build(const QList<const ICInitStruct *> &changed, const QStringList &deleted, const EntryPlace &place,
              qint32 period)
{
    QString script;
    for (const QString &row : deleted) {
        for (const QString &statement : deleteStatements(row, place, period))
            script += statement + Msg::LineBreak;
    }
    for (const ICInitStruct *record : changed) {
        const bool isNew = record->oFieldCompose.isEmpty();
        script += (isNew ? insertStatement(*record) : updateStatement(*record)) + Msg::LineBreak;
    }
    return script;
}

const QString &itemInsertHead()
{
    return InsertHead;
}

QString systemProfileUpdate(qint64 iniBillInterId)
{
    return QStringLiteral("Update t_SystemProfile Set FValue=%1 Where FCategory='IC' And FKey='INIBillInterID'")
               .arg(SqlText::quoted(whole(iniBillInterId)))
           + Msg::LineBreak;
}

} // namespace SaveScript
