#pragma once

#include "middletier_global.h"

#include "script/boundsql.h"
#include "script/filterfields.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

class Recordset;

// The inventory's opening balances per inventory account: the ICInvInitial rows of one period
// summed by the inventory account of their item (t_ICItem.FAcctID), for reconciling with the
// general ledger and transferring to it.
//
// The accounts are those some item names as its inventory account, and the material-cost
// difference account (system parameter CostDiffAccountID), whose amounts are the sums of the
// difference columns of every row (FIsCostDiff 1). Quantities are converted to each item's
// standard unit (the unit's coefficient), so the "Base" sums add up like units.
namespace AccountSums {

// FAccountID, FNumber, FName, FDC, FAcctDetail (1 for a posting account), FDetailID (the
// account's accounting-item combination, 0 for none), FIsCostDiff, then the sums.
LUMOMIDDLETIER_EXPORT const QStringList &fields();
// The sums in the order of fields(): FSumYtdBaseBegQty, FSumYtdBaseReceive, FSumYtdBaseSend,
// FSumBaseBegQty, FSumYtdBegBal, FSumYtdBegDiff, FSumYtdDebit, FSumYtdReceiveDiff, FSumYtdCredit,
// FSumYtdSendDiff, FSumBegBal, FSumBegDiff.
LUMOMIDDLETIER_EXPORT const QStringList &sumFields();

// A derived table with fields() as its columns, for "FROM (...) x".
script::BoundSql derivedTable(const QSqlDatabase &db, int period);
// The fields of fields() for filters and sorts, as columns of `alias`.
script::FilterFields filterFields(const QString &alias);

// FetchYtdAccounts: the accounts with their sums, filtered and sorted (by code after the sort
// keys); a refused filter or sort text selects none.
LUMOMIDDLETIER_EXPORT Recordset *fetch(const QSqlDatabase &db, int period, const QString &filter, const QString &sort);

} // namespace AccountSums
