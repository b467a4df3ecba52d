#include "accounttable.h"

#include "frame/logincontext.h"
#include "frame/messages.h"

#include "frame/automation/recordset.h"

namespace AccountTree {

const QStringList &sumFields()
{
    static const QStringList fields{
        QStringLiteral("FSumYtdBaseBegQty"), QStringLiteral("FSumYtdBaseReceive"), QStringLiteral("FSumYtdBaseSend"),
        QStringLiteral("FSumBaseBegQty"), QStringLiteral("FSumYtdBegBal"), QStringLiteral("FSumYtdBegDiff"),
        QStringLiteral("FSumYtdDebit"), QStringLiteral("FSumYtdReceiveDiff"), QStringLiteral("FSumYtdCredit"),
        QStringLiteral("FSumYtdSendDiff"), QStringLiteral("FSumBegBal"), QStringLiteral("FSumBegDiff")};
    return fields;
}

QVector<AccountEntry> buildTable(Recordset &accounts)
{
    QVector<AccountEntry> table;
    table.reserve(accounts.RecordCount() + 1);
    AccountEntry all;
    all.number = QStringLiteral("All");
    all.name = ResString(Msg::AllAccountsEntry);
    table.append(all);
    if (accounts.RecordCount() > 0) {
        accounts.setSort(QStringLiteral("FNumber"));
        accounts.MoveFirst();
    }
    for (; !accounts.atEnd(); accounts.MoveNext()) {
        AccountEntry entry;
        entry.accountId = accounts.Fields(QStringLiteral("FAccountID")).toInt();
        entry.name = accounts.Fields(QStringLiteral("FName")).toString();
        entry.number = accounts.Fields(QStringLiteral("FNumber")).toString();
        entry.acctDetail = accounts.Fields(QStringLiteral("FAcctDetail")).toInt();
        entry.detailId = accounts.Fields(QStringLiteral("FDetailID")).toInt();
        entry.dc = accounts.Fields(QStringLiteral("FDC")).toInt();
        for (const QString &field : sumFields())
            entry.sums.insert(field, accounts.Fields(field).toDouble());
        table.append(entry);
    }
    return table;
}

QVector<TreeNodeSpec> nodes(const QVector<AccountEntry> &table)
{
    QVector<TreeNodeSpec> specs;
    specs.reserve(table.size());
    specs.append({WarehouseTree::RootKey, QString(), ResString(Msg::AllAccounts), 0});
    for (int i = 1; i < table.size(); ++i)
        specs.append({QStringLiteral("K%1").arg(i), WarehouseTree::RootKey,
                      table.at(i).number + QLatin1Char('|') + table.at(i).name, i});
    return specs;
}

} // namespace AccountTree
