#include "entrydbfixture.h"
#include "privatesettings.h"
#include "hostframe.h"
#include "scratchaccountset.h"

#include "db/sqlrun.h"
#include "fakeservices.h"
#include "entry/entrycommands.h"
#include "sheet/entrygridlayout.h"
#include "sheet/entrysheet.h"
#include "entry/icinitctl.h"
#include "sheet/navtree.h"

#include "frame/barlist.h"
#include "frame/prompter.h"
#include "frame/settingsstore.h"
#include "frame/statuspanels.h"

#include "grid/gridheader.h"
#include "grid/spreadgrid.h"

#include <QAction>
#include <QApplication>
#include <QTimer>
#include <QComboBox>
#include <QTest>
#include <QToolBar>

using namespace EntryDb;

using namespace Qt::StringLiterals;

namespace {

// What a command visibly does.
enum class Effect { Saves, AddsRow, DeletesRow, ShowsTotals, Reloads, RestoresWidths, TogglesTree, Toggles,
                    ClosesFrame, OpensFind, OpensFilter, OpensSort, OpensColors, Calculates, OpensItemLookUp, Nothing };

using KeyEffect = std::pair<const char *, Effect>;

// Every key of the control's menu and of its toolbar, and what it does in this build; the keys of
// features still to come must be disabled and do nothing.
using E = Effect;
const KeyEffect menuKeys[] = {
    {"mcFSave", E::Saves},              {"mcFPrint", E::Nothing},           {"mcFPrintPreview", E::Nothing},
    {"mcFPrintSetup", E::Nothing},      {"mcFImport", E::Nothing},          {"mcFExport", E::Nothing},
    {"mcFExportByData", E::Nothing},    {"mcFOutAdjBilll", E::Nothing},     {"mcFStartBal", E::Nothing},
    {"mcExit", E::ClosesFrame},         {"mcEAddNew", E::AddsRow},          {"mcEDelete", E::DeletesRow},
    {"mcESum", E::ShowsTotals},         {"mcEDefault", E::Toggles},         {"mcEFind", E::OpensFind},
    {"mcEFilter", E::OpensFilter},          {"mcESort", E::OpensSort},            {"mcECal", E::Calculates},
    {"mcVCheck", E::Nothing},           {"mcVBalance", E::Nothing},         {"mcVColor", E::OpensColors},
    {"mcVSearch", E::OpensItemLookUp},  {"mcVLookUp", E::OpensItemLookUp},          {"mcVRefresh", E::Reloads},
    {"mcVOrgWidth", E::RestoresWidths}, {"mcVTree", E::TogglesTree},        {"mcVSRefresh", E::Toggles},
    {"mcWToolBar", E::Toggles},         {"mcWTBLable", E::Toggles},         {"mcWStatusBar", E::Toggles},
};
const KeyEffect toolKeys[] = {
    {"Save", E::Saves},           {"Print", E::Nothing},        {"PrintPreView", E::Nothing},
    {"OutBill", E::Nothing},      {"Start", E::Nothing},        {"Exit", E::ClosesFrame},
    {"AddNew", E::AddsRow},       {"Delete", E::DeletesRow},    {"Sum", E::ShowsTotals},
    {"Find", E::OpensFind},         {"Filter", E::OpensFilter},       {"Sort", E::OpensSort},
    {"Check", E::Nothing},        {"Balance", E::Nothing},      {"Transfer", E::Nothing},
    {"Color", E::OpensColors},        {"Search", E::OpensItemLookUp},       {"Refresh", E::Reloads},
    {"TreeView", E::TogglesTree},
};

// The screw's figure in the demo company, which the rows that save or reload change.
constexpr double ScrewBegDiff = 150;

enum class Route { Menu, ToolBar, Host };

double storedBegDiff(const ScratchAccountSet &scratch, int itemId)
{
    const QString sql = QStringLiteral("SELECT FBegDiff FROM ICInvInitial WHERE FStockID=1 AND FSPID=2 AND FItemID=?");
    return SqlRun::scalar(scratch.db(), sql, {itemId}).toDouble();
}

bool run(Route route, const QString &key, ICInitCtl &control, HostFrame &host)
{
    switch (route) {
    case Route::Menu:
        control.barList()->Click(key);
        return true;
    case Route::ToolBar:
        if (auto *toolBar = control.findChild<QToolBar *>(QStringLiteral("tbICInit"))) {
            for (QAction *action : toolBar->actions()) {
                if (action->objectName() == key) {
                    action->trigger();
                    return true;
                }
            }
        }
        return false;
    case Route::Host:
        emit host.ToolBarClick(key);
        return true;
    }
    return false;
}

// A host frame showing the entry control at shelf B; null when Show failed.
std::unique_ptr<HostFrame> showAtShelfB(const ScratchAccountSet &scratch)
{
    auto host = std::make_unique<HostFrame>();
    auto *control = new ICInitCtl(host.get());
    host->show();
    if (!show(*control, scratch, host.get()))
        return {};
    control->tree()->clickNode(ShelfB);
    return host;
}

// What the commands could change, taken before and after a command that must do nothing.
struct Snapshot
{
    int rows = 0, row = 0, col = 0;
    bool treeShown = false, toolbarShown = false, labels = false, statusShown = false;
    QStringList checked;
    bool hostShown = false;
    QVector<double> sums;
    int topLevels = 0, nameWidth = 0;

    static Snapshot of(ICInitCtl &control, HostFrame &host, const ScratchAccountSet &scratch)
    {
        const SpreadGrid &grid = *control.grid();
        const BarList &bars = *control.barList();
        QStringList checked = bars.Keys();
        checked.removeIf([&bars](const QString &key) { return !bars.isChecked(key); });
        return {grid.rows(), grid.row(), grid.col(), control.tree()->isVisibleTo(&control), bars.toolbarVisible(),
                bars.toolbarLabels(), control.statusPanels()->isVisibleTo(&control), checked, host.isVisible(),
                sumsOfPlace(scratch, ShelfBId), int(QApplication::topLevelWidgets().size()),
                grid.colWidth(EntryCol::Name)};
    }

    bool operator==(const Snapshot &) const = default;
};

const SettingSpec *const viewSettings[] = {&Setting::ShowToolBar, &Setting::ShowToolBarLabel, &Setting::ShowStateBar,
                                          &Setting::ShowDefaultStock, &Setting::ShowRefresh};

} // namespace

// The entry control's commands on a temporary demo account set: every key of the command table
// through the menu, the control's toolbar and the host's toolbar; enabling by mode and by the
// state of initialisation; the view settings; the keyboard.
class TestCommandsOnAccountSet : public QObject
{
    Q_OBJECT

private:
    ScriptedPrompter m_prompter;
    // Shared by the key rows: the account set, and the control for the keys that do nothing.
    std::unique_ptr<ScratchAccountSet> m_keysSet;
    std::unique_ptr<HostFrame> m_idleHost;
    QString m_opened; // the modal dialog the last command opened

private slots:
    void initTestCase()
    {
        Prompter::install(&m_prompter);
        registerFakeCalculator();
        FakeWorld::instance().calcResult = 140.25;
        m_keysSet = std::make_unique<ScratchAccountSet>(ScratchAccountSet::Sqlite);
    }

    void cleanupTestCase()
    {
        m_idleHost.reset();
        m_keysSet.reset();
        Prompter::install(nullptr);
    }

    void init()
    {
        m_prompter.clear();
        // Only what a test changed is written back: every write rewrites and syncs the settings file.
        for (const SettingSpec *viewSetting : viewSettings) {
            if (SettingsStore::boolValue(*viewSetting) != viewSetting->defaultValue.toBool())
                SettingsStore::setValue(*viewSetting, viewSetting->defaultValue);
        }
    }

    void menusAreGroupedAsPublished()
    {
        const ICInitCtl control;
        for (const auto &[key, menu] : {std::pair{"mcFSave", "文件(&F)"}, {"mcEFind", "编辑(&E)"},
                                        {"mcVTree", "查看(&V)"}, {"mcWToolBar", "格式(&O)"}}) {
            QVERIFY2(control.barList()->item(QLatin1String(key)), key);
            QCOMPARE(control.barList()->item(QLatin1String(key))->menu, QString::fromUtf8(menu));
        }
        // A command with two published keys is drawn once.
        QSet<QString> drawn;
        for (const BarList::Item &item : control.barList()->items()) {
            if (item.kind != BarList::ItemKind::MenuItem || !item.drawn)
                continue;
            QVERIFY2(!drawn.contains(item.menu + item.caption), qPrintable(item.caption));
            drawn.insert(item.menu + item.caption);
        }
    }

    void everyKeyReachesItsProcedure_data()
    {
        QTest::addColumn<int>("route");
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("effect");
        // Each key through its own menu or toolbar and through the host's.
        const auto addRows = [](const KeyEffect &row, Route own) {
            const auto [name, effect] = row;
            const QString key = QString::fromLatin1(name);
            QTest::addRow("%s %s", own == Route::Menu ? "menu" : "toolbar", name) << int(own) << key << int(effect);
            QTest::addRow("host %s", name) << int(Route::Host) << key << int(effect);
        };
        for (const KeyEffect &row : menuKeys)
            addRows(row, Route::Menu);
        for (const KeyEffect &row : toolKeys)
            addRows(row, Route::ToolBar);
    }

    void everyKeyReachesItsProcedure()
    {
        QFETCH(int, route);
        QFETCH(QString, key);
        QFETCH(int, effect);
        // One demo account set for all rows: the screw's figure is all a row writes.
        const ScratchAccountSet &scratch = *m_keysSet;
        SqlRun::exec(scratch.db(), QStringLiteral("UPDATE ICInvInitial SET FBegDiff=? WHERE FStockID=1 AND FSPID=2 "
                                                  "AND FItemID=?"), {ScrewBegDiff, Screw});
        // A key that must do nothing leaves the control as it was, so those keys share one control;
        // every other key gets a control of its own.
        std::unique_ptr<HostFrame> ownHost;
        if (Effect(effect) != Effect::Nothing)
            ownHost = showAtShelfB(scratch);
        else if (!m_idleHost)
            m_idleHost = showAtShelfB(scratch);
        HostFrame *const shown = ownHost ? ownHost.get() : m_idleHost.get();
        QVERIFY(shown);
        HostFrame &host = *shown;
        auto *control = host.findChild<ICInitCtl *>();
        SpreadGrid &grid = *control->grid();
        const int screw = itemRow(*control, Screw);
        QVERIFY(screw > 0);
        const int defaultWidth = grid.colWidth(EntryCol::Name);
        switch (Effect(effect)) {
        case Effect::Saves:
            QVERIFY(grid.editCell(screw, EntryCol::BegDiff, 140));
            break;
        case Effect::DeletesRow:
            grid.select(screw, EntryCol::Number);
            break;
        case Effect::Calculates:
            grid.select(screw, EntryCol::BegDiff);
            break;
        case Effect::Reloads:
            SqlRun::exec(scratch.db(), QStringLiteral("UPDATE ICInvInitial SET FBegDiff=99 WHERE FItemID=?"), {Screw});
            break;
        case Effect::RestoresWidths: {
            // Dragged by the header's edge, as a person does; the next control opened remembers it.
            GridHeader *columns = nullptr;
            for (QHeaderView *header : grid.findChildren<QHeaderView *>())
                columns = columns ? columns : dynamic_cast<GridHeader *>(header);
            QVERIFY(columns);
            const int section = EntryCol::Name - Grid::FirstDataCol;
            const QPoint edge(columns->sectionViewportPosition(section) + columns->sectionSize(section) - 1,
                              columns->height() / 2);
            const QPoint dropped = edge + QPoint(77, 0);
            QTest::mousePress(columns->viewport(), Qt::LeftButton, {}, edge);
            QMouseEvent drag(QEvent::MouseMove, dropped, columns->viewport()->mapToGlobal(dropped), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(columns->viewport(), &drag);
            QTest::mouseRelease(columns->viewport(), Qt::LeftButton, {}, dropped);
            QCOMPARE(showAtShelfB(scratch)->findChild<ICInitCtl *>()->grid()->colWidth(EntryCol::Name), defaultWidth + 77);
            break;
        }
        default:
            break;
        }
        const Snapshot before = Snapshot::of(*control, host, scratch);
        const bool wasChecked = control->barList()->isChecked(key);

        // A dialog is told by its name and, for find/filter/sort, the tab it opened on; then closed.
        m_opened.clear();
        QTimer::singleShot(0, this, [this] {
            if (QWidget *modal = QApplication::activeModalWidget()) {
                const QVariant action = modal->property("CurrentAction");
                m_opened = modal->objectName() + (action.isValid() ? u" "_s + action.toString() : QString());
                modal->close();
            }
        });
        const bool ran = run(Route(route), key, *control, host);
        if (Effect(effect) != Effect::Nothing)
            QVERIFY2(ran, "the key has a button on the control's toolbar");

        switch (Effect(effect)) {
        case Effect::Saves:
            QCOMPARE(storedBegDiff(scratch, Screw), 140.0);
            QVERIFY(!control->barList()->isEnabled(key));
            break;
        case Effect::AddsRow:
            QCOMPARE(grid.rows(), before.rows + 1);
            QVERIFY(control->sheet()->isNewRow(grid.row()));
            QCOMPARE(grid.col(), int(EntryCol::Number));
            break;
        case Effect::DeletesRow:
            QCOMPARE(grid.rows(), before.rows - 1);
            QCOMPARE(itemRow(*control, Screw), 0);
            QCOMPARE(storedBegDiff(scratch, Screw), 150.0); // until it is saved
            break;
        case Effect::ShowsTotals:
            QCOMPARE(grid.row(), control->sheet()->totalsRow());
            QCOMPARE(grid.TextMatrix(grid.row(), EntryCol::Number), QStringLiteral("总计"));
            break;
        case Effect::Reloads:
            QCOMPARE(grid.number(itemRow(*control, Screw), EntryCol::BegDiff), 99.0);
            break;
        case Effect::RestoresWidths:
            QCOMPARE(grid.colWidth(EntryCol::Name), defaultWidth);
            QCOMPARE(showAtShelfB(scratch)->findChild<ICInitCtl *>()->grid()->colWidth(EntryCol::Name), defaultWidth);
            break;
        case Effect::TogglesTree:
            QCOMPARE(control->tree()->isVisibleTo(control), !before.treeShown);
            break;
        case Effect::Toggles: {
            QCOMPARE(control->barList()->isChecked(key), !wasChecked);
            const Snapshot after = Snapshot::of(*control, host, scratch);
            QCOMPARE(after.toolbarShown, key == EntryKeys::ToolBar ? !before.toolbarShown : before.toolbarShown);
            QCOMPARE(after.labels, key == EntryKeys::ToolBarLabel ? !before.labels : before.labels);
            QCOMPARE(after.statusShown, key == EntryKeys::StatusBar ? !before.statusShown : before.statusShown);
            break;
        }
        case Effect::ClosesFrame:
            QVERIFY(host.closedByKey());
            QVERIFY(!host.isVisible());
            break;
        case Effect::OpensFind: case Effect::OpensFilter: case Effect::OpensSort: {
            const int action = effect - int(Effect::OpensFind);
            QCOMPARE(m_opened, u"frmFindFilterSort %1"_s.arg(action));
            break;
        }
        case Effect::OpensColors:
            QCOMPARE(m_opened, u"frmColorManager"_s);
            break;
        case Effect::Calculates: // the question to write the result back, answered No
            QCOMPARE(m_prompter.messages().size(), 1);
            QCOMPARE(storedBegDiff(scratch, Screw), ScrewBegDiff);
            break;
        case Effect::OpensItemLookUp:
            QCOMPARE(m_opened, u"frmItemLookUp"_s);
            QCOMPARE(grid.rows(), before.rows); // cancelled: no row is added
            break;
        case Effect::Nothing:
            QVERIFY(!control->barList()->isEnabled(key) || !control->barList()->isVisible(key));
            QVERIFY(Snapshot::of(*control, host, scratch) == before);
            QVERIFY(m_prompter.messages().isEmpty());
            break;
        }
    }

    void toggleClickedTwiceKeepsTheSavedSetting_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("setting"); // its place in viewSettings
        const QString keys[] = {EntryKeys::ToolBar, EntryKeys::ToolBarLabel, EntryKeys::StatusBar,
                                EntryKeys::DefaultStock, EntryKeys::AutoRefresh};
        for (int i = 0; i < 5; ++i)
            QTest::newRow(viewSettings[i]->key) << keys[i] << i;
    }

    void toggleClickedTwiceKeepsTheSavedSetting()
    {
        QFETCH(QString, key);
        QFETCH(int, setting);
        const SettingSpec *viewSetting = viewSettings[setting];
        // Stored the other way round from the default, so that a reset to defaults would show.
        const bool stored = !viewSetting->defaultValue.toBool();
        SettingsStore::setValue(*viewSetting, stored);
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        HostFrame host;
        ICInitCtl control;
        QVERIFY(show(control, scratch, &host));
        QCOMPARE(control.barList()->isChecked(key), stored);
        // The warehouse box names a warehouse only when the default one opens.
        QCOMPARE(control.findChild<QComboBox *>(QStringLiteral("cbStock"))->currentIndex() >= 0,
                 SettingsStore::boolValue(Setting::ShowDefaultStock));
        control.tree()->clickNode(ShelfB); // the default-stock toggle is offered at places with rows
        const int redraws = host.menuBarsReceived();
        QVERIFY(control.barList()->Click(key));
        QCOMPARE(control.barList()->isChecked(key), !stored);
        emit host.ToolBarClick(key);
        QCOMPARE(control.barList()->isChecked(key), stored);
        QCOMPARE(host.menuBarsReceived(), redraws + 2);
        control.NotifyMessage(QStringLiteral("QueryUnload"), {});
        QCOMPARE(SettingsStore::boolValue(*viewSetting), stored);
    }

    void enablingFollowsModeAndInitialisation_data()
    {
        QTest::addColumn<bool>("closed");
        QTest::newRow("initialisation open") << false;
        QTest::newRow("initialisation closed") << true;
    }

    void enablingFollowsModeAndInitialisation()
    {
        QFETCH(bool, closed);
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        setParameter(scratch, QStringLiteral("ICClosed"), closed ? 1 : 0);
        const auto host = showAtShelfB(scratch);
        QVERIFY(host);
        ICInitCtl &control = *host->findChild<ICInitCtl *>();
        BarList &bars = *control.barList();
        for (const char *key : {"mcEAddNew", "AddNew", "mcEDelete", "Delete"})
            QVERIFY2(bars.isEnabled(QLatin1String(key)) == !closed, key);
        QVERIFY(bars.isEnabled(QStringLiteral("mcESum")));

        // A typed figure enables Save only while initialisation is open.
        const int screw = itemRow(control, Screw);
        QVERIFY(control.grid()->editCell(screw, EntryCol::BegDiff, 140));
        QCOMPARE(bars.isEnabled(EntryKeys::Save), !closed);
        QCOMPARE(bars.isEnabled(EntryKeys::FSave), !closed);
        QCOMPARE(bars.Click(EntryKeys::FSave), !closed);
        emit host->ToolBarClick(EntryKeys::Save);
        QCOMPARE(storedBegDiff(scratch, Screw), closed ? 150.0 : 140.0);

        // Reconciliation enters no rows.
        control.switchMode(true);
        for (const char *key : {"mcEAddNew", "AddNew", "mcEDelete", "Delete", "mcESum", "Sum", "mcFSave", "Save"})
            QVERIFY2(!bars.isEnabled(QLatin1String(key)), key);
        control.switchMode(false);
        QCOMPARE(bars.isEnabled(QStringLiteral("AddNew")), !closed);
        QVERIFY(bars.isEnabled(QStringLiteral("Sum")));
        QVERIFY(!bars.isEnabled(EntryKeys::Save));
    }

    void reconciliationCommandsNeedAmounts_data()
    {
        QTest::addColumn<int>("auditChoice");
        QTest::newRow("quantities only") << 0;
        QTest::newRow("quantities and amounts") << 1;
    }

    void reconciliationCommandsNeedAmounts()
    {
        QFETCH(int, auditChoice);
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        setParameter(scratch, QStringLiteral("AuditChoice"), auditChoice);
        const auto host = showAtShelfB(scratch);
        QVERIFY(host);
        ICInitCtl &control = *host->findChild<ICInitCtl *>();
        const BarList &bars = *control.barList();
        for (const char *key : {"mcVCheck", "Check", "mcVBalance", "Balance", "Transfer"})
            QVERIFY2(bars.isVisible(QLatin1String(key)) == (auditChoice != 0), key);
        // Quantities alone keep no amounts to show.
        for (int col : {EntryCol::YtdBegBal, EntryCol::Debit, EntryCol::Credit, EntryCol::BegBal})
            QCOMPARE(control.grid()->colHidden(col), auditChoice == 0);
        QVERIFY(!control.grid()->colHidden(EntryCol::BegQty));
        // The entry commands are there either way.
        for (const char *key : {"mcEAddNew", "AddNew", "mcESum", "Sum", "mcFSave", "Save"})
            QVERIFY2(bars.isVisible(QLatin1String(key)), key);
        // The root and a warehouse with stock places take no rows, whatever the accounting.
        for (const char *node : {"K0", "K1"}) {
            control.tree()->clickNode(QLatin1String(node));
            QCOMPARE(control.statusPanels()->panelText(2).isEmpty(), QByteArray(node) == "K0");
            for (const char *key : {"mcVBalance", "Balance", "AddNew", "mcFSave", "SP2"})
                QVERIFY2(!bars.isVisible(QLatin1String(key)), key);
        }
    }

    void calculatorResultGoesIntoTheCurrentCell_data()
    {
        QTest::addColumn<int>("col");
        QTest::addColumn<double>("result"); // NaN: the calculator closed without one
        QTest::addColumn<bool>("yes");
        QTest::addColumn<QString>("refusal"); // the message after the question
        QTest::addColumn<QString>("shown");   // the cell afterwards; empty: as it was

        const double none = qQNaN();
        const QString negative = QStringLiteral("录入的数据[数量<0]！\r\n但账套不允许负结存,因此数量不能<0！\r\n"
                                                "数据非法！请重新录入！");
        QTest::newRow("yes writes") << int(EntryCol::BegDiff) << 140.25 << true << QString() << "140.25";
        QTest::newRow("no keeps") << int(EntryCol::BegDiff) << 140.25 << false << QString() << QString();
        QTest::newRow("no result, no question") << int(EntryCol::BegDiff) << none << true << QString() << QString();
        QTest::newRow("refused as if typed") << int(EntryCol::BegQty) << -5.0 << true << negative << QString();
        QTest::newRow("out of range") << int(EntryCol::BegDiff) << 1e13 << true
                                      << QStringLiteral("计算结果 10000000000000 超出 [期初差异] 列的取值范围，不能回填。")
                                      << QString();
        QTest::newRow("locked cell") << int(EntryCol::Name) << 3.0 << true
                                     << QStringLiteral("计算结果 3 不能回填到 [物料名称] 列。") << QString();
    }

    void calculatorResultGoesIntoTheCurrentCell()
    {
        QFETCH(int, col);
        QFETCH(double, result);
        QFETCH(bool, yes);
        QFETCH(QString, refusal);
        QFETCH(QString, shown);
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        setParameter(scratch, QStringLiteral("UnderStock"), 0);
        const auto host = showAtShelfB(scratch);
        QVERIFY(host);
        ICInitCtl &control = *host->findChild<ICInitCtl *>();
        SpreadGrid &grid = *control.grid();
        const int screw = itemRow(control, Screw);
        QVERIFY(grid.select(screw, col));
        const QString before = grid.TextMatrix(screw, col);
        FakeWorld::instance().calcResult = qIsNaN(result) ? std::nullopt : std::optional(result);
        m_prompter.queueAnswer(yes ? Prompter::Answer::Yes : Prompter::Answer::No);
        QVERIFY(control.barList()->Click(EntryKeys::ECal));
        FakeWorld::instance().calcResult = 140.25;

        QList<Prompter::Message> asked = m_prompter.messages();
        if (!qIsNaN(result)) {
            QVERIFY(!asked.isEmpty());
            const Prompter::Message question = asked.takeFirst();
            QCOMPARE(question.text, QStringLiteral("是否回填计算结果到 [%1] 列。").arg(grid.TextMatrix(0, col)));
            QCOMPARE(question.caption, QStringLiteral("系统提示"));
            QVERIFY(question.buttons == Prompter::Buttons::YesNo && question.icon == Prompter::Icon::Question);
        }
        QCOMPARE(asked.isEmpty() ? QString() : asked.first().text, refusal);
        QCOMPARE(grid.TextMatrix(screw, col), shown.isEmpty() ? before : shown);
    }

    void keysRunTheCommandOfTheirAccelerator()
    {
        ScratchAccountSet scratch(ScratchAccountSet::Sqlite);
        const auto host = showAtShelfB(scratch);
        QVERIFY(host);
        ICInitCtl &control = *host->findChild<ICInitCtl *>();
        SpreadGrid &grid = *control.grid();
        const int rows = grid.rows();

        QTest::keyClick(&control, Qt::Key_A); // no command has it
        QCOMPARE(grid.rows(), rows);
        QTest::keyClick(&control, Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(grid.rows(), rows + 1);

        SqlRun::exec(scratch.db(), QStringLiteral("UPDATE ICInvInitial SET FBegDiff=99 WHERE FItemID=?"), {Screw});
        QTest::keyClick(&control, Qt::Key_F5); // reloads; the empty new row goes without a question
        QCOMPARE(grid.rows(), rows);
        QCOMPARE(grid.number(itemRow(control, Screw), EntryCol::BegDiff), 99.0);

        QVERIFY(grid.editCell(itemRow(control, Screw), EntryCol::BegDiff, 140));
        QTest::keyClick(&control, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(storedBegDiff(scratch, Screw), 140.0);
    }
};

int main(int argc, char **argv)
{
    // The view settings this suite's controls save stay with this process.
    const PrivateSettings settings;
    QApplication app(argc, argv);
    TestCommandsOnAccountSet suite;
    return QTest::qExec(&suite, argc, argv);
}
#include "tst_commandsdb.moc"
