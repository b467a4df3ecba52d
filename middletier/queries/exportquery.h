#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

class Recordset;

// FetchICExportData: the initial balances of a place for the export, one record per
// ICInvInitial row (item rows and batch lines alike).
namespace ExportQuery {

struct Request
{
    int stockId = 0; // 0: every warehouse (the stock place is then not looked at)
    int spId = 0;
    int period = 0;
    QString filter;
    QString sort;
};

// The warehouse, stock place, item, unit and auxiliary property with their codes and names,
// the batch and its dates, the twelve figures and the secondary-unit data under their
// ICInvInitial names: FStockID, FStockNumber, FStockName, FSPID, FSPNumber, FSPName, FItemID,
// FNumber, FShortNumber, FItemName, FModel, FUnitID, FUnitNumber, FUnitName, FAuxPropID,
// FAuxPropNumber, FAuxPropName, FBatchNo, FKFDate, FKFPeriod, FStockInDate, FYtdAuxBegQty,
// FYtdBegBal, FYtdBegDiff, FYtdAuxReceive, FYtdDebit, FYtdReceiveDiff, FYtdAuxSend, FYtdCredit,
// FYtdSendDiff, FAuxBegQty, FBegBal, FBegDiff, FYtdAuxUnitBegQty, FYtdAuxUnitReceive,
// FYtdAuxUnitSend, FAuxUnitBegQty, FSecUnitID, FSecCoefficient, FBillInterID.
LUMOMIDDLETIER_EXPORT const QStringList &fields();

// Filtered and sorted with the item-row field names (a sum names the row's own figure), plus
// FStockNumber, FStockName and FBatchNo; by warehouse, place, item, property and batch after
// the sort keys. A refused filter or sort text selects none.
LUMOMIDDLETIER_EXPORT Recordset *fetch(const QSqlDatabase &db, const Request &request);

} // namespace ExportQuery
