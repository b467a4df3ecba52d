#pragma once

#include "frame/lumoicinitial_global.h"

#include <QString>

#include <memory>

class Recordset;

// The batch dialog's calls on the middle tier, late-bound by ProgID; a failing call raises
// LumoError for the caller's handler.
namespace BatchServices {

// Factors of the entry unit and of the secondary unit to the item's base unit; 0 for a unit
// outside the item's unit group.
struct UnitCoefficients
{
    double unit = 0;
    double secondary = 0;
};

// The one statement that reads both coefficients through "LumoConnection.AppConnection".
LUMOICINITIAL_EXPORT QString coefficientSql(qint32 itemId, qint32 unitId, qint32 secUnitId);
LUMOICINITIAL_EXPORT UnitCoefficients fetchCoefficients(qint32 itemId, qint32 unitId, qint32 secUnitId);

// Decimal places of amounts: the scale of the home currency.
LUMOICINITIAL_EXPORT int fetchAmountScale();

// The detail lines of one item row, from "FetchYtdBatManDetail" of "LumoMICInitial.Data". Its
// arguments, in this order (the order the entry control unfolds batch lines with):
//   PropsString, Period, StockID, SPID, ItemID, AuxPropID, UnitID, FBM, FKF, FieldCompose
// and the fields read from each record: FQtyDecimal, FLock, FBatchNo, FBillInterID, the twelve
// figures and four secondary quantities (FYtdAuxBegQty ... FBegDiff), FStockInDate, FKFDate,
// FKFPeriod, FSNListID.
struct DetailQuery
{
    qint32 period = 0;
    qint32 stockId = 0;
    qint32 spId = 0;
    qint32 itemId = 0;
    qint32 auxPropId = 0;
    qint32 unitId = 0;
    bool batchManaged = false;
    bool shelfLifeManaged = false;
    QString fieldCompose;
};
LUMOICINITIAL_EXPORT std::unique_ptr<Recordset> fetchDetail(const DetailQuery &query);

// Hands the script to "UpdateINIData" of "LumoMICInitial.Data" in one call.
LUMOICINITIAL_EXPORT void updateINIData(const QString &script);

} // namespace BatchServices
