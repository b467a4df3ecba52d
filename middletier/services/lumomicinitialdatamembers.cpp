// The members of "LumoMICInitial.Data" behind the entry grid, its batch dialog, reconciliation,
// transfer and export (declared and documented in lumomicinitialdata.h). They stay thin: the
// queries live in queries/.
#include "lumomicinitialdata.h"

#include "db/accountset.h"
#include "queries/accountsums.h"
#include "queries/auxpropquery.h"
#include "queries/balancetransfer.h"
#include "queries/batchlinequery.h"
#include "queries/checkacctquery.h"
#include "queries/exportquery.h"
#include "queries/fieldlistquery.h"
#include "queries/initialdataquery.h"
#include "queries/itemquery.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/recordset.h"

namespace {

QSqlDatabase databaseOf(const QString &propsString)
{
    return AccountSet::fromPropsString(propsString).database();
}

} // namespace

QObject *LumoMICInitialData::FetchYtdInitialData(const QString &PropsString, int StockID, int SPID, int Period,
                                                 int PageSize, int PageIndex, const QString &Filter,
                                                 const QString &ActualFilter, const QString &VirtualFilter,
                                                 const QString &Sort, bool UseShortNumber)
{
    InitialDataQuery::Request request;
    request.place = {StockID, SPID, Period};
    request.pageSize = PageSize;
    request.pageIndex = PageIndex;
    request.filters = {Filter, ActualFilter, VirtualFilter};
    request.sort = Sort;
    request.useShortNumber = UseShortNumber;
    return InitialDataQuery::fetch(databaseOf(PropsString), request);
}

QObject *LumoMICInitialData::FetchYtdItemDetail(const QString &PropsString, const QString &ItemCode)
{
    return ItemQuery::byCode(databaseOf(PropsString), ItemCode);
}

QObject *LumoMICInitialData::GetInitData(const QString &PropsString, const QString &PlaceItemKey)
{
    const auto key = BatchLineQuery::PlaceItemKey::parse(PlaceItemKey);
    return BatchLineQuery::itemRows(databaseOf(PropsString), key, std::nullopt);
}

QObject *LumoMICInitialData::GetInitData(const QString &PropsString, const QString &PlaceItemKey, int AuxPropID)
{
    const auto key = BatchLineQuery::PlaceItemKey::parse(PlaceItemKey);
    return BatchLineQuery::itemRows(databaseOf(PropsString), key, AuxPropID);
}

QObject *LumoMICInitialData::FetchYtdBatManDetail(const QString &PropsString, int Period, int StockID, int SPID,
                                                  int ItemID, int AuxPropID, int UnitID, bool FBM, bool FKF)
{
    return FetchYtdBatManDetail(PropsString, Period, StockID, SPID, ItemID, AuxPropID, UnitID, FBM, FKF, QString());
}

QObject *LumoMICInitialData::FetchYtdBatManDetail(const QString &PropsString, int Period, int StockID, int SPID,
                                                  int ItemID, int AuxPropID, int UnitID, bool FBM, bool FKF,
                                                  const QString &FieldCompose)
{
    BatchLineQuery::LineRequest request;
    request.period = Period;
    request.stockId = StockID;
    request.spId = SPID;
    request.itemId = ItemID;
    request.auxPropId = AuxPropID;
    request.unitId = UnitID;
    request.batchManaged = FBM;
    request.shelfLifeManaged = FKF;
    request.fieldCompose = FieldCompose.trimmed();
    return BatchLineQuery::lines(databaseOf(PropsString), request);
}

QObject *LumoMICInitialData::FetchYtdAccounts(const QString &PropsString, int Period)
{
    return FetchYtdAccounts(PropsString, Period, QString(), QString());
}

QObject *LumoMICInitialData::FetchYtdAccounts(const QString &PropsString, int Period, const QString &Filter,
                                              const QString &Sort)
{
    return AccountSums::fetch(databaseOf(PropsString), Period, Filter, Sort);
}

QObject *LumoMICInitialData::FetchYtdCheckAcctData(const QString &PropsString, int Period, int AccountID,
                                                   int PageSize, int PageIndex, const QString &Filter)
{
    return FetchYtdCheckAcctData(PropsString, Period, AccountID, PageSize, PageIndex, Filter, QString(), QString(),
                                 QString(), true);
}

QObject *LumoMICInitialData::FetchYtdCheckAcctData(const QString &PropsString, int Period, int AccountID,
                                                   int PageSize, int PageIndex, const QString &Filter,
                                                   const QString &ActualFilter, const QString &VirtualFilter,
                                                   const QString &Sort, bool WithTotals)
{
    CheckAcctQuery::Request request;
    request.period = Period;
    request.accountId = AccountID;
    request.pageSize = PageSize;
    request.pageIndex = PageIndex;
    request.filters = {Filter, ActualFilter, VirtualFilter};
    request.sort = Sort;
    request.withTotals = WithTotals;
    return CheckAcctQuery::fetch(databaseOf(PropsString), request);
}

QObject *LumoMICInitialData::FetchICExportData(const QString &PropsString, int StockID, int SPID, int Period,
                                               const QString &Filter, const QString &Sort)
{
    return ExportQuery::fetch(databaseOf(PropsString), {StockID, SPID, Period, Filter, Sort});
}

int LumoMICInitialData::StartTransferBalace(const QString &PropsString, int Year, int Period, int CurrencyID,
                                            int AccountID, const QString &AccountNumber, const QString &AccountName,
                                            int DC, int Scale, double YtdBegBal, double YtdDebit, double YtdCredit,
                                            double BegBal, int DetailID)
{
    BalanceTransfer::Account account;
    account.year = Year;
    account.period = Period;
    account.currencyId = CurrencyID;
    account.accountId = AccountID;
    account.accountNumber = AccountNumber;
    account.accountName = AccountName;
    account.dc = DC;
    account.scale = Scale;
    account.ytdBegBal = YtdBegBal;
    account.ytdDebit = YtdDebit;
    account.ytdCredit = YtdCredit;
    account.begBal = BegBal;
    account.detailId = DetailID;
    return BalanceTransfer::transfer(databaseOf(PropsString), account);
}

int LumoMICInitialData::CheckItemAuxNum(const QString &PropsString)
{
    return AuxPropQuery::propertyCount(databaseOf(PropsString));
}

QObject *LumoMICInitialData::FetchAuxProp(const QString &PropsString)
{
    return AuxPropQuery::classes(databaseOf(PropsString));
}

QObject *LumoMICInitialData::GetSortByFields(const QString &PropsString, const QString &kind)
{
    return FieldListQuery::fetch(databaseOf(PropsString), kind);
}
