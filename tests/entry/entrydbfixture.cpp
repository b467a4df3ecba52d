#include "entrydbfixture.h"

#include "scratchaccountset.h"
#include "servicecalls.h"

#include "db/sqlrun.h"
#include "sheet/entrygridlayout.h"
#include "sheet/entrysheet.h"
#include "entry/icinitctl.h"

#include "frame/logincontext.h"

#include "grid/spreadgrid.h"

#include <QSqlQuery>

namespace EntryDb {

QList<int> figureColumns()
{
    using namespace EntryCol;
    return {YtdBegQty, YtdBegBal, YtdBegDiff, ReceiveQty, Debit, ReceiveDiff,
            SendQty,   Credit,    SendDiff,   BegQty,     BegBal, BegDiff};
}

QVector<double> sumsOfPlace(const ScratchAccountSet &scratch, int spId)
{
    QSqlQuery query = SqlRun::exec(
        scratch.db(),
        QStringLiteral("SELECT sum(FYtdAuxBegQty), sum(FYtdBegBal), sum(FYtdBegDiff), sum(FYtdAuxReceive), "
                       "sum(FYtdDebit), sum(FYtdReceiveDiff), sum(FYtdAuxSend), sum(FYtdCredit), sum(FYtdSendDiff), "
                       "sum(FAuxBegQty), sum(FBegBal), sum(FBegDiff) FROM ICInvInitial "
                       "WHERE FStockID=1 AND FSPID=? AND FPeriod=4"),
        {spId});
    QVector<double> sums(query.next() ? 12 : 0);
    for (int i = 0; i < sums.size(); ++i)
        sums[i] = query.value(i).toDouble();
    return sums;
}

void setParameter(const ScratchAccountSet &scratch, const QString &key, const QVariant &value)
{
    SqlRun::exec(scratch.db(), QStringLiteral("UPDATE t_SystemProfile SET FValue=? WHERE FKey=?"),
                 {value.toString(), key});
}

bool show(ICInitCtl &control, const ScratchAccountSet &scratch, QObject *host)
{
    ServiceCalls::publishLogin(scratch.propsString());
    LoginContext::instance().reset();
    return control.Show(host, host == nullptr);
}

int itemRow(const ICInitCtl &control, const QVariant &item)
{
    const EntrySheet &sheet = *control.sheet();
    const bool byCode = item.typeId() == QMetaType::QString;
    for (int row = 1; row <= sheet.lastDataRow(); ++row) {
        if (sheet.isItemRow(row)
            && (byCode ? control.grid()->TextMatrix(row, EntryCol::Number) == item.toString()
                       : int(control.grid()->number(row, EntryCol::ItemID)) == item.toInt()))
            return row;
    }
    return 0;
}

} // namespace EntryDb
