#pragma once

#include "sheet/iteminfo.h"
#include "frame/lumoicinitial_global.h"

#include <QColor>
#include <QHash>

class CellModel;
class Recordset;

// The row-kind colours of the grids, read from the settings with their defaults.
struct RowColors
{
    QColor lock;
    QColor batMan;
    QColor sum;
    QColor find;
    QColor balAdj;

    static RowColors fromSettings();
};

// Writing records into the entry grid: item rows, batch lines, and the look of each kind of row.
namespace ItemRows {

// The figure columns of the four groups (quantity, amount, difference), in group order.
struct GroupColumns
{
    int quantity;
    int auxQuantity;
    int amount;
    int difference;
};
LUMOICINITIAL_EXPORT const GroupColumns (&groups())[4];
// Whether the column holds one of the groups' figures.
LUMOICINITIAL_EXPORT bool isFigureColumn(int col);

// Column defaults for a load: quantity cells with `qtyDecimal`, amount cells with `amountScale`,
// the locked descriptive columns with the "Lock" colour.
LUMOICINITIAL_EXPORT void applyColumnFormats(CellModel &cells, int qtyDecimal, int amountScale, const RowColors &colors);

// The names beside an item's ids that a row shows.
struct ItemTexts
{
    QString unitName;
    QString secUnitName;
    QString auxPropName;
};

// Writes an item's descriptive columns, its batch button and its quantity decimals into a row:
// the one way both a loaded row and an item found by its code are shown.
LUMOICINITIAL_EXPORT void writeItem(CellModel &cells, int row, const ItemInfo &info, const ItemTexts &texts,
                                    bool useShortNumber, int defaultQtyDecimal, const RowColors &colors);

// The quantity cells of a row with `qtyDecimal` places where the column has another default.
LUMOICINITIAL_EXPORT void setQuantityDecimals(CellModel &cells, int row, int qtyDecimal, int defaultQtyDecimal);

// Replaces the data rows with one item row per record and rebuilds the per-item information.
LUMOICINITIAL_EXPORT void fillItemRows(CellModel &cells, const Recordset &items, bool useShortNumber,
                                       int defaultQtyDecimal, const RowColors &colors, QHash<int, ItemInfo> &infos);
// Writes one record into a row (also used to refresh a row after its batch lines were saved);
// the item the record names.
LUMOICINITIAL_EXPORT ItemInfo writeItemRow(CellModel &cells, int row, const Recordset &items, int record,
                                       bool useShortNumber, int defaultQtyDecimal, const RowColors &colors);
// Inserts the batch lines of the item in `itemRow` directly under it; the number inserted.
LUMOICINITIAL_EXPORT int insertBatchLines(CellModel &cells, int itemRow, const Recordset &lines, int qtyDecimal,
                                          int defaultQtyDecimal);

// Grid values as the records carry them.
LUMOICINITIAL_EXPORT QVariant dateValue(const QVariant &text);

} // namespace ItemRows
