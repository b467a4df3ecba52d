#pragma once

#include "sheet/warehousetable.h"
#include "frame/lumoicinitial_global.h"

#include <QHash>
#include <QString>
#include <QVector>

class Recordset;

// One entry of the account table behind the reconciliation tree; entry 0 stands for all accounts.
struct AccountEntry
{
    qint32 accountId = 0;
    QString number;
    QString name;
    qint32 acctDetail = 0;
    qint32 detailId = 0;
    qint32 dc = 0;
    // The year-to-date sums of the account's inventory, by their field names.
    QHash<QString, double> sums;
};

namespace AccountTree {

// The sum fields every account record carries.
LUMOICINITIAL_EXPORT const QStringList &sumFields();
// Sorts the records by "FNumber" and makes entry 0 plus one entry per record in that order.
LUMOICINITIAL_EXPORT QVector<AccountEntry> buildTable(Recordset &accounts);
// A flat tree: the root "全部科目" ("K0") and every account under it, keyed by its table index.
LUMOICINITIAL_EXPORT QVector<TreeNodeSpec> nodes(const QVector<AccountEntry> &table);

} // namespace AccountTree
