#include "initialdataclient.h"

#include "frame/ctlerrors.h"
#include "frame/logincontext.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/recordset.h"

namespace {

const QString FetchSysParameterMember = QStringLiteral("FetchSysParameter");
const QString FetchMeasureUnitsMember = QStringLiteral("FetchMeasureUnits");
const QString FetchStocksMember = QStringLiteral("FetchStocks");
const QString FetchYtdAccountsMember = QStringLiteral("FetchYtdAccounts");
const QString FetchYtdInitialDataMember = QStringLiteral("FetchYtdInitialData");
const QString FetchYtdBatManDetailMember = QStringLiteral("FetchYtdBatManDetail");
const QString FetchYtdItemDetailMember = QStringLiteral("FetchYtdItemDetail");
const QString GetInitDataMember = QStringLiteral("GetInitData");
const QString UpdateINIDataMember = QStringLiteral("UpdateINIData");

const QString NoStocksText = QStringLiteral("数据服务没有返回仓库");
const QString NoAccountsText = QStringLiteral("数据服务没有返回科目");
const QString NoInitialDataText = QStringLiteral("数据服务没有返回初始数据");
const QString NoBatchDetailText = QStringLiteral("数据服务没有返回批次明细");
const QString NoItemResultText = QStringLiteral("数据服务没有返回结果：%1");

// The object the member returned; nothing raises `number` with the member as the source.
template<class T>
std::unique_ptr<T> required(const QVariant &result, int number, const QString &text, const QString &member)
{
    auto object = takeObject<T>(result);
    if (!object)
        throw LumoError(number, text, member);
    return object;
}

} // namespace

InitialDataClient::InitialDataClient(const QString &progId)
    : m_service(CreateObject(progId))
{
}

std::unique_ptr<Dictionary> InitialDataClient::FetchSysParameter() const
{
    return takeObject<Dictionary>(Dispatch::call(m_service.get(), FetchSysParameterMember, {GetPropsString()}));
}

std::unique_ptr<Recordset> InitialDataClient::FetchMeasureUnits() const
{
    return takeObject<Recordset>(Dispatch::call(m_service.get(), FetchMeasureUnitsMember, {GetPropsString()}));
}

std::unique_ptr<Recordset> InitialDataClient::FetchStocks(const QString &typeList) const
{
    return required<Recordset>(Dispatch::call(m_service.get(), FetchStocksMember, {GetPropsString(), typeList}),
                               CtlError::NoStocks, NoStocksText, FetchStocksMember);
}

std::unique_ptr<Recordset> InitialDataClient::FetchYtdAccounts(qint32 period) const
{
    return required<Recordset>(Dispatch::call(m_service.get(), FetchYtdAccountsMember, {GetPropsString(), period}),
                               CtlError::NoAccounts, NoAccountsText, FetchYtdAccountsMember);
}

std::unique_ptr<Dictionary> InitialDataClient::FetchYtdInitialData(qint32 stockId, qint32 spId, qint32 period,
                                                                   qint32 pageSize, qint32 pageIndex,
                                                                   const QString &filter, const QString &actualFilter,
                                                                   const QString &virtualFilter, const QString &sort,
                                                                   bool useShortNumber) const
{
    return required<Dictionary>(Dispatch::call(m_service.get(), FetchYtdInitialDataMember,
                                               {GetPropsString(), stockId, spId, period, pageSize, pageIndex, filter,
                                                actualFilter, virtualFilter, sort, useShortNumber}),
                                CtlError::NoInitialData, NoInitialDataText, FetchYtdInitialDataMember);
}

std::unique_ptr<Recordset> InitialDataClient::FetchYtdBatManDetail(qint32 period, qint32 stockId, qint32 spId,
                                                                   qint32 itemId, qint32 auxPropId, qint32 unitId,
                                                                   bool batchManaged, bool shelfLifeManaged,
                                                                   const QString &fieldCompose) const
{
    return required<Recordset>(Dispatch::call(m_service.get(), FetchYtdBatManDetailMember,
                                              {GetPropsString(), period, stockId, spId, itemId, auxPropId, unitId,
                                               batchManaged, shelfLifeManaged, fieldCompose}),
                               CtlError::NoBatchDetail, NoBatchDetailText, FetchYtdBatManDetailMember);
}

std::unique_ptr<Recordset> InitialDataClient::FetchYtdItemDetail(const QString &itemCode) const
{
    return required<Recordset>(Dispatch::call(m_service.get(), FetchYtdItemDetailMember, {GetPropsString(), itemCode}),
                               CtlError::NoItemResult, NoItemResultText.arg(FetchYtdItemDetailMember),
                               FetchYtdItemDetailMember);
}

std::unique_ptr<Recordset> InitialDataClient::GetInitData(const QString &placeItemKey) const
{
    return required<Recordset>(Dispatch::call(m_service.get(), GetInitDataMember, {GetPropsString(), placeItemKey}),
                               CtlError::NoItemResult, NoItemResultText.arg(GetInitDataMember), GetInitDataMember);
}

void InitialDataClient::UpdateINIData(const QString &script) const
{
    Dispatch::call(m_service.get(), UpdateINIDataMember, {GetPropsString(), script});
}
