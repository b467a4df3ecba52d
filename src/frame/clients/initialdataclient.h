#pragma once

#include "frame/lumoicinitial_global.h"

#include <QObject>
#include <QString>

#include <memory>

class Dictionary;
class Recordset;

// Client of the inventory data service, "LumoMICInitial.Data" or its adjustment twin
// "LumoMICInitial.DataAdj" (the same members). Each client holds its own service object; every
// call passes the current property string. A member whose caller cannot go on without a result
// raises the matching CtlError when the service returns nothing.
class LUMOICINITIAL_EXPORT InitialDataClient
{
public:
    explicit InitialDataClient(const QString &progId);

    // Empty when the service returns nothing.
    std::unique_ptr<Dictionary> FetchSysParameter() const;
    std::unique_ptr<Recordset> FetchMeasureUnits() const;

    std::unique_ptr<Recordset> FetchStocks(const QString &typeList) const;
    std::unique_ptr<Recordset> FetchYtdAccounts(qint32 period) const;
    // One page: "Rows", "Totals", "TotalPages", "RecordCount".
    std::unique_ptr<Dictionary> FetchYtdInitialData(qint32 stockId, qint32 spId, qint32 period, qint32 pageSize,
                                                    qint32 pageIndex, const QString &filter,
                                                    const QString &actualFilter, const QString &virtualFilter,
                                                    const QString &sort, bool useShortNumber) const;
    std::unique_ptr<Recordset> FetchYtdBatManDetail(qint32 period, qint32 stockId, qint32 spId, qint32 itemId,
                                                    qint32 auxPropId, qint32 unitId, bool batchManaged,
                                                    bool shelfLifeManaged, const QString &fieldCompose) const;
    // The item look-ups of the entry grid.
    std::unique_ptr<Recordset> FetchYtdItemDetail(const QString &itemCode) const;
    std::unique_ptr<Recordset> GetInitData(const QString &placeItemKey) const;

    void UpdateINIData(const QString &script) const;

private:
    std::unique_ptr<QObject> m_service;
};
