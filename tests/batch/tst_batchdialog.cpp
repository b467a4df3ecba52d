#include "fakeservices.h"

#include "batch/batchsession.h"
#include "batch/frmbatchmanager.h"

#include "frame/librarystate.h"
#include "frame/logincontext.h"
#include "frame/prompter.h"
#include "frame/settingsstore.h"
#include "frame/sysparams.h"

#include "frame/automation/dictionary.h"

#include "grid/spreadgrid.h"

#include <QAction>
#include <QProgressBar>
#include <QStandardPaths>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>

namespace {

const QString CRLF = QStringLiteral("\r\n");
const QColor LockedLineColor{200, 220, 240};
const QString Caption = QStringLiteral("澄枫提示");

// Grid columns as the dialog publishes them.
enum Col {
    BatchNo = 1, YtdQty = 2, YtdSecQty = 3, YtdBal = 4, RecvQty = 6, RecvBal = 8, SendQty = 10, BegQty = 14,
    BegSecQty = 15, BegBal = 16, StockIn = 18, Flag = 20, KFDate = 22, KFPeriod = 23
};

// One stored line whose year opening equals its period opening.
QVariantList record(const QString &batch, double qty, double amount, int snList = 0, bool locked = false,
                    const QVariant &kfDate = {}, const QVariant &stockIn = QStringLiteral("2024-01-01"))
{
    const QVariant kfPeriod = kfDate.isValid() ? QVariant(180) : QVariant();
    return {2,   locked, batch, 1,      qty, 0, amount,  0,       0,       0,     0,
            0,   0,      0,     0,      0,   qty, 0,     amount,  0,       0,     stockIn,
            kfDate, kfPeriod, snList};
}

void setParams(const QVariantMap &changes = {})
{
    auto params = std::make_unique<Dictionary>();
    QVariantMap values{{QStringLiteral("CurrentPeriod"), 1}, {QStringLiteral("QtyDecimal"), 2},
                       {QStringLiteral("AuditChoice"), 1},   {QStringLiteral("ShareBal"), 0},
                       {QStringLiteral("UnderStock"), 0},    {QStringLiteral("CPStartDate"), QStringLiteral("01012024")}};
    for (auto it = changes.begin(); it != changes.end(); ++it)
        values.insert(it.key(), it.value());
    for (auto it = values.begin(); it != values.end(); ++it)
        params->Add(it.key(), it.value());
    SysParams::replace(std::move(params));
}

} // namespace

// The batch dialog end to end: handed over, opened, typed into and saved like a person does,
// against fake services that record what would reach the database.
class TestBatchDialog : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        registerFakeServices();
        Prompter::install(&m_prompter);
    }

    void init()
    {
        FakeWorld::instance().reset();
        m_prompter.clear();
        setParams();
        // The record counter starts where the parameters leave it, as when they are read.
        LibraryState::instance().iniBillInterId = 0;
        LoginContext::instance().reset();
    }

    void cleanup()
    {
        QCOMPARE(m_prompter.pendingAnswers(), 0);
    }

    void opensWithLinesAndTotals()
    {
        FakeWorld &world = FakeWorld::instance();
        world.detailRows = {record(QStringLiteral("B1"), 10, 500), record(QStringLiteral("B2"), 20.5, 1000.125)};
        const auto dialog = openDialog(true, false);
        SpreadGrid &grid = *dialog->grid();

        QCOMPARE(world.executed.size(), 2);
        QCOMPARE(world.executed[0], QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID=1"));
        QCOMPARE(world.executed[1],
                 QStringLiteral("select isnull((SELECT t2.FCoefficient AS FCoefficient") + CRLF
                     + QStringLiteral(" FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID")
                     + CRLF + QStringLiteral(" WHERE t1.FItemID = 3057 AND t2.FMeasureUnitID=7),0),") + CRLF
                     + QStringLiteral(" isnull((SELECT ISNULL(t2.FCoefficient,0) AS FCoefficient") + CRLF
                     + QStringLiteral(" FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID")
                     + CRLF + QStringLiteral(" WHERE t1.FItemID = 3057 AND t2.fmeasureunitid= 0),0)"));
        QCOMPARE(world.detailCalls.size(), 1);
        QCOMPARE(world.detailCalls[0], (QVariantList{world.propsString, 1, 12, 3, 3057, 0, 7, true, false,
                                                     QStringLiteral("12|3|1|3057|0")}));

        // Two lines and the totals row under the header.
        QCOMPARE(grid.rows(), 4);
        QCOMPARE(grid.TextMatrix(1, BatchNo), QStringLiteral("B1"));
        QCOMPARE(grid.TextMatrix(2, BegBal), QStringLiteral("1,000.13"));
        QCOMPARE(grid.TextMatrix(3, BatchNo), QStringLiteral("合计"));
        QCOMPARE(grid.TextMatrix(3, BegQty), QStringLiteral("30.50"));
        QCOMPARE(grid.TextMatrix(3, BegBal), QStringLiteral("1,500.13"));
        QCOMPARE(grid.cellBackColor(3, BegQty), SettingsStore::colorValue(Setting::SumColor));
        QVERIFY(!grid.editCell(3, BegQty, 1));
        QCOMPARE(grid.value(1, StockIn).toDate(), QDate(2024, 1, 1));

        QCOMPARE(dialog->objectName(), QStringLiteral("frmBatchManager"));
        QCOMPARE(grid.objectName(), QStringLiteral("vsBatMan"));
        const auto *tabs = dialog->findChild<QTabBar *>(QStringLiteral("sstBatMan"));
        QVERIFY(tabs);
        QCOMPARE(tabs->tabText(0), QStringLiteral("批号/数量/金额"));
        QVERIFY(dialog->findChild<QProgressBar *>(QStringLiteral("pbBatMan")));
        const auto *toolBar = dialog->findChild<QToolBar *>(QStringLiteral("tbBatMan"));
        QVERIFY(toolBar);
        QStringList keys;
        for (const QAction *action : toolBar->actions())
            keys.append(action->objectName());
        QCOMPARE(keys, (QStringList{"AddNew", "ShareBal", "Balance", "Delete", "Save", "Exit"}));
        // A FIFO item is not apportioned.
        QVERIFY(!dialog->button(QStringLiteral("ShareBal"))->isEnabled());
        QVERIFY(!dialog->pressButton(QStringLiteral("ShareBal")));
        QVERIFY(!dialog->pressButton(QStringLiteral("Nonsense")));
    }

    void lockedLineStaysReadOnly()
    {
        FakeWorld::instance().detailRows = {record(QStringLiteral("B1"), 10, 500, 0, true),
                                             record(QStringLiteral("B2"), 5, 50)};
        const auto dialog = openDialog(true, false);
        SpreadGrid &grid = *dialog->grid();

        QCOMPARE(grid.cellBackColor(1, BegQty), LockedLineColor);
        QVERIFY(!grid.editCell(1, BegQty, 11));
        QVERIFY(!grid.editCell(1, BatchNo, QStringLiteral("B9")));
        QVERIFY(grid.editCell(2, BegQty, 6));

        grid.select(1, BegQty);
        QVERIFY(dialog->pressButton(QStringLiteral("Delete")));
        QCOMPARE(grid.rows(), 4);
        QCOMPARE(grid.TextMatrix(1, BatchNo), QStringLiteral("B1"));
    }

    void hiddenColumns_data()
    {
        QTest::addColumn<int>("auditChoice");
        QTest::addColumn<int>("track");
        QTest::addColumn<int>("secUnit");
        QTest::addColumn<bool>("amountsHidden");
        QTest::addColumn<bool>("differencesHidden");
        QTest::addColumn<bool>("secondaryHidden");

        QTest::newRow("quantities only") << 0 << 78 << 0 << true << true << true;
        QTest::newRow("quantity and amount") << 1 << 78 << 0 << false << false << true;
        QTest::newRow("planned cost") << 1 << 81 << 0 << false << false << true;
        QTest::newRow("planned cost, quantities only") << 0 << 81 << 0 << true << true << true;
        QTest::newRow("with secondary unit") << 1 << 78 << 8 << false << false << false;
    }

    void hiddenColumns()
    {
        QFETCH(int, auditChoice);
        QFETCH(int, track);
        QFETCH(int, secUnit);
        QFETCH(bool, amountsHidden);
        QFETCH(bool, differencesHidden);
        QFETCH(bool, secondaryHidden);

        setParams({{QStringLiteral("AuditChoice"), auditChoice}});
        auto dialog = openDialog(true, false, track);
        dialog->setProperty("CurrentSecUnitID", secUnit);
        dialog->prepare();
        const SpreadGrid &grid = *dialog->grid();
        for (int col : {4, 8, 12, 16})
            QCOMPARE(grid.colHidden(col), amountsHidden);
        for (int col : {5, 9, 13, 17})
            QCOMPARE(grid.colHidden(col), differencesHidden);
        for (int col : {3, 7, 11, 15})
            QCOMPARE(grid.colHidden(col), secondaryHidden);
        for (int col : {1, 2, 6, 10, 14, 18})
            QVERIFY(!grid.colHidden(col));
        for (int col : {19, 20, 21, 24})
            QVERIFY(grid.colHidden(col));
        // Production date and shelf life belong to shelf-life items only.
        for (int col : {22, 23})
            QVERIFY(grid.colHidden(col));
    }

    void emptyItemNeedsAddNew()
    {
        const auto dialog = openDialog(true, true);
        SpreadGrid &grid = *dialog->grid();
        QCOMPARE(grid.rows(), 2);
        QCOMPARE(grid.TextMatrix(1, BatchNo), QStringLiteral("合计"));
        QVERIFY(!grid.editCell(1, BegQty, 5));

        QVERIFY(dialog->pressButton(QStringLiteral("AddNew")));
        QCOMPARE(grid.rows(), 3);
        QCOMPARE(grid.value(1, StockIn).toDate(), QDate(2024, 1, 1)); // "CPStartDate" 01012024
        QCOMPARE(grid.number(1, KFPeriod), 180.0);
        QCOMPARE(grid.TextMatrix(1, Flag), QStringLiteral("1"));
        QCOMPARE(grid.row(), 1);
        QCOMPARE(grid.col(), int(BatchNo));

        QVERIFY(grid.editCell(1, BegQty, 5));
        QCOMPARE(grid.TextMatrix(2, BegQty), QStringLiteral("5.00"));
        // The amount is still to come: no warning of a zero amount in the middle of the pair.
        QVERIFY(m_prompter.messages().isEmpty());
    }

    void apportionedQuantityOfANewLineIsAccepted()
    {
        setParams({{QStringLiteral("ShareBal"), 1}});
        FakeWorld::instance().detailRows = {record(QStringLiteral("B1"), 1, 10)};
        const auto dialog = openDialog(true, false, 76);
        SpreadGrid &grid = *dialog->grid();
        QVERIFY(dialog->pressButton(QStringLiteral("ShareBal")));
        const int input = grid.row();
        QVERIFY(grid.editCell(input, BegBal, 100));
        QVERIFY(dialog->pressButton(QStringLiteral("AddNew")));
        const int added = grid.row();
        QCOMPARE(added, 2);
        QVERIFY(grid.editCell(added, BatchNo, QStringLiteral("B2")));

        // The quantity is typed before any amount of the line: its share of the total comes with it,
        // so the pair is judged with the amount and nobody is warned of a zero amount.
        QVERIFY(grid.editCell(added, BegQty, 3));
        QCOMPARE(m_prompter.messages().size(), 0);
        QCOMPARE(grid.TextMatrix(1, BegBal), QStringLiteral("25.00"));
        QCOMPARE(grid.TextMatrix(added, BegBal), QStringLiteral("75.00"));
    }

    void quantityEditsFillDependentCells()
    {
        FakeWorld::instance().unitCoefficient = 1;
        FakeWorld::instance().secCoefficient = 0.5;
        auto dialog = openDialog(true, false, 81);
        dialog->setProperty("CurrentSecUnitID", 8);
        dialog->prepare();
        SpreadGrid &grid = *dialog->grid();
        dialog->pressButton(QStringLiteral("AddNew"));

        // Planned cost: the amount follows quantity x planned price 2.5; the secondary quantity
        // follows the coefficients (1 entry unit = 2 secondary units).
        QVERIFY(grid.editCell(1, BegQty, 4));
        QCOMPARE(grid.number(1, BegBal), 10.0);
        QCOMPARE(grid.number(1, BegSecQty), 8.0);
        QVERIFY(grid.editCell(1, YtdSecQty, 6));
        QCOMPARE(grid.number(1, YtdQty), 3.0);
        QCOMPARE(grid.number(1, YtdBal), 7.5);
        QCOMPARE(grid.TextMatrix(2, YtdBal), QStringLiteral("7.50"));
    }

    void refusedGroupKeepsTheFigure()
    {
        FakeWorld::instance().detailRows = {record(QStringLiteral("B1"), 10, 500)};
        const auto dialog = openDialog(true, false);
        SpreadGrid &grid = *dialog->grid();

        // Negative stock is not allowed: the user is told at once, the figure stays to be corrected.
        QVERIFY(grid.editCell(1, SendQty, -5));
        QCOMPARE(m_prompter.messages().size(), 1);
        QCOMPARE(m_prompter.messages()[0].text,
                 QStringLiteral("录入的数据[数量<0]！\r\n但账套不允许负结存,因此数量不能<0！\r\n数据非法！请重新录入！"));
        QCOMPARE(grid.number(1, SendQty), -5.0);
        QCOMPARE(grid.TextMatrix(1, Flag), QStringLiteral("1"));
        QCOMPARE(grid.col(), int(SendQty));

        // And the save refuses the line.
        dialog->pressButton(QStringLiteral("Save"));
        QVERIFY(FakeWorld::instance().scripts.isEmpty());
        QCOMPARE(m_prompter.messages().size(), 2);
    }

    void saveScriptReachesTheService()
    {
        FakeWorld::instance().detailRows = {
            record(QStringLiteral("A'1"), 10, 500, 0, false, QStringLiteral("2023-12-20"), QVariant(QDate(2024, 1, 5)))};
        const auto dialog = openDialog(true, true);
        SpreadGrid &grid = *dialog->grid();
        QVERIFY(grid.editCell(1, RecvBal, 100.123456789012));
        QVERIFY(grid.editCell(1, RecvQty, 2));
        QVERIFY(grid.editCell(1, YtdQty, 8));
        QVERIFY(grid.editCell(1, YtdBal, QStringLiteral("399.876543211")));
        QVERIFY(dialog->pressButton(QStringLiteral("Save")));

        // The statement's columns are the script builder's; here the dialog's figures must reach it.
        QCOMPARE(FakeWorld::instance().scripts.size(), 1);
        QVERIFY2(FakeWorld::instance().scripts.first().endsWith(
                     QStringLiteral(" Values('0',1,12,3,3057,7,'A''1',8,399.876543211,0,2,100.123456789,0,0,0,0,10,500,0,1,"
                                    "'2023-12-20',180,0,0,0,0,'2024-01-05',0,0,0,0,'12|3|1|3057|0')")),
                 qPrintable(FakeWorld::instance().scripts.first()));
        QCOMPARE(FakeWorld::instance().updateProps, QStringList{FakeWorld::instance().propsString});

        // Saved: nothing is pending any more, and closing asks nothing.
        QCOMPARE(grid.TextMatrix(1, Flag), QString());
        QVERIFY(!dialog->session()->hasChanges());
        const qsizetype asked = m_prompter.messages().size();
        QVERIFY(dialog->pressButton(QStringLiteral("Exit")));
        QCOMPARE(m_prompter.messages().size(), asked);
    }

    void failedSaveKeepsTheChanges()
    {
        FakeWorld::instance().detailRows = {record(QStringLiteral("B1"), 10, 500)};
        FakeWorld::instance().failUpdate = true;
        const auto dialog = openDialog(true, false);
        QVERIFY(dialog->grid()->editCell(1, BatchNo, QStringLiteral("B5")));
        QVERIFY(dialog->pressButton(QStringLiteral("Save")));

        QVERIFY(!dialog->SavedBatMan());
        QCOMPARE(m_prompter.messages().size(), 1);
        QVERIFY(m_prompter.messages()[0].text.startsWith(QStringLiteral("系统在调用函数SaveBatManDetail()时发生错误\r\n")));
        QVERIFY(m_prompter.messages()[0].text.contains(UpdateFailure));
        QVERIFY(dialog->session()->hasChanges());
        QCOMPARE(dialog->grid()->TextMatrix(1, BatchNo), QStringLiteral("B5"));

        FakeWorld::instance().failUpdate = false;
        QVERIFY(dialog->pressButton(QStringLiteral("Save")));
        QCOMPARE(FakeWorld::instance().scripts.size(), 1);
        QVERIFY(dialog->SavedBatMan());
    }

    void failedLoadIsReported()
    {
        FakeWorld::instance().detailRows = {record(QStringLiteral("B1"), 10, 500)};
        FakeWorld::instance().failDetail = true;
        const auto dialog = openDialog(true, false);

        QCOMPARE(m_prompter.messages().size(), 1);
        QCOMPARE(m_prompter.messages()[0].text,
                 QStringLiteral("系统在调用函数FillBatManDetailByRs()时发生错误\r\n错误原因：") + DetailFailure
                     + QStringLiteral("\r\n错误来源：FakeData"));
        QCOMPARE(dialog->grid()->rows(), 2);
        QCOMPARE(dialog->grid()->TextMatrix(1, BatchNo), QStringLiteral("合计"));
    }

    void showDialogRunsModally()
    {
        FakeWorld::instance().detailRows = {record(QStringLiteral("B1"), 10, 500)};
        auto dialog = openDialog(true, false);
        QTimer::singleShot(0, dialog.get(), [&dialog] {
            dialog->grid()->editCell(1, BatchNo, QStringLiteral("B7"));
            dialog->pressButton(QStringLiteral("Save"));
            dialog->pressButton(QStringLiteral("Exit"));
        });
        QCOMPARE(dialog->ShowDialog(), int(QDialog::Accepted));
        QVERIFY(dialog->property("SavedBatMan").toBool());
        QCOMPARE(FakeWorld::instance().detailCalls.size(), 2); // opened again by ShowDialog
    }

private:
    // A dialog opened for item 3057 in warehouse 12, stock place 3, with the records queued in
    // the fake data service.
    std::unique_ptr<frmBatchManager> openDialog(bool batch, bool shelfLife, int track = 78)
    {
        m_itemKey = std::make_unique<Dictionary>();
        const QVariantMap values{{QStringLiteral("ID"), 3057},          {QStringLiteral("ShortNum"), QStringLiteral("LZB")},
                                 {QStringLiteral("Num"), QStringLiteral("01.002")},
                                 {QStringLiteral("Name"), QStringLiteral("冷轧板")},
                                 {QStringLiteral("Model"), QStringLiteral("1.0mm")},
                                 {QStringLiteral("FBM"), batch},            {QStringLiteral("FKF"), shelfLife},
                                 {QStringLiteral("Track"), track},          {QStringLiteral("PlanPrice"), 2.5},
                                 {QStringLiteral("UnitID"), 7},             {QStringLiteral("QtyDecimal"), 2},
                                 {QStringLiteral("PriceDecimal"), 4},       {QStringLiteral("KFPeriod"), 180},
                                 {QStringLiteral("SecUnitID"), 0},          {QStringLiteral("SecCoefficient"), 0},
                                 {QStringLiteral("AuxPropID"), 0}};
        for (auto it = values.begin(); it != values.end(); ++it)
            m_itemKey->Add(it.key(), it.value());

        auto dialog = std::make_unique<frmBatchManager>();
        dialog->setProperty("BMItemKey", QVariant::fromValue<QObject *>(m_itemKey.get()));
        dialog->setProperty("CurrentBMStock", 12);
        dialog->setProperty("CurrentBMSPlace", 3);
        dialog->setProperty("CurrentBMItem", 3057);
        dialog->setProperty("CurrentUnitID", 7);
        dialog->setProperty("CurrentSecUnitID", 0);
        dialog->setProperty("FieldCompose", QStringLiteral("12|3|1|3057|0"));
        dialog->setProperty("LVSColor", int(SettingsStore::rgbNumber(LockedLineColor)));
        dialog->prepare();
        return dialog;
    }

    ScriptedPrompter m_prompter;
    std::unique_ptr<Dictionary> m_itemKey;
};

QTEST_MAIN(TestBatchDialog)
#include "tst_batchdialog.moc"
