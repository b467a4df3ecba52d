#include "exportquery.h"

#include "dialogfilter.h"
#include "itemrowfields.h"

#include "db/recordsetbuilder.h"
#include "db/sqlrun.h"

#include "frame/automation/recordset.h"

namespace {

// Field name and the expression over the rows v and their warehouse s, place p, item i, unit u,
// property a and the item's auxiliary class c.
const QList<std::pair<QString, QString>> &columns()
{
    static const QList<std::pair<QString, QString>> list = [] {
        QList<std::pair<QString, QString>> c{
            {QStringLiteral("FStockID"), QStringLiteral("v.FStockID")},
            {QStringLiteral("FStockNumber"), QStringLiteral("s.FNumber")},
            {QStringLiteral("FStockName"), QStringLiteral("s.FName")},
            {QStringLiteral("FSPID"), QStringLiteral("v.FSPID")},
            {QStringLiteral("FSPNumber"), QStringLiteral("coalesce(p.FNumber,'')")},
            {QStringLiteral("FSPName"), QStringLiteral("coalesce(p.FName,'')")},
            {QStringLiteral("FItemID"), QStringLiteral("v.FItemID")},
            {QStringLiteral("FNumber"), QStringLiteral("i.FNumber")},
            {QStringLiteral("FShortNumber"), QStringLiteral("i.FShortNumber")},
            {QStringLiteral("FItemName"), QStringLiteral("i.FName")},
            {QStringLiteral("FModel"), QStringLiteral("i.FModel")},
            {QStringLiteral("FUnitID"), QStringLiteral("v.FUnitID")},
            {QStringLiteral("FUnitNumber"), QStringLiteral("coalesce(u.FNumber,'')")},
            {QStringLiteral("FUnitName"), QStringLiteral("coalesce(u.FName,'')")},
            {QStringLiteral("FAuxPropID"), QStringLiteral("v.FAuxPropID")},
            {QStringLiteral("FAuxPropNumber"), QStringLiteral("coalesce(a.FNumber,'')")},
            {QStringLiteral("FAuxPropName"), QStringLiteral("coalesce(a.FName,'')")},
        };
        for (const char *column : {"FBatchNo", "FKFDate", "FKFPeriod", "FStockInDate", "FYtdAuxBegQty", "FYtdBegBal",
                                   "FYtdBegDiff", "FYtdAuxReceive", "FYtdDebit", "FYtdReceiveDiff", "FYtdAuxSend",
                                   "FYtdCredit", "FYtdSendDiff", "FAuxBegQty", "FBegBal", "FBegDiff",
                                   "FYtdAuxUnitBegQty", "FYtdAuxUnitReceive", "FYtdAuxUnitSend", "FAuxUnitBegQty",
                                   "FSecUnitID", "FSecCoefficient", "FBillInterID"})
            c.append({QString::fromLatin1(column), QStringLiteral("v.") + QLatin1String(column)});
        return c;
    }();
    return list;
}

script::FilterFields exportFilterFields()
{
    script::FilterFields fields;
    for (const ItemRowFields::Field &field : ItemRowFields::fields())
        fields.add(field.name, ItemRowFields::rowColumn(field), field.kind);
    fields.add(QStringLiteral("FStockNumber"), QStringLiteral("s.FNumber"), script::FieldKind::Text);
    fields.add(QStringLiteral("FStockName"), QStringLiteral("s.FName"), script::FieldKind::Text);
    fields.add(QStringLiteral("FBatchNo"), QStringLiteral("v.FBatchNo"), script::FieldKind::Text);
    return fields;
}

} // namespace

namespace ExportQuery {

const QStringList &fields()
{
    static const QStringList names = [] {
        QStringList list;
        for (const auto &column : columns())
            list.append(column.first);
        return list;
    }();
    return names;
}

Recordset *fetch(const QSqlDatabase &db, const Request &request)
{
    const DialogFilter::Applied applied = DialogFilter({request.filter}, request.sort)
                                              .apply(exportFilterFields(), SqlDialect::of(db));
    QStringList select;
    for (const auto &column : columns())
        select.append(column.second);
    QString where = QStringLiteral("v.FPeriod=?");
    QVariantList values{request.period};
    if (request.stockId != 0) {
        where += QStringLiteral(" AND v.FStockID=? AND v.FSPID=?");
        values << request.stockId << request.spId;
    }
    if (!applied.where.isEmpty()) {
        where += QStringLiteral(" AND ") + applied.where.sql;
        values += applied.where.values;
    }
    QList<SortKey> order = applied.sort;
    for (const char *column : {"s.FNumber", "coalesce(p.FNumber,'')", "i.FNumber", "v.FAuxPropID", "v.FBatchNo",
                               "v.FKFDate", "v.FBillInterID", "v.FEntryID"})
        order.append({QString::fromLatin1(column), false});
    const QString sql = QStringLiteral("SELECT %1 FROM ICInvInitial v JOIN t_Stock s ON s.FItemID=v.FStockID "
                                       "LEFT JOIN t_StockPlace p ON p.FSPID=v.FSPID "
                                       "JOIN t_ICItem i ON i.FItemID=v.FItemID "
                                       "LEFT JOIN t_MeasureUnit u ON u.FMeasureUnitID=v.FUnitID "
                                       "LEFT JOIN t_AuxItem a ON a.FAuxPropID=v.FAuxPropID "
                                       "LEFT JOIN t_AuxClass c ON c.FItemClassID=i.FAuxClassID "
                                       "WHERE %2 ORDER BY %3")
                            .arg(select.join(QStringLiteral(", ")), where, orderByText(order));
    QSqlQuery query = SqlRun::exec(db, sql, values);
    return recordsetFromQuery(query, fields());
}

} // namespace ExportQuery
