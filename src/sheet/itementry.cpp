#include "itementry.h"

#include "sheet/entrygridlayout.h"
#include "sheet/entrysheet.h"
#include "sheet/iteminfo.h"

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

const QString UnknownItem = QStringLiteral("基础资料中该物料不存在，");
const QString TypeAgain = QStringLiteral("请重新输入！");
const QString AmbiguousCode = QStringLiteral("基础资料中代码为[%1]的物料不唯一，请重新输入！");
const QString TypedItemExists = QStringLiteral("该物料已存在，请重新输入！");
const QString PickedItemExists = QStringLiteral("该物料已存在，请重新选择！");
const QString ItemIdField = QStringLiteral("FItemID");
const QString AuxClassIdField = QStringLiteral("FAuxClassID");

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
        return {false, ResString(UnknownItem) + Msg::LineBreak + ResString(TypeAgain)};
    QSet<qint32> ids;
    for (int i = 0; i < items->RecordCount(); ++i)
        ids.insert(items->value(i, ItemIdField).toInt());
    if (ids.size() > 1)
        return {false, ResString(AmbiguousCode).arg(trimmed)};
    const qint32 itemId = items->value(0, ItemIdField).toInt();
    const bool hasAuxClass = items->value(0, AuxClassIdField).toInt() > 0;
    if (alreadyEntered(sheet, row, itemId, hasAuxClass))
        return {false, ResString(TypedItemExists)};
    FillItemDetailByF7(sheet, row, *items, 0);
    return {true, {}};
}

QString pickedRefusal(EntrySheet &sheet, int row, const Recordset &items)
{
    const qint32 itemId = items.value(0, ItemIdField).toInt();
    const bool hasAuxClass = items.value(0, AuxClassIdField).toInt() > 0;
    return alreadyEntered(sheet, row, itemId, hasAuxClass) ? ResString(PickedItemExists) : QString();
}

void FillItemDetailByF7(EntrySheet &sheet, int row, const Recordset &items, int record)
{
    const auto v = [&items, record](const char *field) { return items.value(record, QLatin1String(field)); };
    const ItemInfo info = ItemInfo::fromItemRecord(items, record);
    sheet.setItemInfo(info);
    ItemRows::writeItem(sheet.cells(), row, info, {v("FUnitName").toString(), v("FSecUnit").toString(), {}},
                        SysParams::toBool(QStringLiteral("UseShortNumber")), SysParams::toInt(SysParam::QtyDecimal),
                        sheet.colors());
}

} // namespace ItemEntry
