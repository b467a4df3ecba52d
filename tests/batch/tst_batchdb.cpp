#include "privatesettings.h"
#include "scratchaccountset.h"
#include "servicecalls.h"

#include "batch/batchsession.h"
#include "batch/frmbatchmanager.h"
#include "db/sqlrun.h"
#include "sheet/entrygridlayout.h"
#include "sheet/entrysheet.h"
#include "entry/icinitctl.h"
#include "sheet/navtree.h"

#include "frame/logincontext.h"
#include "frame/prompter.h"
#include "frame/settingsstore.h"

#include "grid/spreadgrid.h"

#include <QApplication>
#include <QDate>
#include <QSqlQuery>
#include <QProgressBar>
#include <QTabBar>
#include <QLabel>
#include <QTest>

namespace {

// The demo company's places and items the dialog is opened for.
const QString ShelfA = QStringLiteral("K1P1"); // 原材料仓 / A区货架
const QString ShelfB = QStringLiteral("K1P2"); // 原材料仓 / B区货架
constexpr int SteelPlate = 1;   // batches, weighted average: its amounts are apportioned
constexpr int EpoxyGlue = 6;    // batches and shelf life, individual valuation
constexpr int ComponentKit = 9; // batches only, a batch variant of valuation

// Grid columns of the dialog.
enum Col {
    BatchNo = 1, YtdQty = 2, YtdSecQty = 3, YtdBal = 4, RecvQty = 6, SendQty = 10, BegQty = 14, BegSecQty = 15,
    BegBal = 16, StockIn = 18, Flag = 20, KFDate = 22, KFPeriod = 23
};

const QString CRLF = QStringLiteral("\r\n");
// The component kit's demo lines at shelf B, as storedLines gives them.
const QStringList KitLines{QStringLiteral("K001  50 6000 0"), QStringLiteral("K002  30 3750 0")};

QString demoDay(int month, int day)
{
    return QDate(QDate::currentDate().year(), month, day).toString(Qt::ISODate);
}

// The accounting choice and the item the dialog is opened for, and what it shows then: the column
// groups, whether apportioning is offered, the mode.
struct Shown
{
    int auditChoice;
    QString place;
    int itemId;
    bool amounts, secondary, shelfLife, apportioning;
    QString caption;
};

// How the dialog is left: the change made (0: none, 1: a valid rename, 2: a line without batch
// number), by the window's close button or by "Exit", the answer given (-1: not asked) and the outcome.
struct Closing { int change; bool byWindow; int answer; bool staysOpen; QStringList stored; };

} // namespace

Q_DECLARE_METATYPE(Shown)
Q_DECLARE_METATYPE(Closing)

// The batch dialog on a temporary account set with the demo company: opened from the entry
// control's item row as a user opens it, and judged by what reaches ICInvInitial.
class TestBatchOnAccountSet : public QObject
{
    Q_OBJECT

private:
    ScriptedPrompter m_prompter;
    std::unique_ptr<ScratchAccountSet> m_scratch;
    std::unique_ptr<ICInitCtl> m_control;
    std::unique_ptr<frmBatchManager> m_dialog;

    // Shows the entry control on the scratch set, clicks the place and opens the dialog (m_dialog)
    // on the item's row; gives its grid, or null when any step does not work.
    SpreadGrid *openItem(const QString &placeKey, int itemId)
    {
        ServiceCalls::publishLogin(m_scratch->propsString());
        LoginContext::instance().reset();
        m_dialog.reset(); // before the control it belongs to
        m_control = std::make_unique<ICInitCtl>();
        if (!m_control->Show(nullptr, true))
            return nullptr;
        m_control->tree()->clickNode(placeKey);
        const EntrySheet &sheet = *m_control->sheet();
        for (int row = 1; row <= sheet.lastDataRow(); ++row) {
            if (sheet.isItemRow(row) && int(m_control->grid()->number(row, EntryCol::ItemID)) == itemId) {
                m_dialog = m_control->batchDialogFor(row);
                if (!m_dialog)
                    return nullptr;
                m_dialog->prepare();
                return m_dialog->grid();
            }
        }
        return nullptr;
    }

    QString lastMessage() const
    {
        return m_prompter.messages().isEmpty() ? QString() : m_prompter.messages().last().text;
    }

    QSqlQuery run(const QString &statement, const QVariantList &values = {})
    {
        return SqlRun::exec(m_scratch->db(), statement, values);
    }

    int count(const QString &statement, const QVariantList &values = {})
    {
        return SqlRun::scalar(m_scratch->db(), statement, values).toInt();
    }

    void setParameter(const QString &key, const QVariant &value)
    {
        run(QStringLiteral("UPDATE t_SystemProfile SET FValue=? WHERE FKey=?"), {value.toString(), key});
    }

    // "batch production-date opening-qty opening-amount year-opening-amount" of every stored line
    // of an item in the current period, in batch and date order.
    QStringList storedLines(int spId, int itemId)
    {
        QSqlQuery query = run(QStringLiteral("SELECT FBatchNo, FKFDate, FAuxBegQty, FBegBal, FYtdBegBal FROM ICInvInitial "
                                             "WHERE FStockID=1 AND FSPID=? AND FItemID=? AND FPeriod=4 "
                                             "ORDER BY FBatchNo, FKFDate"),
                              {spId, itemId});
        QStringList lines;
        while (query.next()) {
            lines.append(QStringLiteral("%1 %2 %3 %4 %5").arg(query.value(0).toString(), query.value(1).toString())
                             .arg(query.value(2).toDouble()).arg(query.value(3).toDouble())
                             .arg(query.value(4).toDouble()));
        }
        return lines;
    }

    int serialRecords(int listId)
    {
        int records = 0;
        for (const char *table : {"ICSerial", "ICSerialFlow", "ICSerial_F1"})
            records += count(QStringLiteral("SELECT count(*) FROM %1 WHERE FSNListID=?").arg(QLatin1String(table)), {listId});
        return records;
    }

private slots:
    void initTestCase() { Prompter::install(&m_prompter); }
    void cleanupTestCase() { Prompter::install(nullptr); }

    // Every case runs on each backend; one that cannot be reached here is skipped.
    void initTestCase_data()
    {
        addBackends();
    }

    void init()
    {
        m_prompter.clear();
        QFETCH_GLOBAL(QString, backend);
        REQUIRE_BACKEND(backend);
        m_scratch = std::make_unique<ScratchAccountSet>(backend);
    }

    void cleanup()
    {
        m_dialog.reset();
        m_control.reset();
        m_scratch.reset();
        QCOMPARE(m_prompter.pendingAnswers(), 0);
    }

    void columnsFollowTheAccountingAndTheItem_data()
    {
        QTest::addColumn<Shown>("shown");
        QTest::newRow("quantities only") << Shown{0, ShelfA, SteelPlate, false, true, false, false, "批号/数量"};
        QTest::newRow("amounts, secondary unit") << Shown{1, ShelfA, SteelPlate, true, true, false, true, "批号/数量/金额"};
        QTest::newRow("amounts, shelf life") << Shown{1, ShelfB, EpoxyGlue, true, false, true, false, "批号/数量/金额"};
    }

    void columnsFollowTheAccountingAndTheItem()
    {
        QFETCH(Shown, shown);
        setParameter(QStringLiteral("AuditChoice"), shown.auditChoice);
        SpreadGrid *grid = openItem(shown.place, shown.itemId);
        QVERIFY(grid);
        const std::pair<QList<int>, bool> columns[] = {
            {{4, 5, 8, 9, 12, 13, 16, 17}, shown.amounts}, {{3, 7, 11, 15}, shown.secondary},
            {{KFDate, KFPeriod}, shown.shelfLife},         {{1, 2, 6, 10, 14, 18}, true}, {{19, 20, 21, 24}, false}};
        for (const auto &[cols, visible] : columns) {
            for (int col : cols)
                QVERIFY2(grid->colHidden(col) != visible, qPrintable(QString::number(col)));
        }
        QCOMPARE(m_dialog->findChild<QTabBar *>(QStringLiteral("sstBatMan"))->tabText(0), shown.caption);
        QCOMPARE(m_dialog->button(QStringLiteral("ShareBal"))->isEnabled(), shown.apportioning);
        // Nothing is in progress once the lines are in: no empty progress strip.
        QVERIFY(m_dialog->findChild<QProgressBar *>(QStringLiteral("pbBatMan"))->isHidden());
        // The demo lines came in on the period's first day; the totals row has the sum colour.
        QCOMPARE(grid->value(1, StockIn).toString(), demoDay(4, 1));
        QCOMPARE(grid->TextMatrix(3, BatchNo), QStringLiteral("合计"));
        QCOMPARE(grid->cellBackColor(3, BegQty), SettingsStore::colorValue(Setting::SumColor));
    }

    // With the initialisation closed every line is locked.
    void lockedLinesStayReadOnly()
    {
        setParameter(QStringLiteral("ICClosed"), 1);
        SpreadGrid *grid = openItem(ShelfB, ComponentKit);
        QVERIFY(grid);
        QCOMPARE(grid->cellBackColor(1, BegQty), SettingsStore::colorValue(Setting::LockColor));
        QVERIFY(!grid->editCell(1, BegQty, 11));
        QVERIFY(!grid->editCell(2, BatchNo, QStringLiteral("K9")));
        grid->select(1, BegQty);
        QVERIFY(m_dialog->pressButton(QStringLiteral("Delete")));
        QCOMPARE(grid->rows(), 4);
    }

    void typedQuantitiesFillTheirDependentCells()
    {
        run(QStringLiteral("UPDATE t_ICItem SET FTrack=81, FPlanPrice=2.5 WHERE FItemID=?"), {SteelPlate});
        SpreadGrid *grid = openItem(ShelfA, SteelPlate);
        QVERIFY(grid);
        QVERIFY(m_dialog->pressButton(QStringLiteral("AddNew")));
        const int line = grid->row();
        // Planned cost: the amount follows quantity x planned price 2.5; the secondary quantity
        // follows the units' coefficients (1 t = 1000 kg).
        QVERIFY(grid->editCell(line, BegQty, 4000));
        QVERIFY(grid->editCell(line, YtdSecQty, 6));
        QCOMPARE((QList<double>{grid->number(line, BegBal), grid->number(line, BegSecQty), grid->number(line, YtdQty),
                                grid->number(line, YtdBal)}),
                 (QList<double>{10000, 4, 6000, 15000}));
    }

    void figureRefusedWhileTypingStaysToBeCorrected()
    {
        SpreadGrid *grid = openItem(ShelfB, ComponentKit);
        QVERIFY(grid);
        // Negative stock is not allowed: the user is told at once, the figure stays to be corrected.
        QVERIFY(grid->editCell(1, SendQty, -5));
        QCOMPARE(m_prompter.messages().size(), 1);
        QCOMPARE(lastMessage(), QStringLiteral("录入的数据[数量<0]！\r\n但账套不允许负结存,因此数量不能<0！\r\n数据非法！请重新录入！"));
        QCOMPARE(grid->number(1, SendQty), -5.0);
        QCOMPARE(grid->TextMatrix(1, Flag), QStringLiteral("1"));
        QCOMPARE(grid->col(), int(SendQty));
    }

    void serviceFailuresAreReportedAndKeepTheChanges()
    {
        SpreadGrid *grid = openItem(ShelfB, ComponentKit);
        QVERIFY(grid);
        QVERIFY(grid->editCell(1, BatchNo, QStringLiteral("K005")));
        run(QStringLiteral("ALTER TABLE ICInvInitial RENAME TO ICInvInitialGone"));
        QVERIFY(m_dialog->pressButton(QStringLiteral("Save")));
        QCOMPARE(m_prompter.messages().size(), 1);
        QVERIFY2(lastMessage().startsWith(QStringLiteral("系统在调用函数SaveBatManDetail()时发生错误\r\n错误原因：")),
                 qPrintable(lastMessage()));
        QVERIFY(!m_dialog->SavedBatMan());
        QVERIFY(m_dialog->session()->hasChanges());
        QCOMPARE(grid->TextMatrix(1, BatchNo), QStringLiteral("K005"));
        // A failed load leaves the header and the totals row.
        m_dialog->prepare();
        QCOMPARE(m_prompter.messages().size(), 2);
        QVERIFY2(lastMessage().startsWith(QStringLiteral("系统在调用函数FillBatManDetailByRs()时发生错误\r\n错误原因：")),
                 qPrintable(lastMessage()));
        QCOMPARE(grid->rows(), 2);
    }

    void apportionedAmountsReachTheTable_data()
    {
        QTest::addColumn<double>("quantity");
        QTest::addColumn<QStringList>("amounts");
        // The last line with quantity takes the rounding residue.
        QTest::newRow("three of 1") << 1.0 << QStringList{"33.33", "33.33", "33.34"};
        // 0.1 + 0.1 + 0.1 is not used up exactly by taking 0.1 three times: no line takes the
        // residue and the lines fall short of the total.
        QTest::newRow("three of 0.1") << 0.1 << QStringList{"33.33", "33.33", "33.33"};
    }

    void apportionedAmountsReachTheTable()
    {
        QFETCH(double, quantity);
        QFETCH(QStringList, amounts);
        SpreadGrid *grid = openItem(ShelfA, SteelPlate);
        QVERIFY(grid);
        // The two demo batches go; three new ones come.
        for (int i = 0; i < 2; ++i) {
            grid->select(1, BegQty);
            QVERIFY(m_dialog->pressButton(QStringLiteral("Delete")));
        }
        for (int line = 1; line <= 3; ++line) {
            QVERIFY(m_dialog->pressButton(QStringLiteral("AddNew")));
            QVERIFY(grid->editCell(line, BatchNo, QStringLiteral("N%1").arg(line)));
        }
        // Amounts of an average-valued item must be apportioned before anything is saved.
        const QStringList before = storedLines(1, SteelPlate);
        QVERIFY(m_dialog->pressButton(QStringLiteral("Save")));
        QCOMPARE(lastMessage(), QStringLiteral("加权平均法、移动平均法的物料") + CRLF
                                    + QStringLiteral("采用批次管理时，金额需要分摊来确定单价！") + CRLF
                                    + QStringLiteral("系统检测到金额未分摊，请先分摊金额！"));
        QCOMPARE(m_prompter.messages().last().icon, Prompter::Icon::Warning);
        QCOMPARE(storedLines(1, SteelPlate), before);
        m_prompter.clear();
        QVERIFY(m_dialog->pressButton(QStringLiteral("ShareBal")));
        QVERIFY(m_dialog->button(QStringLiteral("ShareBal"))->isChecked());
        // Below the totals an input line takes the two totals to apportion, nothing else.
        const int inputRow = grid->rows() - 1;
        QCOMPARE(grid->TextMatrix(inputRow - 1, BatchNo), QStringLiteral("合计"));
        QVERIFY(!grid->editCell(inputRow, BegQty, 1));
        QVERIFY(grid->editCell(inputRow, BegBal, 100));
        QVERIFY(grid->editCell(inputRow, YtdBal, 100));
        // Quantities typed afterwards are apportioned at once.
        for (int line = 1; line <= 3; ++line) {
            QVERIFY(grid->editCell(line, BegQty, quantity));
            QVERIFY(grid->editCell(line, YtdQty, quantity));
        }
        // Each quantity comes with its share of the total: no line is warned of a zero amount.
        QVERIFY(m_prompter.messages().isEmpty());
        QVERIFY(m_dialog->pressButton(QStringLiteral("Save")));
        QVERIFY(m_dialog->SavedBatMan());
        // Apportioning switched off takes the input line away again; the input line is never stored.
        QVERIFY(m_dialog->pressButton(QStringLiteral("ShareBal")));
        QCOMPARE(grid->rows(), inputRow);
        QCOMPARE(grid->TextMatrix(inputRow - 1, BatchNo), QStringLiteral("合计"));

        QStringList expected;
        for (int line = 1; line <= 3; ++line)
            expected.append(QStringLiteral("N%1  %2 %3 %3").arg(line).arg(quantity).arg(amounts.at(line - 1)));
        QCOMPARE(storedLines(1, SteelPlate), expected);
    }

    // The dates a shelf-life item's lines are judged by, as the account set gives them back.
    void productionDatesOfAShelfLifeItem()
    {
        SpreadGrid *grid = openItem(ShelfB, EpoxyGlue);
        QVERIFY(grid);
        QCOMPARE(grid->TextMatrix(2, BatchNo), QStringLiteral("E2402"));

        // Produced on the day it came in (the demo lines came in on April 1st, the first day of the
        // period); the same batch with another production date is a line of its own.
        QVERIFY(grid->editCell(1, KFDate, demoDay(4, 1)));
        QVERIFY(grid->editCell(2, BatchNo, QStringLiteral("E2401")));
        QVERIFY(m_dialog->pressButton(QStringLiteral("Save")));
        QVERIFY2(m_dialog->SavedBatMan(), qPrintable(lastMessage()));
        const QStringList saved{QStringLiteral("E2401 %1 150 4275 0").arg(demoDay(2, 12)),
                                QStringLiteral("E2401 %1 200 5600 0").arg(demoDay(4, 1))};
        QCOMPARE(storedLines(2, EpoxyGlue), saved);

        // Produced after it came in: refused at the date.
        QVERIFY(grid->editCell(2, KFDate, demoDay(4, 2)));
        QVERIFY(m_dialog->pressButton(QStringLiteral("Save")));
        QCOMPARE(lastMessage(), QStringLiteral("该物料实行保质期管理，生产日期不能大于入库日期！"));
        QCOMPARE((std::pair{grid->row(), grid->col()}), (std::pair{2, int(KFDate)}));
        QCOMPARE(storedLines(2, EpoxyGlue), saved);
    }

    void balanceTestFindsNegativeLinesThatDoNotAddUp()
    {
        setParameter(QStringLiteral("UnderStock"), 1);
        const QStringList before = storedLines(2, ComponentKit);
        SpreadGrid *grid = openItem(ShelfB, ComponentKit);
        QVERIFY(grid);
        const QColor plain = grid->cellBackColor(2, YtdQty);
        // Year opening -3 against period opening -2 + sent 0 - received 0.
        for (const auto &[col, value] : {std::pair{RecvQty, 0.0}, {SendQty, 0.0}, {BegQty, -2.0}, {YtdQty, -3.0}})
            QVERIFY(grid->editCell(1, col, value));
        QVERIFY(m_dialog->pressButton(QStringLiteral("Balance")));
        for (int col : {YtdQty, RecvQty, SendQty, BegQty}) {
            QVERIFY2(grid->cellBackColor(1, col) != plain, qPrintable(QString::number(col)));
            QCOMPARE(grid->cellBackColor(2, col), plain);
        }
        QCOMPARE(grid->row(), 1);
        auto *note = m_dialog->findChild<QLabel *>(QStringLiteral("lblBalance"));
        QVERIFY(note && !note->isHidden());
        QVERIFY2(note->text().startsWith(QStringLiteral("第1行不平衡：数量 年初 -3")), qPrintable(note->text()));

        // Sending -1 makes it add up; the marks and their words go.
        QVERIFY(grid->editCell(1, SendQty, -1));
        QVERIFY(m_dialog->pressButton(QStringLiteral("Balance")));
        for (int col : {YtdQty, RecvQty, SendQty, BegQty})
            QCOMPARE(grid->cellBackColor(1, col), plain);
        QVERIFY(note->isHidden());
        // The test itself writes nothing.
        QCOMPARE(storedLines(2, ComponentKit), before);
    }

    void deletingEveryLineRemovesTheItemAndItsSerials()
    {
        // A serial-number list of its own on batch K002; the demo laptop's list 1 stays.
        constexpr int KitSerials = 7;
        run(QStringLiteral("UPDATE ICInvInitial SET FSNListID=? WHERE FItemID=? AND FBatchNo='K002'"),
            {KitSerials, ComponentKit});
        for (const char *table : {"ICSerial", "ICSerial_F1"})
            run(QStringLiteral("INSERT INTO %1 (FSNListID, FItemID, FSerialNo, FStockID, FSPID) VALUES (?, ?, 'KIT-0001', 1, 2)")
                    .arg(QLatin1String(table)),
                {KitSerials, ComponentKit});
        run(QStringLiteral("INSERT INTO ICSerialFlow (FSNListID, FItemID, FSerialNo, FDate) VALUES (?, ?, 'KIT-0001', '2024-04-01')"),
            {KitSerials, ComponentKit});
        QCOMPARE(serialRecords(KitSerials), 3);
        const int laptopSerials = serialRecords(1);
        QVERIFY(laptopSerials > 0);

        SpreadGrid *grid = openItem(ShelfB, ComponentKit);
        QVERIFY(grid);
        for (int i = 0; i < 2; ++i) {
            grid->select(1, BegQty);
            QVERIFY(m_dialog->pressButton(QStringLiteral("Delete")));
        }
        QCOMPARE(grid->rows(), 2); // the header and the totals row, which takes no figures
        QVERIFY(!grid->editCell(1, BegQty, 5));
        QVERIFY(m_dialog->pressButton(QStringLiteral("Save")));
        QVERIFY(m_dialog->SavedBatMan());

        QCOMPARE(storedLines(2, ComponentKit), QStringList());
        QCOMPARE(serialRecords(KitSerials), 0);
        QCOMPARE(serialRecords(1), laptopSerials);
        QCOMPARE(storedLines(2, EpoxyGlue).size(), 2); // the place's other items stay
    }

    void renamedBatchIsCheckedAndWrittenAgain()
    {
        SpreadGrid *grid = openItem(ShelfB, ComponentKit);
        QVERIFY(grid);
        // Another line's number is refused at once, and the cursor stays.
        QVERIFY(!grid->editCell(2, BatchNo, QStringLiteral("K001")));
        QCOMPARE(grid->TextMatrix(2, BatchNo), QStringLiteral("K002"));
        QCOMPARE(m_prompter.messages().last().caption, QStringLiteral("澄枫提示"));
        QCOMPARE(lastMessage(), QStringLiteral("当前批号已存在，请重新输入！"));
        QCOMPARE((std::pair{grid->row(), grid->col()}), (std::pair{2, int(BatchNo)}));
        QCOMPARE(grid->TextMatrix(2, Flag), QString()); // refused edits change nothing
        QVERIFY(grid->editCell(1, BatchNo, QStringLiteral("K001-A")));
        QVERIFY(m_dialog->pressButton(QStringLiteral("Save")));
        QVERIFY(m_dialog->SavedBatMan());
        QCOMPARE(storedLines(2, ComponentKit), (QStringList{QStringLiteral("K001-A  50 6000 0"), KitLines[1]}));
        // Saved: nothing is pending any more, and closing asks nothing.
        QCOMPARE(grid->TextMatrix(1, Flag), QString());
        QVERIFY(m_dialog->pressButton(QStringLiteral("Exit")));
        QCOMPARE(m_prompter.messages().size(), 1);
    }

    // A new line starts on the period's first day, with the item's shelf life, marked changed;
    // its record number continues the account set's.
    void newLinesContinueTheRecordNumber()
    {
        const QString counter = QStringLiteral("SELECT FValue FROM t_SystemProfile WHERE FCategory='IC' AND FKey='INIBillInterID'");
        const int before = count(counter);
        for (const int itemId : {ComponentKit, EpoxyGlue}) {
            SpreadGrid *grid = openItem(ShelfB, itemId);
            QVERIFY(grid);
            QVERIFY(m_dialog->pressButton(QStringLiteral("AddNew")));
            const int line = grid->row();
            QCOMPARE((std::pair{line, grid->col()}), (std::pair{3, int(BatchNo)}));
            // A shelf-life item's line is produced on its stock-in day unless the user says otherwise,
            // so that it can be saved as it comes.
            const bool shelfLife = itemId == EpoxyGlue;
            QCOMPARE((QStringList{grid->value(line, StockIn).toString(), grid->value(line, KFDate).toString(),
                                  grid->TextMatrix(line, KFPeriod), grid->TextMatrix(line, Flag)}),
                     (QStringList{demoDay(4, 1), shelfLife ? demoDay(4, 1) : QString(),
                                  shelfLife ? QStringLiteral("180") : QString(), QStringLiteral("1")}));
            QVERIFY(grid->editCell(line, BatchNo, QStringLiteral("N1")));
            // The amount is still to come: no warning of a zero amount in the middle of the pair.
            QVERIFY(grid->editCell(line, BegQty, 1));
            QVERIFY(m_prompter.messages().isEmpty());
            QVERIFY(grid->editCell(line, BegBal, 10));
            QVERIFY(m_dialog->pressButton(QStringLiteral("Save")));
            QVERIFY2(m_dialog->SavedBatMan(), qPrintable(lastMessage()));
        }
        QSqlQuery query = run(QStringLiteral("SELECT FBillInterID FROM ICInvInitial WHERE FBatchNo='N1' ORDER BY FBillInterID"));
        QList<int> numbers;
        while (query.next())
            numbers.append(query.value(0).toInt());
        QCOMPARE(numbers, (QList<int>{before + 1, before + 2}));
        QCOMPARE(count(counter), before + 2);
    }

    void closePrompt_data()
    {
        QTest::addColumn<Closing>("closing");
        const QStringList renamed{QStringLiteral("K002  30 3750 0"), QStringLiteral("K009  50 6000 0")};
        const int yes = int(Prompter::Answer::Yes);
        const int no = int(Prompter::Answer::No);
        QTest::newRow("no change") << Closing{0, false, -1, false, KitLines};
        QTest::newRow("yes, check fails") << Closing{2, false, yes, true, KitLines};
        QTest::newRow("yes, valid") << Closing{1, false, yes, false, renamed};
        QTest::newRow("no, window") << Closing{1, true, no, false, KitLines};
    }

    void closePrompt()
    {
        QFETCH(Closing, closing);
        const auto &[change, byWindow, answer, staysOpen, stored] = closing;
        QVERIFY(openItem(ShelfB, ComponentKit));
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
        if (change == 1)
            QVERIFY(m_dialog->grid()->editCell(1, BatchNo, QStringLiteral("K009")));
        else if (change == 2)
            QVERIFY(m_dialog->pressButton(QStringLiteral("AddNew")));
        if (answer >= 0)
            m_prompter.queueAnswer(Prompter::Answer(answer));
        if (byWindow)
            m_dialog->close();
        else
            QVERIFY(m_dialog->pressButton(QStringLiteral("Exit")));

        QCOMPARE(m_dialog->isVisible(), staysOpen);
        QCOMPARE(storedLines(2, ComponentKit), stored);
        QCOMPARE(m_dialog->SavedBatMan(), stored != KitLines);
        if (answer < 0) {
            QVERIFY(m_prompter.messages().isEmpty());
            return;
        }
        const Prompter::Message &asked = m_prompter.messages().first();
        QCOMPARE((std::tuple{asked.text, asked.caption, asked.buttons, asked.icon}),
                 (std::tuple{QStringLiteral("数据已经改变，是否需要保存？"), QStringLiteral("澄枫提示"),
                             Prompter::Buttons::YesNo, Prompter::Icon::Question}));
        if (staysOpen)
            QCOMPARE(lastMessage(), QStringLiteral("该物料实行批次管理，批号不能为空，请输入批号！"));
        else
            QCOMPARE(m_dialog->result(), int(m_dialog->SavedBatMan() ? QDialog::Accepted : QDialog::Rejected));
    }
};

int main(int argc, char **argv)
{
    const PrivateSettings settings;
    QApplication app(argc, argv);
    TestBatchOnAccountSet suite;
    return QTest::qExec(&suite, argc, argv);
}
#include "tst_batchdb.moc"
