#include "fakeservices.h"

#include "adjust/icinitadjctl.h"
#include "entry/icinitctl.h"
#include "sheet/navtree.h"
#include "sheet/warehousetable.h"

#include "frame/barlist.h"
#include "frame/controlcollection.h"
#include "frame/librarystate.h"
#include "frame/logincontext.h"
#include "frame/prompter.h"
#include "frame/settingsstore.h"
#include "frame/statuspanels.h"
#include "frame/sysparams.h"
#include "frame/viewtoggles.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/pelmreg.h"
#include "frame/automation/recordset.h"

#include "grid/spreadgrid.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {

// The host window as the suite hands it to Show.
class FakeHostWindow : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE void SetMenuBar(QObject *barList) { received.append(barList); }
    QList<QObject *> received;
signals:
    void ToolBarClick(const QString &key);
};

QVariantList stock(int id, int parent, int place, const QString &name, const QString &number, int isStockMgr,
                   int type = 500)
{
    return {id, parent, place, name, number, number, isStockMgr, type};
}

} // namespace

class TestICInitCtl : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_install;
    ScriptedPrompter m_prompter;
    FakeHostWindow m_host;

    void useDemoStocks()
    {
        FakeWorld::instance().stocks = {
            stock(12, 0, 0, QStringLiteral("原材料仓"), QStringLiteral("01"), 1),
            stock(12, 12, 3, QStringLiteral("A区货架"), QStringLiteral("01.01"), 0),
            stock(5, 0, 0, QStringLiteral("成品仓"), QStringLiteral("02"), 0),
            stock(8, 0, 0, QStringLiteral("代管仓"), QStringLiteral("03"), 0, 502),
        };
    }

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        registerFakeServices();
        Prompter::install(&m_prompter);
        QVERIFY(QDir(m_install.path()).mkpath(QStringLiteral("Common")));
        QFile scheme(QDir(m_install.path()).filePath(QStringLiteral("Common/LumoBaseScheme.ini")));
        QVERIFY(scheme.open(QIODevice::WriteOnly) && scheme.write("[Version]\nAppType=2\nHangYeType=0\n") > 0);
        qputenv(PelmReg::InstallPathEnv, m_install.path().toLocal8Bit());
    }

    void cleanupTestCase() { Prompter::install(nullptr); }

    void init()
    {
        FakeWorld::instance().reset();
        LoginContext::instance().reset();
        m_prompter.clear();
        m_host.received.clear();
        useDemoStocks();
        for (const ViewToggle &toggle : viewToggles())
            SettingsStore::setValue(*toggle.setting, toggle.setting->defaultValue);
    }

    void treeKeysFollowTheWarehouseTable()
    {
        const std::unique_ptr<Recordset> rs(FakeWorld::instance().stockRecords());
        const QVector<WarehouseEntry> table = WarehouseTree::buildTable(*rs);
        QCOMPARE(table.size(), 5);
        QCOMPARE((std::tuple{table.first().thirdText, table.first().firstText, table.first().isStockMgr}),
                 (std::tuple{QStringLiteral("-----.全部仓库.------"), QStringLiteral("All"), qint16(1)}));
        // The control's tree is checked node by node below; here the link back to the table.
        const QVector<TreeNodeSpec> nodes = WarehouseTree::nodes(table);
        QCOMPARE((std::pair{nodes.at(0).text, nodes.at(2).tableIndex}), (std::pair{QStringLiteral("全部仓库"), 2}));
    }

    void showForATestHostLoadsTheFirstNode()
    {
        ICInitCtl control;
        QVERIFY(control.Show(nullptr, true));
        QCOMPARE(FakeWorld::instance().taskExecCalls, 0);
        QCOMPARE(FakeWorld::instance().commitCalls, 0); // handle 0: nothing to commit
        QCOMPARE((std::pair{control.tree()->selectedKey(), control.currentNode()}), (std::pair{QStringLiteral("K0"), 0}));
        QVERIFY(SysParams::current());
        QCOMPARE(FakeWorld::instance().stockTypeArguments, QStringList{QStringLiteral("(500,502,20291,20293)")});
        // The root takes no rows: the entry commands are hidden there.
        QVERIFY(!control.barList()->isVisible(QStringLiteral("mcEAddNew")));
        QVERIFY(!control.barList()->isVisible(QStringLiteral("Save")));
    }

    void showWithoutHostWindowReturnsFalseEarly()
    {
        ICInitCtl control;
        QVERIFY(!control.Show(nullptr, false));
        QCOMPARE(FakeWorld::instance().taskExecCalls, 1);
        QCOMPARE(FakeWorld::instance().dataObjectsCreated, 0);
        QCOMPARE(FakeWorld::instance().commitCalls, 0); // the registered task stays uncommitted
        QCOMPARE(control.tree()->nodeCount(), 0);
    }

    void showInAHostBuildsTitleTreeAndCommits()
    {
        ICInitCtl control;
        QVERIFY(control.Show(&m_host, false));
        QCOMPARE(m_host.received, QList<QObject *>{control.barList()});
        QCOMPARE(FakeWorld::instance().committed, QList<int>{7});
        QVERIFY(!control.barList()->isVisible(QStringLiteral("AddNew"))); // no place shown yet
        QCOMPARE((QStringList{control.findChild<QLabel *>(QStringLiteral("lblTitle"))->text(),
                              control.findChild<QLabel *>(QStringLiteral("lblStock"))->text(), control.statusPanels()->panelText(1)}),
                 (QStringList{QStringLiteral("存货初始数据录入"), QStringLiteral("仓    库:"), QStringLiteral("就绪")}));
        NavTree *tree = control.tree();
        QCOMPARE(tree->nodeKeys(), QStringList({"K0", "K12", "K12P3", "K5", "K8"}));
        QCOMPARE(QStringLiteral("%1 %2 %3 %4 %5 %6")
                     .arg(tree->nodeParent(QStringLiteral("K12P3")), tree->nodeParent(QStringLiteral("K5")),
                          tree->nodeText(QStringLiteral("K12P3")))
                     .arg(tree->nodeTag(QStringLiteral("K8"))).arg(tree->nodeImage(QStringLiteral("K5")))
                     .arg(tree->nodeSelectedImage(QStringLiteral("K5"))),
                 QStringLiteral("K12 K0 01.01|A区货架[仓位] 4 21 22"));
        QCOMPARE(control.amountScale(), qint16(2));
        QVERIFY(control.measureUnits());
    }

    void treeWithOnlyTheRoot()
    {
        FakeWorld::instance().stocks.clear();
        ICInitCtl control;
        QVERIFY(control.Show(nullptr, true));
        QCOMPARE(control.tree()->nodeKeys(), QStringList{QStringLiteral("K0")});
    }

    void queryUnloadIsCaseSensitive()
    {
        ICInitCtl control;
        QVERIFY(control.Show(&m_host, false));
        emit m_host.ToolBarClick(QStringLiteral("mcWStatusBar")); // status bar off, not yet saved
        control.NotifyMessage(QStringLiteral("queryunload"), {});
        QVERIFY(SettingsStore::boolValue(Setting::ShowStateBar));
        control.NotifyMessage(QStringLiteral("FirstShow"), {});
        QVERIFY(SettingsStore::boolValue(Setting::ShowStateBar));
        control.NotifyMessage(QStringLiteral("QueryUnload"), {});
        QVERIFY(!SettingsStore::boolValue(Setting::ShowStateBar));
    }

    void adjustmentControlKeepsTheEntryViewSettings()
    {
        for (const ViewToggle &toggle : viewToggles())
            SettingsStore::setValue(*toggle.setting, !toggle.setting->defaultValue.toBool());
        {
            ICInitAdjCtl adjust;
            QVERIFY(adjust.Show(&m_host, false));
            adjust.barList()->Click(QStringLiteral("mcWTBLable")); // clicked twice: as it was
            adjust.barList()->Click(QStringLiteral("mcWTBLable"));
            adjust.NotifyMessage(QStringLiteral("QueryUnload"), {});
        }
        ICInitCtl control;
        QVERIFY(control.Show(&m_host, false));
        for (const ViewToggle &toggle : viewToggles())
            QVERIFY2(control.barList()->isChecked(QLatin1String(toggle.menuKey)) != toggle.setting->defaultValue.toBool(),
                     toggle.menuKey);
    }

    void unreadableViewSettingsGiveTheDefaults_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no values") << QByteArray("[General]\nbShowToolBar=\nbShowStateBar=\nbShowRefresh=\n");
        QTest::newRow("garbage") << QByteArray("[General]\nbShowToolBar=%%\nbShowStateBar=x\nbShowRefresh=yes?\n");
    }

    void unreadableViewSettingsGiveTheDefaults()
    {
        QFETCH(QByteArray, content);
        QFile file(QSettings(QStringLiteral("Lumo"), Setting::StoreName).fileName());
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        file.close();
        for (const ViewToggle &toggle : viewToggles())
            QVERIFY2(SettingsStore::boolValue(*toggle.setting) == toggle.setting->defaultValue.toBool(), toggle.menuKey);
    }

    void toolbarRebuildsKeepTheControlCount()
    {
        ICInitCtl control;
        QVERIFY(control.Show(&m_host, false));
        const auto *controls = qobject_cast<ControlCollection *>(control.Controls());
        QVERIFY(controls);
        const int count = controls->Count();
        for (int cycle = 0; cycle < 4; ++cycle) {
            control.RefreshToolbar();
            control.barList()->Click(QStringLiteral("mcWTBLable"));
        }
        QCOMPARE(controls->Count(), count);
    }

    void refreshToolbarBeforeShowDoesNothing()
    {
        ICInitCtl control;
        control.RefreshToolbar();
        QVERIFY(m_host.received.isEmpty());
        QVERIFY(!control.parentWindow());
    }

    void initialisationPreparesFiltersAndDisablesSaveAndFind()
    {
        ICInitCtl control;
        Dictionary *filters = LibraryState::instance().filters();
        QVERIFY(filters);
        QCOMPARE(filters->Keys(), QStringList({"ActualFilter", "VirtualFilter", "Filter", "Sort"}));
        for (const char *key : {"Save", "mcFSave", "Find", "mcEFind"})
            QVERIFY2(!control.barList()->isEnabled(QLatin1String(key)), key);
        QCOMPARE(control.grid()->TextMatrix(0, 10), QStringLiteral("辅助属性"));
    }

};

QTEST_MAIN(TestICInitCtl)
#include "tst_icinitctl.moc"
