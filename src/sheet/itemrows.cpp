#include "itemrows.h"

#include "sheet/entrygridlayout.h"

#include "frame/settingsstore.h"
#include "frame/valuationmethods.h"

#include "frame/automation/recordset.h"

#include "grid/bulkupdate.h"
#include "grid/cellmodel.h"
#include "grid/spreadconsole.h"

#include <QDate>

namespace {

using namespace EntryCol;

const QString ExpandMark = QStringLiteral("+");
const QString DateFormat = QStringLiteral("yyyy-MM-dd");

struct FigureField
{
    const char *field;
    int col;
};

// Where the item record's figures go.
const FigureField itemFigures[] = {
    {"FInitYtdBegQty", YtdBegQty}, {"FInitYtdBegBal", YtdBegBal}, {"FInitYtdBegDiff", YtdBegDiff},
    {"FInitYtdReceive", ReceiveQty}, {"FInitYtdDebit", Debit}, {"FInitYtdReceiveDiff", ReceiveDiff},
    {"FInitYtdSend", SendQty}, {"FInitYtdCredit", Credit}, {"FInitYtdSendDiff", SendDiff},
    {"FInitBegQty", BegQty}, {"FInitBegBal", BegBal}, {"FInitBegDiff", BegDiff},
    {"FYtdAuxUnitBegQty", YtdBegAuxQty}, {"FYtdAuxUnitReceive", ReceiveAuxQty},
    {"FYtdAuxUnitSend", SendAuxQty}, {"FAuxUnitBegQty", BegAuxQty},
};

// Where a batch line's figures go.
const FigureField lineFigures[] = {
    {"FYtdAuxBegQty", YtdBegQty}, {"FYtdBegBal", YtdBegBal}, {"FYtdBegDiff", YtdBegDiff},
    {"FYtdAuxReceive", ReceiveQty}, {"FYtdDebit", Debit}, {"FYtdReceiveDiff", ReceiveDiff},
    {"FYtdAuxSend", SendQty}, {"FYtdCredit", Credit}, {"FYtdSendDiff", SendDiff},
    {"FAuxBegQty", BegQty}, {"FBegBal", BegBal}, {"FBegDiff", BegDiff},
    {"FYtdAuxUnitBegQty", YtdBegAuxQty}, {"FYtdAuxUnitReceive", ReceiveAuxQty},
    {"FYtdAuxUnitSend", SendAuxQty}, {"FAuxUnitBegQty", BegAuxQty},
};

const int quantityColumns[] = {YtdBegQty, ReceiveQty, SendQty, BegQty};
const int lockedColumns[] = {Mark, ItemID, Number, Name, Model, Unit, Track, AuxProp, Batch, KFDate, KFPeriod};
const int lockColoured[] = {ItemID, Name, Model, Track};

void setFigures(CellModel &cells, int row, const Recordset &rs, int record, const FigureField (&figures)[16])
{
    for (const FigureField &f : figures) {
        const QVariant v = rs.value(record, QLatin1String(f.field));
        cells.setValue(row, f.col, v.isNull() ? QVariant(0.0) : QVariant(v.toDouble()));
    }
}

} // namespace

RowColors RowColors::fromSettings()
{
    return {SettingsStore::colorValue(Setting::LockColor), SettingsStore::colorValue(Setting::BatManColor),
            SettingsStore::colorValue(Setting::SumColor), SettingsStore::colorValue(Setting::FindColor),
            SettingsStore::colorValue(Setting::BalAdjColor)};
}

namespace ItemRows {

const GroupColumns (&groups())[4]
{
    static const GroupColumns all[4] = {{YtdBegQty, YtdBegAuxQty, YtdBegBal, YtdBegDiff},
                                        {ReceiveQty, ReceiveAuxQty, Debit, ReceiveDiff},
                                        {SendQty, SendAuxQty, Credit, SendDiff},
                                        {BegQty, BegAuxQty, BegBal, BegDiff}};
    return all;
}

QVariant dateValue(const QVariant &text)
{
    const QString s = text.toString().trimmed();
    if (s.isEmpty())
        return {};
    const QDate date = QDate::fromString(s.left(10), DateFormat);
    return date.isValid() ? QVariant(date) : QVariant();
}

void applyColumnFormats(CellModel &cells, int qtyDecimal, int amountScale, const RowColors &colors)
{
    for (const GroupColumns &g : groups()) {
        cells.setColStyle(g.quantity, SpreadConsole::numberStyle(qtyDecimal));
        cells.setColStyle(g.auxQuantity, SpreadConsole::numberStyle(qtyDecimal));
        cells.setColStyle(g.amount, SpreadConsole::numberStyle(amountScale));
        cells.setColStyle(g.difference, SpreadConsole::numberStyle(amountScale));
    }
    cells.setColStyle(SecCoefficient, SpreadConsole::numberStyle(4));
    cells.setColStyle(KFPeriod, SpreadConsole::numberStyle(0));
    for (int col : lockedColumns)
        cells.setColStyle(col, CellStyle().setLocked(true));
    for (int col : lockColoured)
        cells.setColStyle(col, CellStyle().setBackColor(colors.lock));
    cells.setColStyle(Mark, CellStyle().setAlignment(Qt::AlignCenter));
}

void writeItem(CellModel &cells, int row, const ItemInfo &info, const ItemTexts &texts, bool useShortNumber,
               int defaultQtyDecimal, const RowColors &colors)
{
    cells.setValue(row, ItemID, info.id);
    cells.setText(row, Number, useShortNumber ? info.shortNumber : info.number);
    cells.setText(row, Name, info.name);
    cells.setText(row, Model, info.model);
    cells.setText(row, Unit, texts.unitName);
    cells.setValue(row, UnitID, info.unitId);
    // An item without a secondary unit has no rate to show; an empty cell reads as 0.
    cells.setValue(row, SecCoefficient, info.secUnitId != 0 ? QVariant(info.secCoefficient) : QVariant());
    cells.setText(row, SecUnit, texts.secUnitName);
    cells.setValue(row, SecUnitID, info.secUnitId);
    cells.setText(row, Track, Valuation::name(info.track));
    cells.setText(row, AuxProp, texts.auxPropName);
    cells.setValue(row, AuxPropID, info.auxPropId);
    cells.setValue(row, AuxClassID, info.auxClassId);
    setQuantityDecimals(cells, row, info.qtyDecimal, defaultQtyDecimal);
    cells.clearCellStyle(row, Batch);
    cells.setText(row, Batch, QString());
    if (info.hasDetailLines()) {
        SpreadConsole::setButtonCell(cells, row, Batch);
        cells.setCellStyle(row, Batch, CellStyle().setButtonColor(colors.batMan));
        cells.setText(row, Batch, QStringLiteral("..."));
    }
}

ItemInfo writeItemRow(CellModel &cells, int row, const Recordset &items, int record, bool useShortNumber,
                  int defaultQtyDecimal, const RowColors &colors)
{
    const ItemInfo info = ItemInfo::fromRecord(items, record);
    const auto v = [&items, record](const char *field) { return items.value(record, QLatin1String(field)); };
    cells.setText(row, Mark, info.hasDetailLines() ? ExpandMark : QString());
    writeItem(cells, row, info, {v("FUnitName").toString(), v("FSecUnit").toString(), v("FAuxPropName").toString()},
              useShortNumber, defaultQtyDecimal, colors);
    setFigures(cells, row, items, record, itemFigures);
    cells.setValue(row, StockInDate, dateValue(v("FStockInDate")));
    cells.setValue(row, KFPeriod, info.shelfLifeManaged ? QVariant(info.kfPeriod) : QVariant());
    cells.setText(row, FieldCompose, v("FFieldCompose").toString());
    cells.setText(row, Flag, QString());
    return info;
}

void setQuantityDecimals(CellModel &cells, int row, int qtyDecimal, int defaultQtyDecimal)
{
    if (qtyDecimal == defaultQtyDecimal)
        return;
    for (int col : quantityColumns)
        cells.setCellStyle(row, col, CellStyle().setDecimals(qtyDecimal));
}

bool isFigureColumn(int col)
{
    return col >= YtdBegQty && col <= BegDiff;
}

void fillItemRows(CellModel &cells, const Recordset &items, bool useShortNumber, int defaultQtyDecimal,
                  const RowColors &colors, QHash<int, ItemInfo> &infos)
{
    BulkUpdate bulk(cells);
    infos.clear();
    cells.setRows(1);
    cells.setRows(1 + items.RecordCount());
    for (int record = 0; record < items.RecordCount(); ++record) {
        const ItemInfo info = writeItemRow(cells, record + 1, items, record, useShortNumber, defaultQtyDecimal, colors);
        infos.insert(info.id, info);
    }
}

int insertBatchLines(CellModel &cells, int itemRow, const Recordset &lines, int qtyDecimal, int defaultQtyDecimal)
{
    const int count = lines.RecordCount();
    if (count == 0)
        return 0;
    BulkUpdate bulk(cells);
    cells.insertRowsAt(itemRow + 1, count);
    for (int record = 0; record < count; ++record) {
        const int row = itemRow + 1 + record;
        const auto v = [&lines, record](const char *field) { return lines.value(record, QLatin1String(field)); };
        cells.setValue(row, ItemID, cells.value(itemRow, ItemID));
        cells.setText(row, Batch, v("FBatchNo").toString());
        setFigures(cells, row, lines, record, lineFigures);
        cells.setValue(row, StockInDate, dateValue(v("FStockInDate")));
        cells.setValue(row, KFDate, dateValue(v("FKFDate")));
        cells.setValue(row, KFPeriod, v("FKFPeriod").isNull() ? QVariant() : QVariant(v("FKFPeriod").toInt()));
        setQuantityDecimals(cells, row, qtyDecimal, defaultQtyDecimal);
    }
    return count;
}

} // namespace ItemRows
