#pragma once

#include "frame/lumoicinitial_global.h"

#include <QString>
#include <QVector>

class Recordset;

// One entry of the warehouse table behind the navigation tree: a warehouse, a stock place, or
// entry 0 for all warehouses.
struct WarehouseEntry
{
    qint32 id = 0;        // the warehouse (for a stock place: its warehouse)
    qint32 parent = 0;    // the parent warehouse, 0 at the top
    qint32 stockPlace = 0; // 0 for a warehouse row
    QString firstText;    // number
    QString secondText;   // short number
    QString thirdText;    // name
    qint16 isStockMgr = 0; // set: rows are entered below this node, not at it
    qint16 typeId = 0;
};

// A node of the tree as the table describes it.
struct TreeNodeSpec
{
    QString key;
    QString parentKey; // empty for the root
    QString text;
    int tableIndex = 0;
};

namespace WarehouseTree {

inline const QString RootKey = QStringLiteral("K0");
inline constexpr int NodeImage = 21;
inline constexpr int SelectedImage = 22;
// The item types of the warehouses the tree lists, as an SQL list.
inline const QString StockTypes = QStringLiteral("(500,502,20291,20293)");

// Entry 0 followed by one entry per record of FetchStocks, in the fetched order.
LUMOICINITIAL_EXPORT QVector<WarehouseEntry> buildTable(Recordset &stocks);
// "K12" for a warehouse, "K12P3" for stock place 3 of warehouse 12, "K0" for entry 0.
LUMOICINITIAL_EXPORT QString nodeKey(const WarehouseEntry &entry, bool isRoot);
// The nodes to add, parents before children as the table lists them.
LUMOICINITIAL_EXPORT QVector<TreeNodeSpec> nodes(const QVector<WarehouseEntry> &table);

} // namespace WarehouseTree
