#include "itementry.h"

#include "entry/entrygridlayout.h"
#include "entry/entrysheet.h"
#include "entry/iteminfo.h"

#include "frame/logincontext.h"
#include "frame/messages.h"
#include "frame/sysparams.h"
#include "frame/valuationmethods.h"

#include "frame/clients/initialdataclient.h"

#include "frame/automation/recordset.h"
#include "frame/automation/progids.h"

#include "grid/cellmodel.h"
#include "grid/spreadconsole.h"

#include <QSet>

namespace {

using namespace EntryCol;

// The item already has a row of this place: on screen (other than `row`) or saved.
bool alreadyEntered(EntrySheet &sheet, int row, qint32 itemId, bool hasAuxClass)
{
    CellModel &cells = sheet.cells();
    for (int r = 1; r <= sheet.lastDataRow(); ++r) {
        if (r != row && sheet.isItemRow(r) && qint32(cells.number(r, ItemID)) == itemId && !hasAuxClass)
            return true;
    }
    if (hasAuxClass)
        return false;
    const EntryPlace &place = sheet.place();
    const QString key = QStringLiteral("%1|%2|%3|%4")
                            .arg(place.stockId)
                            .arg(place.spId)
                            .arg(SysParams::toInt(SysParam::CurrentPeriod))
                            .arg(itemId);
    const auto saved = InitialDataClient(ProgId::MICInitialData).GetInitData(key);
    // A saved row that is still on screen was found above; one deleted on screen is free again.
    for (int i = 0; i < saved->RecordCount(); ++i) {
        const QString savedKey = saved->value(i, QStringLiteral("FFieldCompose")).toString();
        bool onScreen = false;
        for (int r = 1; r <= sheet.lastDataRow(); ++r)
            onScreen = onScreen || (sheet.isItemRow(r) && cells.text(r, FieldCompose) == savedKey);
        if (!onScreen)
            return true;
    }
    return false;
}

} // namespace

namespace ItemEntry {

Outcome enterCode(EntrySheet &sheet, int row, const QString &code)
{
    const QString trimmed = code.trimmed();
    const auto items = InitialDataClient(ProgId::MICInitialData).FetchYtdItemDetail(trimmed);
    if (items->RecordCount() == 0)
        return {false, ResString(QStringLiteral("基础资料中该物料不存在，")) + Msg::LineBreak
                           + ResString(QStringLiteral("请重新输入！"))};
    QSet<qint32> ids;
    for (int i = 0; i < items->RecordCount(); ++i)
        ids.insert(items->value(i, QStringLiteral("FItemID")).toInt());
    if (ids.size() > 1)
        return {false, ResString(QStringLiteral("基础资料中代码为[%1]的物料不唯一，请重新输入！").arg(trimmed))};
    const qint32 itemId = items->value(0, QStringLiteral("FItemID")).toInt();
    const bool hasAuxClass = items->value(0, QStringLiteral("FAuxClassID")).toInt() > 0;
    if (alreadyEntered(sheet, row, itemId, hasAuxClass))
        return {false, ResString(QStringLiteral("该物料已存在，请重新输入！"))};
    FillItemDetailByF7(sheet, row, *items, 0);
    return {true, {}};
}

void FillItemDetailByF7(EntrySheet &sheet, int row, const Recordset &items, int record)
{
    CellModel &cells = sheet.cells();
    const auto v = [&items, record](const char *field) { return items.value(record, QLatin1String(field)); };
    ItemInfo info;
    info.id = v("FItemID").toInt();
    info.shortNumber = v("FShortNumber").toString();
    info.number = v("FNumber").toString();
    info.name = v("FName").toString();
    info.model = v("FModel").toString();
    info.planPrice = v("FPlanPrice").toDouble();
    info.unitId = v("FUnitID").toInt();
    info.secUnitId = v("FSecUnitID").toInt();
    info.secCoefficient = v("FSecCoefficient").toDouble();
    info.priceDecimal = v("FPriceDecimal").toInt();
    info.qtyDecimal = v("FQtyDecimal").toInt();
    info.kfPeriod = v("FKFPeriod").toInt();
    info.auxClassId = v("FAuxClassID").toInt();
    info.auxClassName = v("FAuxClassName").toString();
    info.track = v("FTrack").toInt();
    info.batchManaged = v("FBatchManager").toInt() != 0;
    info.shelfLifeManaged = v("FISKFPeriod").toInt() != 0;
    sheet.setItemInfo(info);

    const bool shortNumber = SysParams::toBool(QStringLiteral("UseShortNumber"));
    cells.setValue(row, ItemID, info.id);
    cells.setText(row, Number, shortNumber ? info.shortNumber : info.number);
    cells.setText(row, Name, info.name);
    cells.setText(row, Model, info.model);
    cells.setText(row, Unit, v("FUnitName").toString());
    cells.setValue(row, UnitID, info.unitId);
    cells.setValue(row, SecCoefficient, info.secCoefficient);
    cells.setText(row, SecUnit, v("FSecUnit").toString());
    cells.setValue(row, SecUnitID, info.secUnitId);
    cells.setText(row, Track, Valuation::name(info.track));
    cells.setValue(row, AuxClassID, info.auxClassId);
    cells.setValue(row, AuxPropID, 0);
    cells.setText(row, AuxProp, QString());
    cells.clearCellStyle(row, AuxProp);
    if (info.auxClassId > 0)
        cells.setCellStyle(row, AuxProp, CellStyle().setLocked(false));
    cells.clearCellStyle(row, Batch);
    if (info.hasDetailLines()) {
        SpreadConsole::setButtonCell(cells, row, Batch);
        cells.setCellStyle(row, Batch, CellStyle().setButtonColor(sheet.colors().batMan));
        cells.setText(row, Batch, QStringLiteral("..."));
    }
}

} // namespace ItemEntry
