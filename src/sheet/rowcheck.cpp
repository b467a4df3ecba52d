#include "rowcheck.h"

#include "sheet/entrygridlayout.h"
#include "sheet/entrysheet.h"
#include "sheet/itemrows.h"
#include "sheet/sqltext.h"

#include "sheet/balancecheck.h"
#include "frame/icinitstruct.h"
#include "frame/logincontext.h"
#include "frame/sysparams.h"

#include "grid/gridtypes.h"

namespace {

const QString NoItem = QStringLiteral("系统检测不到物料，请重新选择！");
const QString NoUnit = QStringLiteral("系统检测不到计量单位，请重新选择！");
// "物料" + code + "使用" + class + "管理，请选择" + class + "！"
const QString AuxItem = QStringLiteral("物料");
const QString AuxUses = QStringLiteral("使用");
const QString AuxChoose = QStringLiteral("管理，请选择");
const QString AuxEnd = QStringLiteral("！");

RowVerdict refuse(const QString &message, int column)
{
    return {false, message, column};
}

} // namespace

namespace RowCheck {

RowVerdict check(const EntryRowView &row, const EntryPlace &place, const AuxClassNameLookup &auxClassName,
                 ICInitStruct &record)
{
    if (row.itemId() <= 0)
        return refuse(ResString(NoItem), EntryCol::Number);
    const QString code = row.itemCode().trimmed();
    if (code.isEmpty())
        return refuse(ResString(NoItem), EntryCol::Number);
    if (row.unitId() == 0)
        // The rate column beside the unit takes the cursor, not the unit column itself.
        return refuse(ResString(NoUnit), EntryCol::SecCoefficient);
    if (!row.auxPropLocked() && row.auxPropId() < 1) {
        const QString className = auxClassName ? auxClassName(row.auxClassId()) : QString();
        return refuse(ResString(AuxItem) + code + ResString(AuxUses) + className + ResString(AuxChoose) + className
                          + ResString(AuxEnd),
                      EntryCol::AuxProp);
    }

    // Figures are checked as they will be written: rounded, so binary noise can't make an
    // empty group look filled.
    GroupFigures figures[EntryRowView::GroupCount];
    for (int i = 0; i < EntryRowView::GroupCount; ++i) {
        const GroupFigures raw = row.group(i);
        figures[i] = {SqlText::roundFigure(raw.quantity), SqlText::roundFigure(raw.auxQuantity),
                      SqlText::roundFigure(raw.amount), SqlText::roundFigure(raw.difference)};
    }
    const BalanceRules rules{place.stockType, SysParams::toBool(SysParam::UnderStock),
                             SysParams::toInt(SysParam::AuditChoice), row.quantityDecimals(), row.amountDecimals()};
    int emptyGroups = 0;
    for (int i = 0; i < EntryRowView::GroupCount; ++i) {
        const GroupFigures &g = figures[i];
        const BalanceVerdict verdict =
            BalanceCheck::check(g.quantity, g.amount, g.difference, emptyGroups, false, 0, rules);
        if (!verdict.valid)
            return refuse(verdict.message(), ItemRows::groups()[i].quantity);
    }

    record.Period = qint16(SysParams::toInt(SysParam::CurrentPeriod));
    record.StockID = place.stockId;
    record.SPID = place.spId;
    record.ItemID = row.itemId();
    record.UnitID = row.unitId();
    record.YtdAuxBegQty = figures[0].quantity;
    record.YtdBegBal = figures[0].amount;
    record.YtdBegDiff = figures[0].difference;
    record.YtdAuxReceive = figures[1].quantity;
    record.YtdDebit = figures[1].amount;
    record.YtdReceiveDiff = figures[1].difference;
    record.YtdAuxSend = figures[2].quantity;
    record.YtdCredit = figures[2].amount;
    record.YtdSendDiff = figures[2].difference;
    record.AuxBegQty = figures[3].quantity;
    record.BegBal = figures[3].amount;
    record.BegDiff = figures[3].difference;
    record.YtdAuxUnitBegQty = figures[0].auxQuantity;
    record.YtdAuxUnitReceive = figures[1].auxQuantity;
    record.YtdAuxUnitSend = figures[2].auxQuantity;
    record.AuxUnitBegQty = figures[3].auxQuantity;
    record.SecCoefficient = row.secCoefficient();
    record.AuxPropID = row.auxPropId();
    record.SecUnitID = row.secUnitId();
    const QDate stockIn = row.stockInDate();
    record.StockInDate = stockIn.isValid() ? stockIn.toString(QLatin1String(Grid::DateFormat)) : QString();
    record.oFieldCompose = row.fieldCompose();
    record.BatchManager = !row.batchCellLocked();
    return {};
}

} // namespace RowCheck
