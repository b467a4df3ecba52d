#pragma once

#include "middletier_global.h"

#include "script/filterfields.h"

#include <QList>
#include <QString>
#include <QStringList>

// The item row of the entry grid: one item with one auxiliary property in one place and period,
// grouping its ICInvInitial rows (the item row itself, FBatchNo '', and its batch or shelf-life
// lines) with the figures summed over them.
//
// Its queries read the aliases
//   g   the group: FItemID, FAuxPropID, the sums (FInitYtdBegQty ... FInitBegDiff, FYtdAuxUnitBegQty,
//       FYtdAuxUnitReceive, FYtdAuxUnitSend, FAuxUnitBegQty) and FUnitID, FSecUnitID, FSecCoefficient,
//       FStockInDate (the earliest), FKFDate (the latest), FFieldCompose, FSNListID of its rows;
//   i   the item (t_ICItem), a its auxiliary property (t_AuxItem), c the item's auxiliary class
//       (t_AuxClass), u and su the group's unit and secondary unit (t_MeasureUnit).
namespace ItemRowFields {

// A field the filter and sort dialogs may name.
struct Field
{
    QString name;    // as the dialogs write it
    QString display; // as the filter dialog offers it
    QString column;  // the SQL expression over the aliases above
    script::FieldKind kind;
    // The same for every row of an item and auxiliary property (it reads only i, a and c), so a
    // condition on it can be tested on the ICInvInitial rows before they are grouped.
    bool itemLevel;
};

LUMOMIDDLETIER_EXPORT const QList<Field> &fields();
// The fields of fields() as the filter parser takes them; with itemLevelOnly the group-level
// ones (sums, units, dates) are left out.
LUMOMIDDLETIER_EXPORT script::FilterFields filterFields(bool itemLevelOnly);
// The field's expression on one ICInvInitial row v instead of its group (a sum becomes the row's
// own figure), for the data sets that list the rows one by one.
QString rowColumn(const Field &field);

// The record of one item row, in order, and the SELECT list that gives it from the aliases.
LUMOMIDDLETIER_EXPORT const QStringList &rowFields();
QString rowSelectList();
// The aggregates that make g from the rows v of one group (its FItemID and FAuxPropID come from
// the caller's GROUP BY).
QString groupAggregates();
// "JOIN t_ICItem i ... LEFT JOIN ..." after "FROM (...) g".
QString rowJoins();
// The twelve sums as the totals record names them, and the SQL sums over g or over rows v.
LUMOMIDDLETIER_EXPORT const QStringList &figureFields();
QString sumsOverGroups();
QString sumsOverRows();

} // namespace ItemRowFields
