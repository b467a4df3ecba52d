#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QStringList>

class Dictionary;

// FetchYtdCheckAcctData: the reconciliation of the inventory's opening balances with the
// general ledger, one row per inventory account (AccountSums), page by page.
namespace CheckAcctQuery {

struct Request
{
    int period = 0;
    int accountId = 0; // 0: every inventory account
    int pageSize = 0;
    int pageIndex = 0;
    QStringList filters; // Filter, ActualFilter, VirtualFilter
    QString sort;
    bool withTotals = true;
};

// AccountSums::fields(), then the ledger's own balances of the account in the home currency for
// the inventory's current year and the period: FGLBeginBalance (year start), FGLYtdDebit,
// FGLYtdCredit, FGLSumEndBal (opening of the period), and FICGLDiff = FSumBegBal - FGLSumEndBal.
LUMOMIDDLETIER_EXPORT const QStringList &fields();

// A PagedResult Dictionary; its totals add up the selected accounts (FInitYtdBegQty from
// FSumYtdBaseBegQty, FInitYtdBegBal from FSumYtdBegBal, ...). Without withTotals the totals
// record has no record.
LUMOMIDDLETIER_EXPORT Dictionary *fetch(const QSqlDatabase &db, const Request &request);

} // namespace CheckAcctQuery
