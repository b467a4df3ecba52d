#include "batch/batchscript.h"

#include "batch/batchline.h"

#include "frame/icinitstruct.h"
#include "frame/messages.h"

#include "grid/gridtypes.h"
#include "sheet/savescript.h"
#include "sheet/sqltext.h"

#include <QStringList>

namespace {

constexpr int ContinuationIndent = 26;

const QString DeleteByPlace = QStringLiteral(" Delete from ICInvInitial ");
const QString WhereStock = QStringLiteral(" Where FStockID=");
const QString AndKeyword = QStringLiteral(" And ");
const QString AndLower = QStringLiteral(" and ");
const QString KeyIndent = QStringLiteral("       ");
const QString SPIDIs = QStringLiteral("FSPID=");
const QString PeriodIs = QStringLiteral("FPeriod=");
const QString ItemIs = QStringLiteral("FItemID=");
const QString AuxPropIs = QStringLiteral("FAuxPropID=");
const QString DeleteByCompose = QStringLiteral(" Delete from ICInvInitial where FFieldCompose=");

const QString InsertHead = QStringLiteral(" Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo,");
const QStringList InsertContinuation{
    QStringLiteral("FYtdAuxBegQty,FYtdBegBal,FYtdBegDiff,"),
    QStringLiteral("FYtdAuxReceive,FYtdDebit,FYtdReceiveDiff,"),
    QStringLiteral("FYtdAuxSend,FYtdCredit,FYtdSendDiff,"),
    QStringLiteral("FAuxBegQty,FBegBal,FBegDiff,FBillInterID,"),
    QStringLiteral("FKFDate,FKFPeriod,"),
    QStringLiteral("FAuxUnitBegQty,FYtdAuxUnitBegQty,FYtdAuxUnitSend,"),
    QStringLiteral("FYtdAuxUnitReceive,FStockInDate,FSecUnitID,FAuxPropID,FSecCoefficient,FSNListID,FFieldCompose)"),
};
const QString ValuesHead = QStringLiteral(" Values('0',");

const QStringList SerialTables{QStringLiteral("ICSerial"), QStringLiteral("ICSerialFlow"),
                               QStringLiteral("ICSerial_F1")};
const QString SerialDelete = QStringLiteral("Delete %1 Where FSNListID In (%2)");
// The middle tier takes at most 1000 items in one IN list, so longer lists go in several deletes.
constexpr qsizetype SerialIdsPerDelete = 1000;

// The figure columns in the order the insert names them.
constexpr int InsertedFigures[] = {BatCol::YtdBegQty, BatCol::YtdBegBal,  BatCol::YtdBegDiff,  BatCol::ReceiveQty,
                                   BatCol::Debit,     BatCol::ReceiveDiff, BatCol::SendQty,    BatCol::Credit,
                                   BatCol::SendDiff,  BatCol::BegQty,     BatCol::BegBal,      BatCol::BegDiff};
constexpr int InsertedSecondary[] = {BatCol::BegSecQty, BatCol::YtdBegSecQty, BatCol::SendSecQty,
                                     BatCol::ReceiveSecQty};

QString dateText(const QDate &date)
{
    return date.isValid() ? date.toString(QString::fromLatin1(Grid::DateFormat)) : QString();
}

QString deleteStatements(const BatchScriptKey &key)
{
    QString text = DeleteByPlace + WhereStock + QString::number(key.stockId) + AndKeyword + KeyIndent + SPIDIs
                   + QString::number(key.spId) + AndKeyword + KeyIndent + PeriodIs + QString::number(key.period)
                   + AndKeyword + KeyIndent + ItemIs + QString::number(key.itemId) + AndLower + KeyIndent
                   + AuxPropIs + QString::number(key.auxPropId);
    if (!key.fieldCompose.isEmpty())
        text += Msg::LineBreak + DeleteByCompose + SqlText::quoted(key.fieldCompose);
    return text;
}

QString insertStatement(const BatchScriptKey &key, const BatchLine &line, const QString &composed)
{
    const QString indent(ContinuationIndent, QLatin1Char(' '));
    QString text = InsertHead;
    for (const QString &piece : InsertContinuation)
        text += Msg::LineBreak + indent + piece;

    QStringList values{QString::number(key.period), QString::number(key.stockId), QString::number(key.spId),
                       QString::number(key.itemId), QString::number(key.unitId), SqlText::quoted(line.batchNo)};
    for (int col : InsertedFigures)
        values.append(SqlText::number(line.figure(col)));
    values.append(QString::number(line.billInterId));
    values.append(SqlText::quoted(dateText(line.kfDate)));
    values.append(QString::number(line.kfPeriod.value_or(0)));
    for (int col : InsertedSecondary)
        values.append(SqlText::number(line.figure(col)));
    values.append(SqlText::quoted(dateText(line.stockInDate)));
    values.append(QString::number(key.secUnitId));
    values.append(QString::number(key.auxPropId));
    values.append(SqlText::number(key.secCoefficient));
    values.append(QString::number(line.snListId));
    values.append(SqlText::quoted(composed));
    return text + ValuesHead + values.join(QLatin1Char(',')) + QLatin1Char(')');
}

} // namespace

namespace BatchScript {

QString build(const BatchScriptKey &key, const QList<BatchLine> &lines, const QList<qint32> &deletedSerialLists)
{
    QStringList statements{deleteStatements(key)};
    const QString composed = FFieldCompose(key.stockId, key.spId, key.period, key.itemId, key.auxPropId);
    for (const BatchLine &line : lines)
        statements.append(insertStatement(key, line, composed));
    for (qsizetype first = 0; first < deletedSerialLists.size(); first += SerialIdsPerDelete) {
        QStringList ids;
        for (qint32 id : deletedSerialLists.mid(first, SerialIdsPerDelete))
            ids.append(QString::number(id));
        for (const QString &table : SerialTables)
            statements.append(SerialDelete.arg(table, ids.join(QLatin1Char(','))));
    }
    if (key.recordCounter)
        statements.append(SaveScript::systemProfileUpdate(*key.recordCounter).trimmed());
    return statements.join(Msg::LineBreak);
}

} // namespace BatchScript
