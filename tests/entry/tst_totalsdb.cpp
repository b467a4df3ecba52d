#include "entrydbfixture.h"
#include "privatesettings.h"
#include "scratchaccountset.h"

#include "db/sqlrun.h"
#include "sheet/entrygridlayout.h"
#include "sheet/entrysheet.h"
#include "entry/icinitctl.h"
#include "sheet/navtree.h"
#include "sheet/pagebar.h"

#include "frame/barlist.h"
#include "frame/prompter.h"
#include "frame/librarystate.h"
#include "frame/settingsstore.h"

#include "frame/automation/dictionary.h"

#include "grid/spreadconsole.h"
#include "grid/spreadgrid.h"

#include <QLocale>
#include <QApplication>
#include <QTest>

using namespace EntryDb;

namespace {

constexpr int TotalsMark = -100;

// A figure as the grid shows it: thousands separated, the given decimal places.
QString shown(double value, int decimals)
{
    QLocale c(QLocale::C);
    c.setNumberOptions(QLocale::DefaultNumberOptions);
    return c.toString(value, 'f', decimals);
}

bool isQuantityColumn(int col)
{
    return col == EntryCol::YtdBegQty || col == EntryCol::ReceiveQty || col == EntryCol::SendQty
        || col == EntryCol::BegQty;
}

// Rows whose item id column holds the totals mark.
QList<int> totalsRows(const SpreadGrid &grid)
{
    QList<int> rows;
    for (int row = 1; row < grid.rows(); ++row) {
        if (grid.TextMatrix(row, EntryCol::ItemID) == QString::number(TotalsMark))
            rows.append(row);
    }
    return rows;
}

// Two more item rows on shelf B: with those its ten rows make five pages of two.
void addTwoItemRows(const ScratchAccountSet &scratch)
{
    for (const auto &[item, unit] : {std::pair{CopperWire, 7}, {MotorHousing, 1}}) {
        const QString compose = QStringLiteral("1|2|4|%1|0").arg(item);
        SqlRun::exec(scratch.db(),
                     QStringLiteral("INSERT INTO ICInvInitial (FBrNo, FPeriod, FStockID, FSPID, FItemID, FUnitID, "
                                    "FBatchNo, FAuxPropID, FYtdAuxBegQty, FYtdBegBal, FAuxBegQty, FBegBal, "
                                    "FStockInDate, FKFDate, FFieldCompose, FBillInterID) "
                                    "VALUES ('0', 4, 1, 2, ?, ?, '', 0, 1001, 12345.67, 1001, 12345.67, "
                                    "'2024-04-01', '', ?, 0)"),
                     {item, unit, compose});
    }
}

} // namespace

// The grand-total row of the entry grid on a temporary demo account set: when it is shown, what
// it sums and how it looks.
class TestTotalsOnAccountSet : public QObject
{
    Q_OBJECT

private:
    ScriptedPrompter m_prompter;

private slots:
    void initTestCase()
    {
        Prompter::install(&m_prompter);
    }

    void cleanupTestCase()
    {
        Prompter::install(nullptr);
    }

    void init()
    {
        m_prompter.clear();
        SettingsStore::setValue(Setting::ShowDefaultStock, false);
    }

    void onlyTheLastPageSumsThePlace_data()
    {
        addBackendColumn();
        addBackendRows();
    }

    void onlyTheLastPageSumsThePlace()
    {
        QFETCH(QString, backend);
        REQUIRE_BACKEND(backend);
        ScratchAccountSet scratch(backend);
        addTwoItemRows(scratch);
        // One item counts in thousandths while the account set keeps two places: the grand total
        // shows the records' three, amounts the home currency's two.
        SqlRun::exec(scratch.db(), QStringLiteral("UPDATE t_ICItem SET FQtyDecimal=3 WHERE FItemID=?"), {CopperWire});
        ICInitCtl control;
        QVERIFY(show(control, scratch));
        control.setMlngPerPageSize(2);
        control.tree()->clickNode(ShelfB);
        QCOMPARE(control.pageLabel(), QStringLiteral("1/5"));
        QCOMPARE(totalsRows(*control.grid()), QList<int>());

        control.PageCommand(PageBar::NextPage);
        QCOMPARE(control.pageLabel(), QStringLiteral("2/5"));
        QCOMPARE(totalsRows(*control.grid()), QList<int>());

        control.PageCommand(PageBar::LastPage);
        QCOMPARE(control.pageLabel(), QStringLiteral("5/5"));
        const SpreadGrid &grid = *control.grid();
        const int row = grid.rows() - 1;
        QCOMPARE(totalsRows(grid), QList<int>{row});
        QCOMPARE(grid.TextMatrix(row, EntryCol::Number), QStringLiteral("总计"));
        const QVector<double> sums = sumsOfPlace(scratch, ShelfBId);
        const QList<int> columns = figureColumns();
        double pageBegQty = 0;
        for (int r = 1; r < row; ++r)
            pageBegQty += grid.number(r, EntryCol::BegQty);
        // The whole place, not the two rows on the page.
        QVERIFY(sums.at(columns.indexOf(EntryCol::BegQty)) > pageBegQty);
        for (int i = 0; i < columns.size(); ++i) {
            const int col = columns.at(i);
            QCOMPARE(grid.number(row, col), sums.at(i));
            QCOMPARE(grid.TextMatrix(row, col), shown(sums.at(i), isQuantityColumn(col) ? 3 : 2));
            QCOMPARE(grid.cellBackColor(row, col), SettingsStore::colorValue(Setting::SumColor));
        }
        // The secondary quantities are not summed.
        QCOMPARE(grid.TextMatrix(row, EntryCol::BegAuxQty), QString());

        // A row deleted and saved on the last page leaves the place's sums, at once.
        SpreadConsole::moveToCell(*control.grid(), 1, EntryCol::Number);
        QVERIFY(control.DeleteCurrentRow());
        QVERIFY(control.SaveData());
        const QVector<double> after = sumsOfPlace(scratch, ShelfBId);
        QVERIFY(after != sums);
        QCOMPARE(control.pageLabel(), QStringLiteral("5/5"));
        const int totalsAfter = grid.rows() - 1;
        QCOMPARE(totalsRows(grid), QList<int>{totalsAfter});
        for (int i = 0; i < columns.size(); ++i)
            QCOMPARE(grid.number(totalsAfter, columns.at(i)), after.at(i));
    }

    void onePageSumsTheGridWithEmptyCellsAsZero_data()
    {
        addBackendColumn();
        addBackendRows();
    }

    void onePageSumsTheGridWithEmptyCellsAsZero()
    {
        QFETCH(QString, backend);
        REQUIRE_BACKEND(backend);
        ScratchAccountSet scratch(backend);
        ICInitCtl control;
        QVERIFY(show(control, scratch));
        control.tree()->clickNode(ShelfB);
        QCOMPARE(control.pageLabel(), QStringLiteral("1/1"));
        SpreadGrid &grid = *control.grid();
        const int screw = itemRow(control, Screw);
        QVERIFY(screw > 0);
        QCOMPARE(grid.number(screw, EntryCol::BegDiff), 150.0);

        // The user empties the screws' opening difference; Sum adds up the grid again.
        QVERIFY(grid.editCell(screw, EntryCol::BegDiff, QString()));
        QCOMPARE(grid.TextMatrix(screw, EntryCol::BegDiff), QString());
        QVERIFY(control.showTotals());
        const int row = grid.rows() - 1;
        QCOMPARE(totalsRows(grid), QList<int>{row});
        QCOMPARE(grid.row(), row);
        QCOMPARE(grid.col(), int(EntryCol::Number));
        QVector<double> expected = sumsOfPlace(scratch, ShelfBId);
        const QList<int> columns = figureColumns();
        expected[columns.indexOf(EntryCol::BegDiff)] -= 150;
        for (int i = 0; i < columns.size(); ++i)
            QCOMPARE(grid.number(row, columns.at(i)), expected.at(i));
    }

    void sumCommandGoesToTheGrandTotal_data()
    {
        addBackendColumn();
        addBackendRows();
    }

    void sumCommandGoesToTheGrandTotal()
    {
        QFETCH(QString, backend);
        REQUIRE_BACKEND(backend);
        ScratchAccountSet scratch(backend);
        addTwoItemRows(scratch);
        ICInitCtl control;
        QVERIFY(show(control, scratch));
        control.setMlngPerPageSize(2);
        control.tree()->clickNode(ShelfB);
        control.PageCommand(PageBar::NextPage);
        QCOMPARE(control.pageLabel(), QStringLiteral("2/5"));

        QVERIFY(control.barList()->Click(QStringLiteral("mcESum")));
        QCOMPARE(control.pageLabel(), QStringLiteral("5/5"));
        const SpreadGrid &grid = *control.grid();
        QCOMPARE(grid.row(), grid.rows() - 1);
        QCOMPARE(grid.col(), int(EntryCol::Number));
        QCOMPARE(grid.TextMatrix(grid.row(), EntryCol::Number), QStringLiteral("总计"));
        QCOMPARE(grid.number(grid.row(), EntryCol::BegBal), sumsOfPlace(scratch, ShelfBId).at(10));
    }

    void filterSelectingNothingGivesZeros_data()
    {
        addBackendColumn();
        addBackendRows();
    }

    void filterSelectingNothingGivesZeros()
    {
        QFETCH(QString, backend);
        REQUIRE_BACKEND(backend);
        ScratchAccountSet scratch(backend);
        ICInitCtl control;
        QVERIFY(show(control, scratch));
        LibraryState::instance().filters()->setItem(FilterKey::Filter, QStringLiteral("FNumber = 'no such item'"));
        control.tree()->clickNode(ShelfA);
        QCOMPARE(control.pageLabel(), QStringLiteral("0/0"));
        const SpreadGrid &grid = *control.grid();
        QCOMPARE(grid.rows(), 2);
        QCOMPARE(totalsRows(grid), QList<int>{1});
        QCOMPARE(grid.TextMatrix(1, EntryCol::Number), QStringLiteral("总计"));
        for (int col : figureColumns()) {
            QCOMPARE(grid.number(1, col), 0.0);
            QCOMPARE(grid.TextMatrix(1, col), QStringLiteral("0.00"));
        }

        // Without the filter the same place has rows again.
        LibraryState::instance().filters()->setItem(FilterKey::Filter, QString());
        control.tree()->clickNode(ShelfB);
        control.tree()->clickNode(ShelfA);
        QCOMPARE(control.pageLabel(), QStringLiteral("1/1"));
    }
};

int main(int argc, char **argv)
{
    // The view settings this suite's controls save stay with this process.
    const PrivateSettings settings;
    QApplication app(argc, argv);
    TestTotalsOnAccountSet suite;
    return QTest::qExec(&suite, argc, argv);
}
#include "tst_totalsdb.moc"
