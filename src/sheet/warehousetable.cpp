#include "warehousetable.h"

#include "frame/logincontext.h"
#include "frame/messages.h"

#include "frame/automation/recordset.h"

namespace WarehouseTree {

QVector<WarehouseEntry> buildTable(Recordset &stocks)
{
    QVector<WarehouseEntry> table;
    table.reserve(stocks.RecordCount() + 1);
    WarehouseEntry all;
    all.firstText = QStringLiteral("All");
    all.thirdText = ResString(Msg::AllStocksEntry);
    all.isStockMgr = 1;
    table.append(all);

    const int fItemId = stocks.fieldIndex(QStringLiteral("FItemID"));
    const int fParentId = stocks.fieldIndex(QStringLiteral("FParentID"));
    const int fSpId = stocks.fieldIndex(QStringLiteral("FSPID"));
    const int fName = stocks.fieldIndex(QStringLiteral("FName"));
    const int fNumber = stocks.fieldIndex(QStringLiteral("FNumber"));
    const int fShortNumber = stocks.fieldIndex(QStringLiteral("FShortNumber"));
    const int fIsStockMgr = stocks.fieldIndex(QStringLiteral("FIsStockMgr"));
    const int fTypeId = stocks.fieldIndex(QStringLiteral("FTypeID"));
    for (int row = 0; row < stocks.RecordCount(); ++row) {
        WarehouseEntry entry;
        entry.id = stocks.value(row, fItemId).toInt();
        entry.parent = stocks.value(row, fParentId).toInt();
        entry.stockPlace = stocks.value(row, fSpId).toInt();
        entry.firstText = stocks.value(row, fNumber).toString();
        entry.secondText = stocks.value(row, fShortNumber).toString();
        entry.thirdText = stocks.value(row, fName).toString();
        entry.isStockMgr = qint16(stocks.value(row, fIsStockMgr).toInt());
        entry.typeId = qint16(stocks.value(row, fTypeId).toInt());
        table.append(entry);
    }
    return table;
}

QString nodeKey(const WarehouseEntry &entry, bool isRoot)
{
    if (isRoot)
        return RootKey;
    if (entry.stockPlace == 0)
        return QStringLiteral("K%1").arg(entry.id);
    return QStringLiteral("K%1P%2").arg(entry.id).arg(entry.stockPlace);
}

QVector<TreeNodeSpec> nodes(const QVector<WarehouseEntry> &table)
{
    QVector<TreeNodeSpec> specs;
    specs.reserve(table.size());
    for (int i = 0; i < table.size(); ++i) {
        const WarehouseEntry &entry = table.at(i);
        if (i == 0) {
            specs.append({RootKey, QString(), ResString(Msg::AllStocks), 0});
            continue;
        }
        QString text = entry.firstText + QLatin1Char('|') + entry.thirdText;
        if (entry.stockPlace != 0)
            text += ResString(Msg::StockPlaceSuffix);
        specs.append({nodeKey(entry, false), QStringLiteral("K%1").arg(entry.parent), text, i});
    }
    return specs;
}

} // namespace WarehouseTree
