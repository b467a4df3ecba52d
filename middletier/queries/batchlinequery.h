#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

#include <optional>

class Recordset;

// The rows behind one item row of the entry grid: its batch or shelf-life lines for the batch
// dialog, and the item rows an item already has in a place (the "already entered" check).
namespace BatchLineQuery {

struct LineRequest
{
    int period = 0;
    int stockId = 0;
    int spId = 0;
    int itemId = 0;
    int auxPropId = 0;
    int unitId = 0;       // quantities are delivered in this unit; 0 as stored
    bool batchManaged = false;
    bool shelfLifeManaged = false;
    QString fieldCompose; // the item row's composed key; its rows belong to the item row too
};

LUMOMIDDLETIER_EXPORT const QStringList &lineFields();
// The lines of the item row: with batch management the rows with a batch number, with
// shelf-life management the rows with a production date (either with both; none without
// either), ordered by FBillInterID (then by entry).
LUMOMIDDLETIER_EXPORT Recordset *lines(const QSqlDatabase &db, const LineRequest &request);

// "StockID|SPID|Period|ItemID" as four whole numbers; throws LumoError
// (DataError::BadPlaceItemKey) for anything else.
struct PlaceItemKey
{
    int stockId = 0;
    int spId = 0;
    int period = 0;
    int itemId = 0;

    static PlaceItemKey parse(const QString &text);
};

LUMOMIDDLETIER_EXPORT const QStringList &itemRowFields();
// One record per item row (auxiliary property) the item has in the place and period, restricted
// to one property when given: FItemID, FAuxPropID, FFieldCompose.
LUMOMIDDLETIER_EXPORT Recordset *itemRows(const QSqlDatabase &db, const PlaceItemKey &key,
                                          std::optional<int> auxPropId);

} // namespace BatchLineQuery
