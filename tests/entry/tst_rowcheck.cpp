#include "fakerowview.h"

#include "sheet/entrygridlayout.h"
#include "sheet/entrysheet.h"
#include "sheet/gridrowview.h"
#include "sheet/rowcheck.h"

#include "frame/icinitstruct.h"
#include "frame/sysparams.h"

#include "frame/automation/dictionary.h"

#include "grid/cellmodel.h"
#include "grid/numberformat.h"
#include "grid/spreadconsole.h"

#include <QTest>

namespace {

const QString NoItem = QStringLiteral("系统检测不到物料，请重新选择！");
const QString NoUnit = QStringLiteral("系统检测不到计量单位，请重新选择！");
const QString Negative = QStringLiteral(
    "录入的数据[数量<0]！\r\n但账套不允许负结存,因此数量不能<0！\r\n数据非法！请重新录入！");
const QString NoAmount = QStringLiteral(
    "录入的数据[金额=0]！\r\n但账套实行数量金额核算,因此金额不能等于0！\r\n数据非法！请重新录入！");

constexpr int ColorClass = 5;
const EntryPlace Place{12, 0, 501};

QString className(qint32 auxClassId)
{
    return auxClassId == ColorClass ? QStringLiteral("颜色") : QStringLiteral("未知类别");
}

enum Fault {
    NoItemId = 0x01,
    NegativeItemId = 0x02,
    BlankCode = 0x04,
    NoUnitId = 0x08,
    NoAuxProp = 0x10,
    BadFigures = 0x20, // a negative quantity in the receipts group
    PaddedCode = 0x40,
    // The same fault in one group alone: BadGroup << group.
    BadGroup = 0x80,
};

FakeRowView rowWith(int faults)
{
    FakeRowView row;
    if (faults & NoItemId)
        row.item = 0;
    if (faults & NegativeItemId)
        row.item = -3;
    if (faults & BlankCode)
        row.code = QStringLiteral("   ");
    if (faults & PaddedCode)
        row.code = QStringLiteral("  1.01.001 ");
    if (faults & NoUnitId)
        row.unit = 0;
    if (faults & NoAuxProp) {
        row.auxLocked = false;
        row.auxClass = ColorClass;
    }
    if (faults & BadFigures)
        row.groups[1] = {-1, 0, -5, 0};
    for (size_t group = 0; group < row.groups.size(); ++group) {
        if (faults & (BadGroup << group))
            row.groups[group] = {-2, 0, -20, 0};
    }
    return row;
}

} // namespace

class TestRowCheck : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        SysParams::replace(std::make_unique<Dictionary>());
        SysParams::current()->setItem(SysParam::CurrentPeriod, 3);
        SysParams::current()->setItem(SysParam::UnderStock, 0);
        SysParams::current()->setItem(SysParam::AuditChoice, 1);
    }

    void cleanup()
    {
        SysParams::replace(nullptr);
    }

    void refusalOrderAndCursor_data()
    {
        QTest::addColumn<int>("faults");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("message");

        using namespace EntryCol;
        const QString auxMessage = QStringLiteral("物料1.01.001使用颜色管理，请选择颜色！");
        QTest::newRow("no item") << int(NoItemId) << Number << NoItem;
        QTest::newRow("negative item id") << int(NegativeItemId) << Number << NoItem;
        QTest::newRow("blank code") << int(BlankCode) << Number << NoItem;
        // The rate column beside the unit takes the cursor, not the unit column.
        QTest::newRow("no unit") << int(NoUnitId) << SecCoefficient << NoUnit;
        QTest::newRow("auxiliary property not chosen") << int(NoAuxProp) << AuxProp << auxMessage;
        QTest::newRow("code trimmed in the message") << int(NoAuxProp | PaddedCode) << AuxProp << auxMessage;
        QTest::newRow("item before everything")
            << int(NoItemId | BlankCode | NoUnitId | NoAuxProp | BadFigures) << Number << NoItem;
        QTest::newRow("code before unit") << int(BlankCode | NoUnitId) << Number << NoItem;
        QTest::newRow("unit before auxiliary property") << int(NoUnitId | NoAuxProp | BadFigures) << SecCoefficient
                                                        << NoUnit;
        QTest::newRow("auxiliary property before figures") << int(NoAuxProp | BadFigures) << AuxProp << auxMessage;
        // A refused group moves the cursor to its own quantity.
        QTest::newRow("year start") << int(BadGroup << 0) << YtdBegQty << Negative;
        QTest::newRow("receipts") << int(BadGroup << 1) << ReceiveQty << Negative;
        QTest::newRow("issues") << int(BadGroup << 2) << SendQty << Negative;
        QTest::newRow("opening") << int(BadGroup << 3) << BegQty << Negative;
    }

    void refusalOrderAndCursor()
    {
        QFETCH(int, faults);
        QFETCH(int, column);
        QFETCH(QString, message);
        const FakeRowView row = rowWith(faults);
        ICInitStruct record;
        const RowVerdict verdict = RowCheck::check(row, Place, className, record);
        QVERIFY(!verdict.valid);
        QCOMPARE(verdict.column, column);
        QCOMPARE(verdict.message, message);
    }

    // The end-to-end suite shows the empty row and negative stock; here the quantities-only
    // accounting and the agency warehouse, which excuse a quantity without amount.
    void settingsDecideGroupRules()
    {
        ICInitStruct record;
        FakeRowView quantityOnly;
        quantityOnly.groups[0] = {3, 0, 0, 0};
        QCOMPARE(RowCheck::check(quantityOnly, Place, className, record).message, NoAmount);
        QVERIFY(RowCheck::check(quantityOnly, {12, 0, 502}, className, record).valid);
        // An amount that shows as 0.00 is no amount.
        quantityOnly.groups[0] = {3, 0, 0.000001, 0};
        QCOMPARE(RowCheck::check(quantityOnly, Place, className, record).message, NoAmount);
        SysParams::current()->setItem(SysParam::AuditChoice, 0);
        QVERIFY(RowCheck::check(quantityOnly, Place, className, record).valid);
    }

    void gridRowReadsTheEntryColumns()
    {
        using namespace EntryCol;
        CellModel cells;
        cells.reset(3, Count);
        // As the grid is built: both cells locked unless the row's item asks for them.
        cells.setColStyle(AuxProp, CellStyle().setLocked(true));
        cells.setColStyle(Batch, CellStyle().setLocked(true));

        const int row = 2;
        cells.setValue(row, ItemID, 3057);
        cells.setText(row, Number, QStringLiteral("1.01.001"));
        cells.setValue(row, UnitID, 7);
        cells.setValue(row, AuxClassID, ColorClass);
        cells.setCellStyle(row, AuxProp, CellStyle().setLocked(false));
        // Every figure column its own value, so a column read from the wrong place shows.
        const int columns[] = {YtdBegQty, YtdBegAuxQty, YtdBegBal, YtdBegDiff, ReceiveQty, ReceiveAuxQty, Debit,
                               ReceiveDiff, SendQty, SendAuxQty, Credit, SendDiff, BegQty, BegAuxQty, BegBal, BegDiff};
        for (int i = 0; i < 16; ++i)
            cells.setValue(row, columns[i], 1.0 + i);
        // Binary noise from typed arithmetic is rounded away in the record.
        cells.setValue(row, YtdBegQty, 0.1 + 0.2);
        cells.setValue(row, SecCoefficient, 12.5);
        cells.setValue(row, SecUnitID, 9);
        cells.setValue(row, StockInDate, QDate(2024, 3, 1));
        cells.setText(row, FieldCompose, QStringLiteral("12|0|3|3057|40"));

        ICInitStruct record;
        RowVerdict verdict = RowCheck::check(GridRowView(cells, row), Place, className, record);
        QCOMPARE(verdict.column, AuxProp);
        QCOMPARE(verdict.message, QStringLiteral("物料1.01.001使用颜色管理，请选择颜色！"));

        cells.setValue(row, AuxPropID, 41);
        verdict = RowCheck::check(GridRowView(cells, row), Place, className, record);
        QVERIFY2(verdict.valid, qPrintable(verdict.message));
        QCOMPARE(QVariantList({int(record.Period), record.composedKey(), record.UnitID, record.SecCoefficient,
                               record.SecUnitID, record.StockInDate, record.oFieldCompose, record.BatchManager}),
                 QVariantList({3, QStringLiteral("12|0|3|3057|41"), 7, 12.5, 9, QStringLiteral("2024-03-01"),
                               QStringLiteral("12|0|3|3057|40"), false}));
        // Compared as the shortest text: a fuzzy compare would let the noise through.
        QCOMPARE(NumberFormat::plain(record.YtdAuxBegQty), QStringLiteral("0.3"));
        const double figures[] = {record.YtdAuxBegQty, record.YtdAuxUnitBegQty, record.YtdBegBal, record.YtdBegDiff,
                                  record.YtdAuxReceive, record.YtdAuxUnitReceive, record.YtdDebit, record.YtdReceiveDiff,
                                  record.YtdAuxSend, record.YtdAuxUnitSend, record.YtdCredit, record.YtdSendDiff,
                                  record.AuxBegQty, record.AuxUnitBegQty, record.BegBal, record.BegDiff};
        for (int i = 1; i < 16; ++i)
            QCOMPARE(figures[i], 1.0 + i);

        // A batch item's batch cell is an unlocked button; a date typed as text still reads.
        SpreadConsole::setButtonCell(cells, row, Batch);
        cells.setText(row, StockInDate, QStringLiteral("2024-02-29"));
        QVERIFY(RowCheck::check(GridRowView(cells, row), Place, className, record).valid);
        QVERIFY(record.BatchManager);
        QCOMPARE(record.StockInDate, QStringLiteral("2024-02-29"));

        // The item code typed on a new row is what the check trims.
        cells.setText(row, Number, QStringLiteral("  "));
        QCOMPARE(RowCheck::check(GridRowView(cells, row), Place, className, record).column, Number);
        cells.clearCell(row, ItemID);
        QCOMPARE(RowCheck::check(GridRowView(cells, row), Place, className, record).message, NoItem);
    }
};

QTEST_MAIN(TestRowCheck)
#include "tst_rowcheck.moc"
