#pragma once

#include "middletier_global.h"

#include "script/boundsql.h"

#include <QList>
#include <QSqlDatabase>
#include <QStringList>

class Recordset;

// Warehouses and their stock places for the navigation tree.
namespace StockQuery {

// FItemID: the warehouse (a stock place row: its warehouse); FParentID: the parent warehouse,
// 0 at the top (a stock place row: its warehouse); FSPID: 0 for a warehouse, else the stock
// place; FIsStockMgr: 1 when the warehouse has stock places (0 on a place row); FTypeID: the
// warehouse's type (a place carries its warehouse's type).
inline const QStringList Fields{QStringLiteral("FItemID"),     QStringLiteral("FParentID"),
                                QStringLiteral("FSPID"),       QStringLiteral("FName"),
                                QStringLiteral("FNumber"),     QStringLiteral("FShortNumber"),
                                QStringLiteral("FIsStockMgr"), QStringLiteral("FTypeID")};

// Warehouses of the given types (all types when empty), deleted ones left out. Parents come
// before their children: each warehouse is followed by its stock places and then by its child
// warehouses, siblings in number order. A warehouse whose parent is not in the result (another
// type, deleted, or a loop) is placed at the top with FParentID 0.
LUMOMIDDLETIER_EXPORT Recordset *fetchStocks(const QSqlDatabase &db, const QList<int> &types);

// The two reads behind fetchStocks (the tree is put together in memory): the warehouses of the
// types with their FIsStockMgr, and the stock places of those warehouses, each in number order.
LUMOMIDDLETIER_EXPORT script::BoundSql warehouseStatement(const QList<int> &types);
LUMOMIDDLETIER_EXPORT script::BoundSql placeStatement(const QList<int> &types);

} // namespace StockQuery
