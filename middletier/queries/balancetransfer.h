#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QString>

// StartTransferBalace: one inventory account's reconciled balances written over the general
// ledger's opening balance of the same account (t_Balance, one row per year, period, account,
// currency and accounting-item combination).
namespace BalanceTransfer {

struct Account
{
    int year = 0;       // 0 or less: the inventory's current year
    int period = 0;     // 0 or less: the inventory's current period
    int currencyId = 0; // 0 or less: the home currency (1)
    int accountId = 0;
    QString accountNumber; // must still be the code of accountId
    QString accountName;   // names the account in the error
    int dc = 1;            // the balances are debit (1) or credit (-1) balances
    int scale = -1;        // the ledger's decimals the amounts are rounded to; below 0: as given
    double ytdBegBal = 0;
    double ytdDebit = 0;
    double ytdCredit = 0;
    double begBal = 0;
    int detailId = 0; // the accounting-item combination the balances belong to (0: none)
};

constexpr int Transferred = 1;
constexpr int ItemsNotMatched = -1;

// Transferred, or ItemsNotMatched (nothing written) when detailId is not the account's own
// combination: the ledger keeps an account with accounting items by item, and balances that
// name none (or another) cannot be put under it. The ledger row then holds the year-start
// balance (FBeginBalance), the year-to-date debit and credit and the opening balance of the
// period (FEndBalance), balances debit-positive, rounded half away from zero; every other row
// of the account in that year, period and currency is removed, in one transaction. An unknown
// account, or one whose code is no longer accountNumber, raises LumoError
// (DataError::UnknownAccount).
LUMOMIDDLETIER_EXPORT int transfer(const QSqlDatabase &db, const Account &account);

// Half away from zero on the decimal value as written, not on its binary noise
// (2.675 to 2 decimals is 2.68).
LUMOMIDDLETIER_EXPORT double roundHalfAway(double value, int decimals);

} // namespace BalanceTransfer
