#include "balancetransfer.h"

#include "dataerrors.h"
#include "profilevalue.h"

#include "db/sqlrun.h"
#include "db/transaction.h"
#include "frame/automation/progids.h"

#include <cmath>

namespace {

constexpr int HomeCurrency = 1;
constexpr int StoredDecimals = 10;
constexpr int SignificantDigits = 15;

} // namespace

namespace BalanceTransfer {

double roundHalfAway(double value, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    // Fifteen significant digits drop the noise of the product (2.675 * 100 = 267.4999...).
    const double scaled = QString::number(value * scale, 'g', SignificantDigits).toDouble();
    return std::round(scaled) / scale;
}

int transfer(const QSqlDatabase &db, const Account &account)
{
    QSqlQuery ledger = SqlRun::exec(db, QStringLiteral("SELECT FNumber, FDetailID FROM t_Account WHERE FAccountID=?"),
                                    {account.accountId});
    const bool known = ledger.next() && ledger.value(0).toString().trimmed() == account.accountNumber.trimmed();
    const int ledgerDetailId = known ? ledger.value(1).toInt() : 0;
    ledger.finish();
    if (!known)
        throw LumoError(DataError::UnknownAccount,
                        DataError::UnknownAccountText.arg(account.accountNumber, account.accountName),
                        QString(ProgId::MICInitialData) + QStringLiteral(".StartTransferBalace"));
    if (ledgerDetailId != account.detailId)
        return ItemsNotMatched;

    const int year = account.year > 0 ? account.year : profileValue(db, QStringLiteral("CurrentYear")).toInt();
    const int period = account.period > 0 ? account.period : profileValue(db, QStringLiteral("CurrentPeriod")).toInt();
    const int currency = account.currencyId > 0 ? account.currencyId : HomeCurrency;
    const int sign = account.dc < 0 ? -1 : 1;
    const auto amount = [&](double value) {
        return roundHalfAway(account.scale >= 0 ? roundHalfAway(value, account.scale) : value, StoredDecimals);
    };

    Transaction transaction(db);
    SqlRun::exec(db, QStringLiteral("DELETE FROM t_Balance WHERE FYear=? AND FPeriod=? AND FAccountID=? AND FCurrencyID=?"),
                 {year, period, account.accountId, currency});
    SqlRun::exec(db,
                 QStringLiteral("INSERT INTO t_Balance (FYear, FPeriod, FAccountID, FCurrencyID, FDetailID, FBeginBalance, "
                                "FDebit, FCredit, FYtdDebit, FYtdCredit, FEndBalance) VALUES (?,?,?,?,?,?,?,?,?,?,?)"),
                 {year, period, account.accountId, currency, account.detailId, amount(sign * account.ytdBegBal), 0.0, 0.0,
                  amount(account.ytdDebit), amount(account.ytdCredit), amount(sign * account.begBal)});
    transaction.commit();
    return Transferred;
}

} // namespace BalanceTransfer
