#include "batch/apportion.h"
#include "sheet/iteminfo.h"
#include "batch/batchline.h"
#include "batch/batchscript.h"
#include "batch/batchsheet.h"
#include "batch/batchvalidation.h"
#include "batch/linebalance.h"

#include "frame/automation/dictionary.h"

#include <QTest>

#include <numeric>

using Amounts = QList<std::optional<double>>;
struct Split { Amounts quantities; double total; int scale; Amounts expected; };
Q_DECLARE_METATYPE(Split)
Q_DECLARE_METATYPE(FigureKind)
Q_DECLARE_METATYPE(QList<FigureKind>)
using Lines = QList<BatchLine>;
struct TypedBatch { bool shelfLife; QString typed, loaded, message; };
Q_DECLARE_METATYPE(TypedBatch)
struct SaveCase { ItemInfo item; bool allocate; ApportionState apportion; Lines lines; int row, col; QString message; };
Q_DECLARE_METATYPE(SaveCase)

namespace {

const QString CRLF = QStringLiteral("\r\n");

// A changed line that passes every check of a batch and shelf-life item.
struct Line
{
    BatchLine line;

    explicit Line(int row, const QString &batch = QStringLiteral("B1"))
    {
        line.row = row;
        line.batchNo = batch;
        line.changed = true;
        line.stockInDate = QDate(2024, 1, 1);
        line.kfDate = QDate(2023, 12, 1);
        line.kfPeriod = 180;
        group(YearOpeningGroup, 10, 100).group(PeriodOpeningGroup, 10, 100);
    }
    Line &group(int index, double quantity, double amount)
    {
        line.setFigure(BatchGroups[size_t(index)].quantity, quantity);
        line.setFigure(BatchGroups[size_t(index)].amount, amount);
        return *this;
    }
    Line &figure(int col, double value) { line.setFigure(col, value); return *this; }
    Line &kf(const QDate &date) { line.kfDate = date; return *this; }
    Line &stockIn(const QDate &date) { line.stockInDate = date; return *this; }
    Line &noShelfLife() { line.kfPeriod.reset(); return *this; }
    Line &unchanged() { line.changed = false; return *this; }
    Line &empty() { line.figures.fill(0); return *this; }
    operator BatchLine() const { return line; }
};

ItemInfo item(bool batch, bool shelfLife, int track = 78)
{
    ItemInfo it;
    it.id = 3057;
    it.name = QStringLiteral("冷轧板");
    it.batchManaged = batch;
    it.shelfLifeManaged = shelfLife;
    it.track = track;
    return it;
}

BatchRules amountRules(bool allocate = false)
{
    BatchRules rules;
    rules.balance.auditChoice = 1;
    rules.allocate = allocate;
    return rules;
}

} // namespace

// The batch dialog's rules without a widget: apportioning, the line balance, the checks, the
// save script and the member handover.
class TestBatchRules : public QObject
{
    Q_OBJECT
private slots:
    void apportion_data()
    {
        QTest::addColumn<Split>("split"); // quantities, total, decimals, expected amounts

        QTest::newRow("three batches of one") << Split{{1, 1, 1}, 100.0, 2, {33.33, 33.33, 33.34}};
        QTest::newRow("negative total") << Split{{1, 1, 1}, -100.0, 2, {-33.33, -33.33, -33.34}};
        // Empty quantity cells are passed over and keep their amounts.
        QTest::newRow("empty cell skipped") << Split{{1, std::nullopt, 2}, 10.0, 2, {3.33, std::nullopt, 6.67}};
        // The residue goes to the last line with quantity; a zero line after it gets nothing.
        QTest::newRow("zero after the last") << Split{{1, 2, 0}, 10.0, 2, {3.33, 6.67, 0.0}};
        QTest::newRow("no total typed") << Split{{4, 6}, 0.0, 2, {0.0, 0.0}};
        // 0.025 per unit rounds half away from zero on its decimal text, not down on its binary value.
        QTest::newRow("halves away from zero") << Split{{1, 1, 2}, 0.1, 2, {0.03, 0.03, 0.04}};
        QTest::newRow("tenths") << Split{{0.1, 0.2, 0.3}, 100.0, 2, {16.67, 33.33, 50.0}};
        QTest::newRow("no decimals") << Split{{1, 1, 1}, 100.0, 0, {33.0, 33.0, 34.0}};
    }

    void apportion()
    {
        QFETCH(Split, split);
        const auto &[quantities, total, scale, expected] = split;
        const Amounts amounts = Apportion::split(quantities, total, scale);
        QCOMPARE(amounts.size(), expected.size());
        double sum = 0;
        for (int i = 0; i < amounts.size(); ++i) {
            QCOMPARE(amounts[i].has_value(), expected[i].has_value());
            if (!expected[i])
                continue;
            QCOMPARE(*amounts[i] + 1.0, *expected[i] + 1.0); // fuzzy, also near zero
            sum += *amounts[i];
        }
        QCOMPARE(sum + 1.0, total + 1.0); // the lines add up to the total exactly
    }

    void lineBalance_data()
    {
        QTest::addColumn<QList<double>>("figures"); // columns 2 to 17
        QTest::addColumn<QList<FigureKind>>("unbalanced");

        using F = QList<double>;
        using K = QList<FigureKind>;
        //                             qty sec amt diff | received   | sent            | period
        QTest::newRow("balanced") << F{10, 5, 100, 1, 2, 1, 20, 0, 4, 2, 40, 0.5, 8, 4, 80, 0.5} << K{};
        QTest::newRow("quantity off") << F{11, 5, 100, 1, 2, 1, 20, 0, 4, 2, 40, 0.5, 8, 4, 80, 0.5}
                                      << K{FigureKind::Quantity};
        QTest::newRow("amount and difference off")
            << F{10, 5, 100, 1, 2, 1, 20, 0, 4, 2, 41, 0.5, 8, 4, 80, 1}
            << K{FigureKind::Amount, FigureKind::Difference};
        // -10 = -9 + (-3) - (-2): negative figures that balance pass.
        QTest::newRow("negatives balanced") << F{-10, 0, -100, 0, -2, 0, -20, 0, -3, 0, -30, 0, -9, 0, -90, 0} << K{};
        // All negative and off: -10 against -5 + (-3) - (-2) = -6.
        QTest::newRow("negatives off") << F{-10, 0, -100, 0, -2, 0, -20, 0, -3, 0, -30, 0, -5, 0, -90, 0}
                                       << K{FigureKind::Quantity};
        // Unrounded: 0.004 apart is a difference even where the display shows two decimals.
        QTest::newRow("below display precision") << F{1.004, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0}
                                                 << K{FigureKind::Quantity};
        // 0.1 + 0.2 is 0.30000000000000004: the figures are compared as the cells hold them, unrounded.
        QTest::newRow("unrounded sum") << F{0.3, 0, 0, 0, 0, 0, 0, 0, 0.2, 0, 0, 0, 0.1, 0, 0, 0}
                                       << K{FigureKind::Quantity};
    }

    void lineBalance()
    {
        QFETCH(QList<double>, figures);
        QFETCH(QList<FigureKind>, unbalanced);

        BatchLine line;
        for (int i = 0; i < figures.size(); ++i)
            line.setFigure(BatCol::FirstFigure + i, figures[i]);
        QCOMPARE(LineBalance::unbalanced(line), unbalanced);
    }

    void typedBatch_data()
    {
        QTest::addColumn<TypedBatch>("batch"); // message empty: accepted

        const QString empty = QStringLiteral("批号不能为空，请输入批号！");
        const QString exists = QStringLiteral("当前批号已存在，请重新输入！");
        QTest::newRow("empty") << TypedBatch{false, QString(), QStringLiteral("B1"), empty};
        QTest::newRow("blanks") << TypedBatch{false, QStringLiteral("   "), QString(), empty};
        QTest::newRow("new number") << TypedBatch{false, QStringLiteral("B9"), QString(), QString()};
        QTest::newRow("held by another line") << TypedBatch{false, QStringLiteral("B2"), QString(), exists};
        QTest::newRow("held, blanks around") << TypedBatch{false, QStringLiteral(" B2 "), QStringLiteral("B1"), exists};
        // With shelf life the same batch may come again under another production date.
        QTest::newRow("held, shelf-life item") << TypedBatch{true, QStringLiteral("B2"), QString(), QString()};
    }

    void typedBatch()
    {
        QFETCH(TypedBatch, batch);
        const std::optional<QString> refused = BatchValidation::checkTypedBatch(
            item(true, batch.shelfLife), batch.typed, batch.loaded, {QStringLiteral("B2"), QStringLiteral("B3")});
        QCOMPARE(refused.value_or(QString()), batch.message);
    }

    void saveCheck_data()
    {
        QTest::addColumn<SaveCase>("check"); // row, col and message of the refusal; no message: the lines pass
        const auto add = [](const char *name, const ItemInfo &it, const Lines &lines, int row = -1, int col = -1,
                            const QString &message = {}, bool allocate = false, ApportionState state = {}) {
            QTest::newRow(name) << SaveCase{it, allocate, state, lines, row, col, message};
        };
        const ItemInfo both = item(true, true);
        const QDate stockIn(2024, 1, 1);
        const QString after = QStringLiteral("该物料实行保质期管理，生产日期不能大于入库日期！");
        add("production on the stock-in day", both, {Line(4).kf(stockIn)});
        add("production the day before", both, {Line(4).kf(stockIn.addDays(-1))});
        add("production one day later", both, {Line(4).kf(stockIn.addDays(1))}, 4, BatCol::KFDate, after);
        add("production a year later, earlier month", both, {Line(4).kf(QDate(2024, 1, 1)).stockIn(QDate(2023, 12, 31))},
            4, BatCol::KFDate, after);
        add("no production date", both, {Line(4).kf(QDate())}, 4, BatCol::KFDate,
            QStringLiteral("该物料实行保质期管理，生产日期不能为空，请输入生产日期！"));
        add("no shelf life", both, {Line(4).noShelfLife()}, 4, BatCol::KFPeriod,
            QStringLiteral("该物料实行保质期管理，保质期(天)不能为空，请输入保质期(天)！"));

        // A repeat of line 1 after a line in between: the refusal points at the later one.
        const QDate first(2023, 12, 1);
        const QDate other(2023, 11, 1);
        const auto repeat = [&](const char *name, bool batch, bool shelfLife, const char *batchNo, const QDate &date,
                                int col = -1, const QString &message = {}) {
            add(name, item(batch, shelfLife),
                {Line(1, QStringLiteral("B1")).kf(first), Line(2, QStringLiteral("B7")).kf(QDate(2022, 1, 1)),
                 Line(3, QLatin1String(batchNo)).kf(date)},
                message.isEmpty() ? -1 : 3, col, message);
        };
        repeat("both, same batch other date", true, true, "B1", other);
        repeat("both, other batch same date", true, true, "B2", first);
        repeat("both, same batch and date", true, true, "B1", first, BatCol::BatchNo,
               QStringLiteral("批次+生产/采购日期不能重复!"));
        repeat("batch only, same batch", true, false, "B1", other, BatCol::BatchNo, QStringLiteral("批次不能重复!"));
        repeat("batch only, other batch", true, false, "B2", first);
        repeat("shelf life only, same date", false, true, "B2", first, BatCol::KFDate,
               QStringLiteral("生产/采购日期不能重复!"));
        repeat("shelf life only, other date", false, true, "B1", other);

        // Unchanged lines are not checked, but the repeat test looks at every line.
        add("unchanged line", item(true, false), {Line(1, QString()).unchanged()});
        add("unchanged repeat", item(true, false), {Line(1).unchanged(), Line(2).unchanged()}, 2, BatCol::BatchNo,
            QStringLiteral("批次不能重复!"));
        add("empty line, on its fourth group", item(true, false), {Line(3).empty()}, 3, BatCol::BegQty,
            QStringLiteral("录入的数据[数量=0，金额=0]！\r\n没有实际意义，数据非法！请重新录入！"));

        // Received: no quantity but an amount, refused only where amounts are apportioned.
        const Lines valueOnly{Line(2).figure(BatCol::Debit, 10)};
        add("value without quantity, apportioned", item(true, false, 76), valueOnly, 2, BatCol::ReceiveQty,
            QStringLiteral("分摊的数据[数量=0，金额<>0]！\r\n单价将不一致，数据非法！请重新录入！"), true);
        add("value without quantity, not apportioned", item(true, false, 76), valueOnly);
        add("value without quantity, FIFO", item(true, false, 78), valueOnly, -1, -1, {}, true);

        // An empty batch number would be refused too; the missing apportioning comes first.
        const ItemInfo average = item(true, false, 76);
        const Lines noBatch{Line(1, QString())};
        add("not apportioned", average, noBatch, -1, -1,
            QStringLiteral("加权平均法、移动平均法的物料\r\n采用批次管理时，金额需要分摊来确定单价！\r\n"
                           "系统检测到金额未分摊，请先分摊金额！"),
            true, {true, false, true});
        // Apportioned, unchanged or not offered: the line check speaks.
        const QString batchRequired = QStringLiteral("该物料实行批次管理，批号不能为空，请输入批号！");
        add("apportioned", average, noBatch, 1, BatCol::BatchNo, batchRequired, true, {true, true, true});
        add("not apportioned, unchanged", average, noBatch, 1, BatCol::BatchNo, batchRequired, true, {true, false, false});
        add("apportioning not offered", average, noBatch, 1, BatCol::BatchNo, batchRequired, true, {false, false, true});
    }

    void saveCheck()
    {
        QFETCH(SaveCase, check);
        const auto &[item, allocate, apportion, lines, row, col, message] = check;
        const std::optional<BatchRefusal> refused =
            BatchValidation::checkBeforeSave(item, amountRules(allocate), apportion, lines);
        const auto text = [](int row, int col, const QString &message) {
            return message.isEmpty() ? QString() : QStringLiteral("%1,%2 %3").arg(row).arg(col).arg(message);
        };
        QCOMPARE(refused ? text(refused->row, refused->col, refused->message) : QString(), text(row, col, message));
    }

    // While typing, one group is judged alone: an empty one is no refusal, a value without quantity is.
    void checkGroupJudgesOneGroup()
    {
        const ItemInfo average = item(true, false, 76);
        QVERIFY(BatchValidation::checkGroup(Line(3).empty(), BatchGroups[0], average, amountRules()).valid);
        QVERIFY(!BatchValidation::checkGroup(Line(2).figure(BatCol::Debit, 10), BatchGroups[1], average, amountRules(true))
                     .valid);
    }

    void scriptForOneLine()
    {
        const BatchScriptKey key{.stockId = 12, .spId = 3, .period = 1, .itemId = 3057, .unitId = 7,
                                 .fieldCompose = QStringLiteral("12|3|1|3057|0"), .recordCounter = {}};
        // Each figure apart, so that a value written into the wrong column shows.
        Line typed(1, QStringLiteral("B'01"));
        const std::pair<int, double> figures[] = {
            {BatCol::YtdBegQty, 10},   {BatCol::YtdBegBal, 1234.5}, {BatCol::ReceiveQty, 2},     {BatCol::Debit, 20.123456789012},
            {BatCol::SendQty, 4},      {BatCol::Credit, 40},        {BatCol::BegQty, 8},         {BatCol::BegBal, 1214.623456789},
            {BatCol::BegDiff, 0.1},    {BatCol::BegSecQty, 0.5},    {BatCol::YtdBegSecQty, 0.25}, {BatCol::SendSecQty, 0.125},
            {BatCol::ReceiveSecQty, 0.0625}};
        for (const auto &[col, value] : figures)
            typed.figure(col, value);
        BatchLine line = typed.kf(QDate(2023, 12, 20));
        line.billInterId = 5;
        line.snListId = 77;

        const QString indent(26, QLatin1Char(' '));
        const QString expected =
            QStringList{QStringLiteral(" Delete from ICInvInitial  Where FStockID=12 And        FSPID=3 And        FPeriod=1 And        "
                                       "FItemID=3057 and        FAuxPropID=0"),
                        QStringLiteral(" Delete from ICInvInitial where FFieldCompose='12|3|1|3057|0'"),
                        QStringLiteral(" Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo,")}
                .join(CRLF)
            + CRLF + indent
            + QStringList{QStringLiteral("FYtdAuxBegQty,FYtdBegBal,FYtdBegDiff,"), QStringLiteral("FYtdAuxReceive,FYtdDebit,FYtdReceiveDiff,"),
                          QStringLiteral("FYtdAuxSend,FYtdCredit,FYtdSendDiff,"), QStringLiteral("FAuxBegQty,FBegBal,FBegDiff,FBillInterID,"),
                          QStringLiteral("FKFDate,FKFPeriod,"), QStringLiteral("FAuxUnitBegQty,FYtdAuxUnitBegQty,FYtdAuxUnitSend,"),
                          QStringLiteral("FYtdAuxUnitReceive,FStockInDate,FSecUnitID,FAuxPropID,FSecCoefficient,FSNListID,FFieldCompose)")}
                  .join(CRLF + indent)
            + QStringLiteral(" Values('0',1,12,3,3057,7,'B''01',10,1234.5,0,2,20.123456789,0,4,40,0,8,1214.623456789,0.1,5,"
                             "'2023-12-20',180,0.5,0.25,0.125,0.0625,'2024-01-01',0,0,0,77,'12|3|1|3057|0')");
        QCOMPARE(BatchScript::build(key, {line}, {}), expected);
    }

    // The middle tier refuses an IN list of more than 1000 items.
    void manySerialListsAreDeletedInPieces()
    {
        QList<qint32> serialLists(1001);
        std::iota(serialLists.begin(), serialLists.end(), 1);
        const QStringList deletes =
            BatchScript::build({}, {}, serialLists).split(CRLF).filter(QStringLiteral("ICSerial "));
        // Of ICSerial: a thousand lists, then the last one.
        QCOMPARE((QList<qsizetype>{deletes.size(), deletes.value(0).count(u','), deletes.value(1).count(u',')}),
                 (QList<qsizetype>{2, 999, 0}));
    }

    void itemFromKey()
    {
        Dictionary key;
        const std::pair<const char *, QVariant> values[] = {
            {"ID", 3057},     {"ShortNum", "LZB"},  {"Num", "01.002"},    {"Name", "冷轧板"},
            {"Model", "1.0mm"}, {"FBM", "True"},    {"FKF", 0},           {"Track", 81},
            {"PlanPrice", 12.5}, {"UnitID", 7},     {"QtyDecimal", 3},    {"PriceDecimal", 4},
            {"KFPeriod", 180},  {"SecUnitID", 8},   {"SecCoefficient", 2.5}, {"AuxPropID", 11}};
        for (const auto &[name, value] : values)
            key.Add(QLatin1String(name), value);
        const ItemInfo it = ItemInfo::fromItemKey(key);
        QCOMPARE(QStringLiteral("%1 %2 %3 %4%5%6 %7 %8 %9 %10 %11 %12 %13 %14 %15")
                     .arg(it.id).arg(it.shortNumber, it.number)
                     .arg(it.batchManaged).arg(it.shelfLifeManaged).arg(it.plannedCost())
                     .arg(it.planPrice).arg(it.unitId).arg(it.qtyDecimal).arg(it.priceDecimal).arg(it.kfPeriod)
                     .arg(it.secUnitId).arg(it.secCoefficient).arg(it.auxPropId).arg(it.title()),
                 QStringLiteral("3057 LZB 01.002 101 12.5 7 3 4 180 8 2.5 11 冷轧板/1.0mm"));

        key.setItem(QStringLiteral("Model"), QStringLiteral(" "));
        QCOMPARE(ItemInfo::fromItemKey(key).title(), QStringLiteral("冷轧板"));
    }

    // A batch item or else a shelf-life one, its valuation (81: planned cost), quantities only or with amounts.
    void modeCaption()
    {
        const struct { bool batch; int track; bool quantitiesOnly; const char *caption; } cases[] = {
            {true, 81, false, "批号/数量/金额/材料成本差异"}, {true, 81, true, "批号/数量"},
            {false, 81, false, "数量/金额"},                  {false, 76, true, "数量"}};
        for (const auto &c : cases)
            QCOMPARE(batchModeCaption(item(c.batch, !c.batch, c.track), c.quantitiesOnly), QString(c.caption));
    }
};

QTEST_MAIN(TestBatchRules)
#include "tst_batchrules.moc"
