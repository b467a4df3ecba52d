// The entry control end to end: the real control on a demo account set made by the middle tier,
// driven through its public members and child controls, with a scripted prompter answering its
// questions. Every case checks what reached the database beside what the widgets show.

#include "demo/democompany.h"
#include "entrydbfixture.h"
#include "privatesettings.h"
#include "scratchaccountset.h"
#include "servicecalls.h"

#include "batch/batchlayout.h"
#include "batch/frmbatchmanager.h"
#include "dialogs/frmcolormanager.h"
#include "dialogs/frmfindfiltersort.h"
#include "sheet/entrygridlayout.h"
#include "sheet/entrysheet.h"
#include "entry/entrycommands.h"
#include "entry/icinitctl.h"
#include "sheet/navtree.h"

#include "frame/barlist.h"
#include "frame/librarystate.h"
#include "frame/prompter.h"
#include "frame/settingsstore.h"
#include "frame/statuspanels.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/progids.h"
#include "frame/automation/recordset.h"

#include "services/lumoebcglviewgldata.h"
#include "services/lumomicinitialdata.h"

#include "db/sqlrun.h"

#include "grid/spreadgrid.h"

#include <QApplication>
#include <QPushButton>
#include <QTabBar>
#include <QLocale>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

// The demo company's ids (see DemoCompany).
constexpr int RawMaterials = 1;
constexpr int SemiFinished = 2;
constexpr int FinishedTwo = 5;
constexpr int ShelfC = 3;
constexpr int RoundSteel = 2;
constexpr int Nut = 8;
constexpr int Laptop = 16;
constexpr int Kilogram = 4;

const QString AskToSave = QStringLiteral("数据已经改变，是否需要保存？");
const QString RoundSteelCode = QStringLiteral("1.01.002");

// The data service as registered, counting the statement texts it is asked to run.
class CountingInitialData : public LumoMICInitialData
{
    Q_OBJECT
public:
    static inline QStringList scripts;
    Q_INVOKABLE void UpdateINIData(const QString &PropsString, const QString &script)
    {
        scripts.append(script);
        LumoMICInitialData::UpdateINIData(PropsString, script);
    }
};

// The item look-up as a person who picks the first item matching `pick` within the caller's
// classes: found through the real data service, or cancelled when none matches.
class PickingGLView : public QObject
{
    Q_OBJECT
public:
    static inline QString pick;
    static inline QStringList conditions;
    Q_INVOKABLE QObject *ItemLookUp(const QString &Condition, const QString &, const QString &, QObject *)
    {
        conditions.append(Condition);
        auto result = new Dictionary;
        const std::unique_ptr<Recordset> found(
            qobject_cast<Recordset *>(LumoEBCGLViewGLData().LookupItems(Condition, pick, {}, 0, 1)));
        const Recordset &items = *found;
        result->setItem(u"ReturnOK"_s, items.RecordCount() == 1);
        for (int f = 0; f < items.FieldCount() && items.RecordCount() == 1; ++f)
            result->setItem(items.FieldName(f), items.value(0, f));
        return result;
    }
};

// The trace log and the questions, in the order they happen.
QStringList events;

class RecordingLog : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE bool IsEnabled() { return true; }
    Q_INVOKABLE int LogStart(const QString &) { events.append(QStringLiteral("log start")); return 1; }
    Q_INVOKABLE void LogEnd(int, int) { events.append(QStringLiteral("log end")); }
};

class RecordingPrompter : public ScriptedPrompter
{
public:
    Answer ask(const Message &message) override
    {
        events.append(message.text);
        return ScriptedPrompter::ask(message);
    }
};

constexpr int TotalsMark = -100;

QList<int> totalsRows(const SpreadGrid &grid)
{
    QList<int> rows;
    for (int row = 1; row < grid.rows(); ++row) {
        if (grid.TextMatrix(row, EntryCol::ItemID) == QString::number(TotalsMark))
            rows.append(row);
    }
    return rows;
}

using Edits = QList<std::pair<int, double>>;

// Lines of the find/filter/sort dialog as a person fills them: display name, operator or
// direction, value.
using DialogLines = QList<QStringList>;

} // namespace

Q_DECLARE_METATYPE(Edits)
Q_DECLARE_METATYPE(DialogLines)

class TestEntryControl : public QObject
{
    Q_OBJECT

private:
    RecordingPrompter m_prompter;
    std::unique_ptr<ScratchAccountSet> m_set;
    std::unique_ptr<ICInitCtl> m_control;

    // The control shown afresh, quantities and amounts kept, negative stock allowed or not.
    void show(int underStock)
    {
        m_control.reset();
        EntryDb::setParameter(*m_set, QStringLiteral("UnderStock"), underStock);
        EntryDb::setParameter(*m_set, QStringLiteral("AuditChoice"), 1);
        m_control = std::make_unique<ICInitCtl>();
        QVERIFY(EntryDb::show(*m_control, *m_set));
        m_prompter.clear();
        CountingInitialData::scripts.clear();
    }

    QVariant scalar(const QString &sql, const QVariantList &values = {}) const
    {
        return SqlRun::scalar(m_set->db(), sql, values);
    }

    int count(const QString &table, const QString &where, const QVariantList &values = {}) const
    {
        return scalar(QStringLiteral("SELECT count(*) FROM %1 WHERE %2").arg(table, where), values).toInt();
    }

    QStringList rows(const QString &sql, const QVariantList &values = {}) const { return m_set->rows(sql, values); }

    // Every balance row as text, in a fixed order.
    QStringList balances() const
    {
        return rows(QStringLiteral(
            "SELECT * FROM ICInvInitial ORDER BY FStockID, FSPID, FItemID, FAuxPropID, FBatchNo, FBillInterID"));
    }

    double storedQty(const QString &key) const
    {
        return scalar(QStringLiteral("SELECT FAuxBegQty FROM ICInvInitial WHERE FFieldCompose=?"), {key}).toDouble();
    }

    SpreadGrid &grid() const { return *m_control->grid(); }
    EntrySheet &sheet() const { return *m_control->sheet(); }

    void clickNode(int stockId, int spId = 0)
    {
        QVERIFY(m_control->tree()->clickNode(spId == 0 ? QStringLiteral("K%1").arg(stockId)
                                                       : QStringLiteral("K%1P%2").arg(stockId).arg(spId)));
    }

    // The page label, then the item rows' codes top to bottom.
    QStringList page() const
    {
        QStringList list{m_control->pageLabel()};
        for (int row = 1; row <= sheet().lastDataRow(); ++row) {
            if (sheet().isItemRow(row))
                list.append(grid().TextMatrix(row, EntryCol::Number));
        }
        return list;
    }

    int rowOf(const QString &code) const { return EntryDb::itemRow(*m_control, code); }

    // The grid's texts above the totals row: a list of cells a row, column 1 first.
    QList<QStringList> gridTexts() const
    {
        QList<QStringList> texts(grid().rows() - 1);
        for (int row = 0; row + 1 < grid().rows(); ++row) {
            for (int col = 1; col < EntryCol::Count; ++col)
                texts[row].append(grid().TextMatrix(row, col));
        }
        return texts;
    }

    QString onlyMessage() const
    {
        return m_prompter.messages().size() == 1 ? m_prompter.messages().first().text : QString();
    }

    int addItemRow(const QString &code)
    {
        const int row = m_control->AddNewRow();
        return grid().editCell(row, EntryCol::Number, code) ? row : -1;
    }

    // A save refused: one message, the cursor on the cell to fix, the row still flagged, nothing written.
    void checkRefusedAtSave(int row, int col, const QString &message, const QStringList &before) const
    {
        QCOMPARE(onlyMessage(), message);
        QCOMPARE(QList<int>({grid().row(), grid().col()}), QList<int>({row, col}));
        QCOMPARE(grid().TextMatrix(row, EntryCol::Flag), QStringLiteral("1"));
        QCOMPARE(balances(), before);
        QVERIFY(CountingInitialData::scripts.isEmpty());
    }

    // Opens the dialog of `action`, fills its lines and presses OK, as a person does.
    void runDialog(FfsAction action, const DialogLines &lines)
    {
        const std::unique_ptr<frmFindFilterSort> dialog = m_control->findFilterSortDialog(action);
        dialog->prepare();
        SpreadGrid &conditions = *dialog->grid();
        for (const QStringList &line : lines) {
            int row = 1;
            while (row < conditions.rows() && conditions.TextMatrix(row, frmFindFilterSort::FieldCol) != line.at(0))
                ++row;
            QVERIFY2(conditions.editCell(row, frmFindFilterSort::OperatorCol, line.at(1)), qPrintable(line.join(' ')));
            if (line.size() > 2)
                conditions.editCell(row, frmFindFilterSort::ValueCol, line.at(2));
        }
        dialog->findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
    }

    QString filterText(const QString &key) const { return LibraryState::instance().filters()->Item(key).toString(); }

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        Prompter::install(&m_prompter);
        ComponentRegistry::instance().registerClass(ProgId::MICInitialData, [] { return new CountingInitialData; });
        ComponentRegistry::instance().registerClass(ProgId::LogMsgLog, [] { return new RecordingLog; });
        ComponentRegistry::instance().registerClass(ProgId::GLView, [] { return new PickingGLView; });
    }

    // Every case runs on each backend; one that cannot be reached here is skipped.
    void initTestCase_data()
    {
        addBackends();
    }

    void init()
    {
        QFETCH_GLOBAL(QString, backend);
        REQUIRE_BACKEND(backend);
        m_set = std::make_unique<ScratchAccountSet>(backend);
        show(0);
    }

    void cleanup()
    {
        m_control.reset();
        m_set.reset();
        ServiceCalls::publishLogin({});
    }

    void cleanupTestCase() { Prompter::install(nullptr); }

    void loadsAWarehouseAndAStockPlace()
    {
        clickNode(RawMaterials, 2);
        QCOMPARE(page(), QStringList({"1/1", "1.01.002", "1.02.002", "1.03.002", "1.04.001", "1.04.002", "1.05.001",
                                      "3.02.002", "3.02.002"}));
        // Batch-managed items carry the unfold mark; the rest carry none.
        QStringList marks;
        for (int row = 1; row <= sheet().lastDataRow(); ++row)
            marks.append(grid().TextMatrix(row, EntryCol::Mark));
        QCOMPARE(marks, QStringList({"", "", "+", "", "", "+", "", ""}));
        const int steel = rowOf(RoundSteelCode);
        QCOMPARE(QVariantList({grid().TextMatrix(steel, EntryCol::Name), grid().number(steel, EntryCol::BegQty),
                               grid().number(steel, EntryCol::BegBal), grid().cellDecimals(steel, EntryCol::BegQty),
                               grid().cellDecimals(steel, EntryCol::BegBal),
                               grid().TextMatrix(steel, EntryCol::FieldCompose),
                               grid().TextMatrix(steel, EntryCol::Flag), grid().number(steel, EntryCol::UnitID)}),
                 QVariantList({QStringLiteral("圆钢"), 3000.0, 14400.0, 2, 2, QStringLiteral("1|2|4|2|0"), QString(),
                               double(Kilogram)}));
        for (int col : {EntryCol::ItemID, EntryCol::UnitID, EntryCol::Flag, EntryCol::AuxPropID, EntryCol::AuxClassID,
                        EntryCol::SecUnitID, EntryCol::FieldCompose})
            QVERIFY2(grid().colHidden(col), qPrintable(QString::number(col)));
        for (int col : {EntryCol::Number, EntryCol::Name, EntryCol::YtdBegQty, EntryCol::BegQty, EntryCol::BegBal})
            QVERIFY2(!grid().colHidden(col), qPrintable(QString::number(col)));

        // A warehouse without stock places shows its own rows; an empty one shows none.
        clickNode(SemiFinished);
        QCOMPARE(page(), QStringList({"1/1", "2.01.001", "2.01.002"}));
        clickNode(7);
        QCOMPARE(page(), QStringList{"0/0"});
        // Without pages there is nowhere to go: the page box and its button are off.
        QVERIFY(!m_control->findChild<QWidget *>(QStringLiteral("txtPage"))->isEnabled());
        QVERIFY(m_prompter.messages().isEmpty());
    }

    void pagingAsksToSaveFirst()
    {
        m_control->setMlngPerPageSize(3);
        clickNode(RawMaterials, 2);
        QCOMPARE(page(), QStringList({"1/3", "1.01.002", "1.02.002", "1.03.002"}));

        // Yes saves the page before the next one is shown.
        QVERIFY(grid().editCell(1, EntryCol::BegQty, 3100.0));
        const QString firstKey = grid().TextMatrix(1, EntryCol::FieldCompose);
        m_prompter.queueAnswer(Prompter::Answer::Yes);
        m_control->PageCommand(QStringLiteral("NEXTPAGE"));
        QCOMPARE(onlyMessage(), AskToSave);
        QCOMPARE(page(), QStringList({"2/3", "1.04.001", "1.04.002", "1.05.001"}));
        QCOMPARE(storedQty(firstKey), 3100.0);

        // No drops the edit: the database and the page shown again keep the old figure.
        const QStringList before = balances();
        const double old = grid().number(1, EntryCol::BegQty);
        QVERIFY(grid().editCell(1, EntryCol::BegQty, 999.0));
        m_prompter.queueAnswer(Prompter::Answer::No);
        m_control->PageCommand(QStringLiteral("PREPAGE"));
        QCOMPARE(m_prompter.messages().size(), 2);
        QCOMPARE(m_prompter.messages().last().text, AskToSave);
        QCOMPARE(m_control->pageLabel(), QStringLiteral("1/3"));
        QCOMPARE(balances(), before);
        m_control->PageCommand(QStringLiteral("NEXTPAGE"));
        QCOMPARE(m_prompter.messages().size(), 2); // nothing left to save: no question
        QCOMPARE(grid().number(1, EntryCol::BegQty), old);
        m_control->PageCommand(QStringLiteral("LASTPAGE"));
        QCOMPARE(page(), QStringList({"3/3", "3.02.002", "3.02.002"}));
    }

    // The save question comes before the load is logged; a No drops the edit and loads the node.
    void nodeClickAsksBeforeItLogs()
    {
        clickNode(RawMaterials, 2);
        QVERIFY(grid().editCell(1, EntryCol::BegQty, 3100.0));
        events.clear();
        m_prompter.queueAnswer(Prompter::Answer::No);
        clickNode(SemiFinished);
        QCOMPARE(events, QStringList({AskToSave, QStringLiteral("log start"), QStringLiteral("log end")}));
        QCOMPARE(page(), QStringList({"1/1", "2.01.001", "2.01.002"}));
    }

    void balanceRules_data()
    {
        QTest::addColumn<int>("stockId");
        QTest::addColumn<int>("underStock");
        QTest::addColumn<Edits>("edits");
        QTest::addColumn<bool>("lastEditRefused");
        QTest::addColumn<QString>("message");

        const QString negative = QStringLiteral("录入的数据[数量<0]！\r\n但账套不允许负结存,因此数量不能<0！\r\n"
                                                "数据非法！请重新录入！");
        const QString negativePrice = QStringLiteral("录入的数据[数量>0，金额<0]！\r\n单价将出现负数，数据非法！请重新录入！");
        const QString zeroRow = QStringLiteral("录入的数据[数量=0，金额=0]！\r\n没有实际意义，数据非法！请重新录入！");
        const QString noAmount = QStringLiteral("录入的数据[金额=0]！\r\n但账套实行数量金额核算,因此金额不能等于0！\r\n"
                                                "数据非法！请重新录入！");
        constexpr int Consigned = 6;
        using namespace EntryCol;
        QTest::newRow("negative quantity, no negative stock") << SemiFinished << 0 << Edits{{BegQty, -5}} << true
                                                              << negative;
        QTest::newRow("negative quantity and value, negative stock")
            << SemiFinished << 1 << Edits{{BegQty, -5}, {BegBal, -100}} << false << QString();
        QTest::newRow("all-zero row") << SemiFinished << 0 << Edits{{BegQty, 5}, {BegQty, 0}} << false << zeroRow;
        QTest::newRow("quantity without amount, quantity and amount kept")
            << SemiFinished << 0 << Edits{{BegQty, 5}} << false << noAmount;
        QTest::newRow("quantity without amount, held for others") << Consigned << 0 << Edits{{BegQty, 5}} << false
                                                                  << QString();
        QTest::newRow("year start and receipts")
            << SemiFinished << 0
            << Edits{{YtdBegQty, 2}, {YtdBegBal, 9.6}, {ReceiveQty, 3}, {Debit, 14.4}, {SendQty, 4}, {Credit, -1}}
            << true << negativePrice;
    }
    // Each figure typed is checked against its group at once; the whole row when it is saved.
    void balanceRules()
    {
        QFETCH(int, stockId);
        QFETCH(int, underStock);
        QFETCH(Edits, edits);
        QFETCH(bool, lastEditRefused);
        QFETCH(QString, message);
        show(underStock);
        clickNode(stockId);
        const QStringList before = balances();
        const int row = addItemRow(RoundSteelCode);
        QVERIFY(row > 0);
        for (qsizetype i = 0; i + 1 < edits.size(); ++i)
            QVERIFY(grid().editCell(row, edits.at(i).first, edits.at(i).second));
        const auto [col, value] = edits.last();
        const double old = grid().number(row, col);
        QCOMPARE(grid().editCell(row, col, value), !lastEditRefused);
        if (lastEditRefused) {
            QCOMPARE(onlyMessage(), message);
            QCOMPARE(grid().number(row, col), old);
            QCOMPARE(balances(), before);
            QVERIFY(CountingInitialData::scripts.isEmpty());
            return;
        }
        QVERIFY(m_prompter.messages().isEmpty());
        QCOMPARE(grid().TextMatrix(row, EntryCol::Flag), QStringLiteral("1"));
        QCOMPARE(m_control->SaveData(), message.isEmpty());
        if (message.isEmpty()) {
            // The rows that save type the opening quantity first.
            QCOMPARE(rows(QStringLiteral("SELECT FAuxBegQty FROM ICInvInitial WHERE FStockID=? AND FItemID=?"),
                          {stockId, RoundSteel}),
                     QStringList{QString::number(edits.first().second)});
            return;
        }
        // Refused once, on the group that broke the rule.
        checkRefusedAtSave(row, EntryCol::BegQty, message, before);
    }

    // The control carries the row check's verdict out: the message, the cursor, nothing written.
    // A new row's item typed by its code (code) or picked in the look-up (pick) at shelf B, which
    // holds the screw 1.04.001 and the gloves 3.02.002 under an auxiliary class.
    void itemByCodeOrLookUp_data()
    {
        for (const char *column : {"code", "pick", "message", "shown", "name", "prepare"})
            QTest::addColumn<QString>(column); // shown: the code column after, empty when refused
        QTest::addColumn<bool>("auxOpen");
        QTest::addColumn<int>("pageSize");
        const auto add = [](const char *row, const QString &code, const QString &pick, const QString &message,
                            const QString &shown = {}, const QString &name = {}, bool auxOpen = false,
                            const QString &prepare = {}, int pageSize = 0) {
            QTest::newRow(row) << code << pick << message << shown << name << prepare << auxOpen << pageSize;
        };
        const QString typedAgain = u"该物料已存在，请重新输入！"_s;
        const QString shortCodes = u"UPDATE t_SystemProfile SET FValue='1' WHERE FKey='UseShortNumber';"_s;
        add("unknown code", u"9.99.999"_s, {}, u"基础资料中该物料不存在，\r\n请重新输入！"_s);
        add("short code of two items", u"GB"_s, {}, u"基础资料中代码为[GB]的物料不唯一，请重新输入！"_s, {}, {}, false,
            shortCodes + u"UPDATE t_ICItem SET FShortNumber='GB' WHERE FItemID IN (2,3)"_s);
        add("item on screen", u"1.04.001"_s, {}, typedAgain);
        add("item saved on another page", u"1.04.001"_s, {}, typedAgain, {}, {}, false, {}, 1);
        add("auxiliary class: again allowed", u"3.02.002"_s, {}, {}, u"3.02.002"_s, u"劳保手套"_s, true);
        add("new item", u"2.01.001"_s, {}, {}, u"2.01.001"_s, u"电机壳体"_s);
        add("short code shown", u"KT"_s, {}, {}, u"KT"_s, u"电机壳体"_s, false,
            shortCodes + u"UPDATE t_ICItem SET FShortNumber='KT' WHERE FItemID=10"_s);
        add("look-up: new item", {}, u"电机壳"_s, {}, u"2.01.001"_s, u"电机壳体"_s);
        add("look-up: item on screen", {}, u"1.04.001"_s, u"该物料已存在，请重新选择！"_s);
        add("look-up: no stockless class", {}, u"9.01.001"_s, {});
    }

    void itemByCodeOrLookUp()
    {
        QFETCH(QString, code);
        QFETCH(QString, pick);
        QFETCH(QString, message);
        QFETCH(QString, shown);
        QFETCH(QString, name);
        QFETCH(QString, prepare);
        QFETCH(bool, auxOpen);
        QFETCH(int, pageSize);
        for (const QString &statement : prepare.split(u';', Qt::SkipEmptyParts))
            SqlRun::exec(m_set->db(), statement);
        show(0);
        if (pageSize > 0)
            m_control->setMlngPerPageSize(pageSize);
        QVERIFY(m_control->tree()->clickNode(EntryDb::ShelfB));
        if (pageSize > 0)
            QCOMPARE(rowOf(code), 0); // the item is saved at the place but not on this page
        const QStringList before = balances();
        const int rowsBefore = grid().rows();
        int row = 0;
        if (code.isEmpty()) {
            PickingGLView::pick = pick;
            PickingGLView::conditions.clear();
            QVERIFY(m_control->barList()->Click(EntryKeys::VLookUp));
            QCOMPARE(PickingGLView::conditions, QStringList{u"x2.FErpClsID in (1,2,3,7,9)"_s});
            // A refused or cancelled pick adds no row.
            QCOMPARE(grid().rows(), rowsBefore + (shown.isEmpty() ? 0 : 1));
            row = shown.isEmpty() ? 0 : grid().row();
        } else {
            row = m_control->AddNewRow();
            grid().editCell(row, EntryCol::Number, code);
            // The cell keeps what was typed, refused or not.
            QCOMPARE(grid().TextMatrix(row, EntryCol::Number), shown.isEmpty() ? code : shown);
        }
        QCOMPARE(m_prompter.messages().size(), message.isEmpty() ? 0 : 1);
        QCOMPARE(onlyMessage(), message);
        if (row > 0) {
            QCOMPARE(grid().TextMatrix(row, EntryCol::Name), name);
            QCOMPARE(!sheet().locked(row, EntryCol::AuxProp, true), auxOpen);
        }
        QCOMPARE(balances(), before);
    }

    void rowCheckPutsTheCursorOnTheMissingCell()
    {
        clickNode(SemiFinished);
        const QStringList before = balances();
        const int row = addItemRow(QStringLiteral("3.02.002"));
        QVERIFY(row > 0);
        QVERIFY(grid().editCell(row, EntryCol::BegQty, 4.0));
        QVERIFY(grid().editCell(row, EntryCol::BegBal, 20.0));
        m_control->barList()->Click(EntryKeys::Save);
        checkRefusedAtSave(row, EntryCol::AuxProp, QStringLiteral("物料3.02.002使用等级管理，请选择等级！"), before);
        // The row stays as typed, and Save stays available.
        QCOMPARE(grid().number(row, EntryCol::BegBal), 20.0);
        QVERIFY(m_control->barList()->isEnabled(EntryKeys::Save));
    }

    void newRowIsInsertedWithItsOwnKey()
    {
        clickNode(RawMaterials, EntryDb::ShelfAId);
        QVERIFY(m_control->barList()->Click(QStringLiteral("AddNew")));
        const int row = grid().row();
        QVERIFY(sheet().isNewRow(row));
        QCOMPARE(grid().col(), int(EntryCol::Number));
        QVERIFY(grid().editCell(row, EntryCol::Number, RoundSteelCode));
        QCOMPARE(grid().TextMatrix(row, EntryCol::Name), QStringLiteral("圆钢"));
        const Edits figures{{EntryCol::YtdBegQty, 100},  {EntryCol::YtdBegBal, 480}, {EntryCol::ReceiveQty, 50},
                            {EntryCol::Debit, 240},      {EntryCol::SendQty, 30},    {EntryCol::Credit, 144},
                            {EntryCol::BegQty, 120},     {EntryCol::BegBal, 576.5}};
        for (const auto &[col, value] : figures)
            QVERIFY(grid().editCell(row, col, value));
        QVERIFY(m_control->barList()->isEnabled(EntryKeys::Save));
        const QString recordNumber = QStringLiteral("SELECT FValue FROM t_SystemProfile WHERE FKey='INIBillInterID'");
        const QVariant numbered = scalar(recordNumber);
        QVERIFY(numbered.toInt() > 0);
        QVERIFY(m_control->barList()->Click(EntryKeys::Save));
        QCOMPARE(m_control->statusPanels()->panelText(2), QStringLiteral("已保存1行"));
        QVERIFY(m_prompter.messages().isEmpty());
        // No batch line was numbered: the running number stays where the account set had it.
        QCOMPARE(scalar(recordNumber), numbered);

        QStringList written{"0", "", "1|1|4|2|0", QString::number(DemoCompany::CurrentPeriod),
                            QString::number(Kilogram), "0"};
        for (const auto &[col, value] : figures)
            written.append(QString::number(value));
        written.append(QStringLiteral("0"));
        QCOMPARE(rows(QStringLiteral(
                     "SELECT FBrNo, FBatchNo, FFieldCompose, FPeriod, FUnitID, FAuxPropID, FYtdAuxBegQty, FYtdBegBal, "
                     "FYtdAuxReceive, FYtdDebit, FYtdAuxSend, FYtdCredit, FAuxBegQty, FBegBal, FBegDiff "
                     "FROM ICInvInitial WHERE FStockID=1 AND FSPID=1 AND FItemID=2")),
                 QStringList{written.join(QStringLiteral(", "))});
        // The grid row now carries the key written and no flag; it is an ordinary loaded row.
        QCOMPARE(grid().TextMatrix(row, EntryCol::FieldCompose), QStringLiteral("1|1|4|2|0"));
        QCOMPARE(grid().TextMatrix(row, EntryCol::Flag), QString());
        QVERIFY(!sheet().isNewRow(row));
        QVERIFY(!m_control->barList()->isEnabled(EntryKeys::Save));
        QCOMPARE(CountingInitialData::scripts.size(), 1);
    }

    void loadedRowRepointedIsUpdatedByItsOldKey()
    {
        clickNode(SemiFinished);
        const int row = rowOf(QStringLiteral("2.01.001"));
        QCOMPARE(grid().TextMatrix(row, EntryCol::FieldCompose), QStringLiteral("2|0|4|10|0"));
        const double amount = grid().number(row, EntryCol::BegBal);
        // The row is pointed at the nut (same unit) by a script, then its quantity is typed.
        grid().setValue(row, EntryCol::ItemID, Nut);
        grid().setTextMatrix(row, EntryCol::Number, QStringLiteral("1.04.002"));
        QVERIFY(grid().editCell(row, EntryCol::BegQty, 401.0));
        QVERIFY(m_control->SaveData());

        QCOMPARE(count(QStringLiteral("ICInvInitial"), QStringLiteral("FFieldCompose='2|0|4|10|0'")), 0);
        QCOMPARE(count(QStringLiteral("ICInvInitial"), QStringLiteral("FStockID=2 AND FItemID=?"),
                       {EntryDb::MotorHousing}), 0);
        QCOMPARE(rows(QStringLiteral(
                     "SELECT FItemID, FAuxBegQty, FBegBal FROM ICInvInitial WHERE FFieldCompose='2|0|4|8|0'")),
                 QStringList{QStringLiteral("%1, 401, %2").arg(Nut).arg(amount)});
        QCOMPARE(count(QStringLiteral("ICInvInitial"), QStringLiteral("FStockID=2")), 2);
        QCOMPARE(grid().TextMatrix(row, EntryCol::FieldCompose), QStringLiteral("2|0|4|8|0"));
    }

    void deletedItemLosesItsSerialsAndBalances()
    {
        clickNode(FinishedTwo, ShelfC);
        const QString serials = QStringLiteral("FSNListID=1"); // the laptop's serial numbers
        for (const char *table : {"ICSerial", "ICSerialFlow", "ICSerial_F1"})
            QCOMPARE(count(QLatin1String(table), serials), 5);
        const int others = count(QStringLiteral("ICInvInitial"), QStringLiteral("NOT (FStockID=5 AND FSPID=3)"));
        const int row = rowOf(QStringLiteral("3.03.001"));
        QVERIFY(grid().select(row, EntryCol::Name));
        QVERIFY(m_control->barList()->Click(QStringLiteral("Delete")));
        QCOMPARE(rowOf(QStringLiteral("3.03.001")), 0);
        QVERIFY(m_control->SaveData());
        for (const char *table : {"ICSerial", "ICSerialFlow", "ICSerial_F1"})
            QCOMPARE(count(QLatin1String(table), serials), 0);
        QCOMPARE(count(QStringLiteral("ICInvInitial"), QStringLiteral("FItemID=?"), {Laptop}), 0);
        QCOMPARE(count(QStringLiteral("ICInvInitial"), QStringLiteral("FStockID=5 AND FSPID=3")), 3);
        QCOMPARE(count(QStringLiteral("ICInvInitial"), QStringLiteral("NOT (FStockID=5 AND FSPID=3)")), others);
        QCOMPARE(page(), QStringList({"1/1", "3.01.001", "3.02.001", "3.02.001"}));
    }

    void batchCellKeepsOtherEditsPendingUnlessTold_data()
    {
        QTest::addColumn<bool>("save");
        QTest::newRow("no") << false;
        QTest::newRow("yes") << true;
    }

    // The batch cell opens the dialog; another row's pending edit is saved only on a Yes, and the
    // item's own row shows what the dialog wrote while the other row keeps what was typed.
    void batchCellKeepsOtherEditsPendingUnlessTold()
    {
        QFETCH(bool, save);
        clickNode(RawMaterials, 2);
        const int steel = rowOf(RoundSteelCode);
        const int batchRow = 3;
        QCOMPARE(grid().TextMatrix(batchRow, EntryCol::Mark), QStringLiteral("+"));
        QVERIFY(grid().editCell(steel, EntryCol::BegQty, 3100.0));
        const QString steelKey = grid().TextMatrix(steel, EntryCol::FieldCompose);
        const QString batchKey = grid().TextMatrix(batchRow, EntryCol::FieldCompose);
        m_prompter.queueAnswer(save ? Prompter::Answer::Yes : Prompter::Answer::No);
        bool dialogSaved = false;
        QTimer::singleShot(0, this, [&dialogSaved] {
            auto *dialog = qobject_cast<frmBatchManager *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            const double amount = dialog->grid()->number(1, BatCol::BegBal);
            dialogSaved = dialog->grid()->editCell(1, BatCol::BegBal, amount + 1)
                          && dialog->pressButton(QStringLiteral("Save")) && dialog->SavedBatMan();
            dialog->reject();
        });
        const double storedBatchBal = scalar(QStringLiteral("SELECT sum(FBegBal) FROM ICInvInitial "
                                                             "WHERE FFieldCompose=?"), {batchKey}).toDouble();
        emit grid().cellButtonClick(batchRow, EntryCol::Batch);
        QVERIFY(dialogSaved);
        QVERIFY(!m_prompter.messages().isEmpty());
        QCOMPARE(m_prompter.messages().first().text, AskToSave);
        QCOMPARE(grid().number(batchRow, EntryCol::BegBal), storedBatchBal + 1);
        QCOMPARE(grid().TextMatrix(batchRow, EntryCol::Flag), QString());
        QCOMPARE(grid().number(steel, EntryCol::BegQty), 3100.0);
        QCOMPARE(grid().TextMatrix(steel, EntryCol::Flag), save ? QString() : QStringLiteral("1"));
        QCOMPARE(storedQty(steelKey), save ? 3100.0 : 3000.0);
        // The pending edit is still there to save.
        QVERIFY(m_control->SaveData());
        QCOMPARE(storedQty(steelKey), 3100.0);
    }

    void savingWithoutChangesSendsNothing()
    {
        clickNode(RawMaterials, 2);
        const QStringList before = balances();
        QVERIFY(m_control->SaveData());
        QVERIFY(CountingInitialData::scripts.isEmpty());
        QCOMPARE(balances(), before);
        // A change is sent in one text, so the count above is a real observation.
        QVERIFY(grid().editCell(1, EntryCol::BegQty, 3001.0));
        QVERIFY(m_control->SaveData());
        QCOMPARE(CountingInitialData::scripts.size(), 1);
        QVERIFY(m_control->SaveData());
        QCOMPARE(CountingInitialData::scripts.size(), 1);
        QVERIFY(m_prompter.messages().isEmpty());
    }

    void unfoldThenFoldLeavesTheOriginalRows()
    {
        clickNode(RawMaterials, 2);
        const int steel = rowOf(RoundSteelCode);
        QVERIFY(grid().editCell(steel, EntryCol::BegQty, 2999.0));
        // What the grid should hold after the save: the same cells without the row's flag.
        QList<QStringList> saved = gridTexts();
        QCOMPARE(std::exchange(saved[steel][EntryCol::Flag - 1], QString()), QStringLiteral("1"));
        // The total has followed the edit already; the save leaves it so.
        const int totals = grid().rows() - 1;
        const double total = grid().number(totals, EntryCol::BegQty);

        const int glue = rowOf(QStringLiteral("1.03.002"));
        // Unfolding saves the pending edit first, without asking.
        emit grid().cellClicked(glue, EntryCol::Mark);
        QVERIFY(m_prompter.messages().isEmpty());
        QCOMPARE(CountingInitialData::scripts.size(), 1);
        QCOMPARE(storedQty(QStringLiteral("1|2|4|2|0")), 2999.0);
        QCOMPARE(grid().TextMatrix(glue, EntryCol::Mark), QStringLiteral("-"));
        QCOMPARE(grid().rows(), int(saved.size()) + 3);
        QVERIFY(sheet().isBatchLine(glue + 1));
        QVERIFY(sheet().isBatchLine(glue + 2));
        QCOMPARE(grid().TextMatrix(glue + 1, EntryCol::Batch), QStringLiteral("E2401"));
        QCOMPARE(grid().TextMatrix(glue + 2, EntryCol::Batch), QStringLiteral("E2402"));
        // Folding takes exactly those lines away again.
        emit grid().cellClicked(glue, EntryCol::Mark);
        QCOMPARE(grid().TextMatrix(glue, EntryCol::Mark), QStringLiteral("+"));
        QCOMPARE(gridTexts(), saved);
        QVERIFY(sheet().isTotalsRow(totals));
        QCOMPARE(grid().number(totals, EntryCol::BegQty), total);
        QCOMPARE(CountingInitialData::scripts.size(), 1);
    }

    // The grand total is shown on the last page only and sums the whole place, in the records'
    // quantity precision; the Sum command goes there, and a save there fetches the sums again.
    void grandTotalSumsTheWholePlace()
    {
        // Two more rows make shelf B's ten rows five pages of two.
        for (const auto &[item, unit] : {std::pair{EntryDb::CopperWire, 7}, {EntryDb::MotorHousing, 1}})
            SqlRun::exec(m_set->db(),
                         QStringLiteral("INSERT INTO ICInvInitial (FBrNo, FPeriod, FStockID, FSPID, FItemID, FUnitID, "
                                        "FBatchNo, FAuxPropID, FYtdAuxBegQty, FYtdBegBal, FAuxBegQty, FBegBal, "
                                        "FStockInDate, FKFDate, FFieldCompose, FBillInterID) VALUES ('0', 4, 1, 2, ?, "
                                        "?, '', 0, 1001, 12345.67, 1001, 12345.67, '2024-04-01', '', ?, 0)"),
                         {item, unit, QStringLiteral("1|2|4|%1|0").arg(item)});
        // One item counts in thousandths while the account set keeps two places.
        SqlRun::exec(m_set->db(), QStringLiteral("UPDATE t_ICItem SET FQtyDecimal=3 WHERE FItemID=?"),
                     {EntryDb::CopperWire});
        m_control->setMlngPerPageSize(2);
        clickNode(RawMaterials, 2);
        QCOMPARE(m_control->pageLabel(), QStringLiteral("1/5"));
        m_control->PageCommand(QStringLiteral("NEXTPAGE"));
        QCOMPARE(m_control->pageLabel(), QStringLiteral("2/5"));
        QCOMPARE(totalsRows(grid()), QList<int>());

        QVERIFY(m_control->barList()->Click(QStringLiteral("mcESum")));
        QCOMPARE(m_control->pageLabel(), QStringLiteral("5/5"));
        const int row = grid().rows() - 1;
        QCOMPARE(totalsRows(grid()), QList<int>{row});
        QCOMPARE(QList<int>({grid().row(), grid().col()}), QList<int>({row, EntryCol::Number}));
        QCOMPARE(grid().TextMatrix(row, EntryCol::Number), QStringLiteral("总计"));
        const QVector<double> sums = EntryDb::sumsOfPlace(*m_set, 2);
        const QList<int> columns = EntryDb::figureColumns();
        QLocale shown(QLocale::C); // thousands separated
        shown.setNumberOptions(QLocale::DefaultNumberOptions);
        // The whole place, not the two rows on the page.
        QVERIFY(sums.at(columns.indexOf(EntryCol::BegQty)) > grid().number(1, EntryCol::BegQty) * 2);
        for (int i = 0; i < columns.size(); ++i) {
            const int col = columns.at(i);
            const bool quantity = i % 3 == 0; // each group's first figure
            QCOMPARE(grid().number(row, col), sums.at(i));
            QCOMPARE(grid().TextMatrix(row, col), shown.toString(sums.at(i), 'f', quantity ? 3 : 2));
            QCOMPARE(grid().cellBackColor(row, col), SettingsStore::colorValue(Setting::SumColor));
        }
        // The secondary quantities are not summed.
        QCOMPARE(grid().TextMatrix(row, EntryCol::BegAuxQty), QString());
        // A figure typed on the last page moves the place's total before any save.
        const int begBal = columns.indexOf(EntryCol::BegBal);
        QVERIFY(grid().editCell(1, EntryCol::BegBal, grid().number(1, EntryCol::BegBal) + 100));
        QCOMPARE(grid().number(grid().rows() - 1, EntryCol::BegBal), sums.at(begBal) + 100);

        // A row deleted and saved on the last page leaves the place's sums at once.
        QVERIFY(grid().select(1, EntryCol::Number));
        QVERIFY(m_control->DeleteCurrentRow());
        QVERIFY(m_control->SaveData());
        const QVector<double> after = EntryDb::sumsOfPlace(*m_set, 2);
        QVERIFY(after != sums);
        QCOMPARE(m_control->pageLabel(), QStringLiteral("5/5"));
        QCOMPARE(totalsRows(grid()), QList<int>{grid().rows() - 1});
        for (int i = 0; i < columns.size(); ++i)
            QCOMPARE(grid().number(grid().rows() - 1, columns.at(i)), after.at(i));
    }

    void onePageSumsTheGridWithEmptyCellsAsZero()
    {
        clickNode(RawMaterials, 2);
        QCOMPARE(m_control->pageLabel(), QStringLiteral("1/1"));
        const int screw = EntryDb::itemRow(*m_control, EntryDb::Screw);
        QCOMPARE(grid().number(screw, EntryCol::BegDiff), 150.0);
        // The user empties the screws' opening difference: the total follows at once, and Sum goes to it.
        QVERIFY(grid().editCell(screw, EntryCol::BegDiff, QString()));
        const int row = grid().rows() - 1;
        QCOMPARE(grid().number(row, EntryCol::BegDiff), EntryDb::sumsOfPlace(*m_set, 2).at(11) - 150);
        QVERIFY(m_control->showTotals());
        QCOMPARE(totalsRows(grid()), QList<int>{row});
        QVector<double> expected = EntryDb::sumsOfPlace(*m_set, 2);
        const QList<int> columns = EntryDb::figureColumns();
        expected[columns.indexOf(EntryCol::BegDiff)] -= 150;
        for (int i = 0; i < columns.size(); ++i)
            QCOMPARE(grid().number(row, columns.at(i)), expected.at(i));
    }

    void filterSelectingNothingGivesZeros()
    {
        LibraryState::instance().filters()->setItem(FilterKey::Filter, QStringLiteral("FNumber = 'no such item'"));
        clickNode(RawMaterials, EntryDb::ShelfAId);
        QCOMPARE(m_control->pageLabel(), QStringLiteral("0/0"));
        QCOMPARE(grid().rows(), 2);
        QCOMPARE(totalsRows(grid()), QList<int>{1});
        for (int col : EntryDb::figureColumns())
            QCOMPARE(grid().TextMatrix(1, col), QStringLiteral("0.00"));
        // A filter the parser refuses is an error the user reads, not an empty page.
        LibraryState::instance().filters()->setItem(FilterKey::Filter, QStringLiteral("FNumber = 'x' OR 1=1"));
        clickNode(RawMaterials, 2);
        QVERIFY2(onlyMessage().contains(QStringLiteral("过滤或排序条件出错")), qPrintable(onlyMessage()));
        // Without the filter the same place has rows again.
        LibraryState::instance().filters()->setItem(FilterKey::Filter, QString());
        clickNode(RawMaterials, 2);
        clickNode(RawMaterials, EntryDb::ShelfAId);
        QCOMPARE(m_control->pageLabel(), QStringLiteral("1/1"));
    }

    void findFilterAndSortApplyToThePlace()
    {
        // Find needs loaded rows.
        QVERIFY(!m_control->barList()->isEnabled(EntryKeys::Find));
        clickNode(RawMaterials, 2);
        QVERIFY(m_control->barList()->isEnabled(EntryKeys::Find));
        m_control->setMlngPerPageSize(2);
        runDialog(FfsAction::Filter, {{u"物料名称"_s, u"包含"_s, u"螺"_s}});
        QCOMPARE(filterText(FilterKey::ActualFilter), u"FItemName LIKE '%螺%' "_s);
        QCOMPARE(page(), (QStringList{u"1/1"_s, u"1.04.001"_s, u"1.04.002"_s}));
        QCOMPARE(m_control->statusPanels()->panelText(2), u"过滤结果：共2行"_s);
        runDialog(FfsAction::Sort, {{u"物料代码"_s, u"降序"_s}});
        QCOMPARE(page(), (QStringList{u"1/1"_s, u"1.04.002"_s, u"1.04.001"_s}));
        // OK without a line clears the filter; the sort stays.
        runDialog(FfsAction::Filter, {});
        QCOMPARE(page(), (QStringList{u"1/4"_s, u"3.02.002"_s, u"3.02.002"_s}));

        // Find marks nothing on page 1; F3 goes on to each match across the pages and back.
        runDialog(FfsAction::Find, {{u"物料名称"_s, u"包含"_s, u"螺"_s}});
        QCOMPARE(m_control->statusPanels()->panelText(2), u"搜索结果：本页0行符合条件"_s);
        const auto cursorAt = [&] {
            return m_control->pageLabel() + u" "_s + grid().TextMatrix(grid().row(), EntryCol::Number);
        };
        QVERIFY(m_control->findNext());
        QCOMPARE(cursorAt(), u"2/4 1.04.002"_s);
        QCOMPARE(grid().cellBackColor(grid().row(), EntryCol::BegQty), sheet().colors().find);
        QVERIFY(m_control->findNext());
        QCOMPARE(cursorAt(), u"3/4 1.04.001"_s);
        QVERIFY(m_control->findNext(true));
        QCOMPARE(cursorAt(), u"2/4 1.04.002"_s);
        QVERIFY(!m_control->findNext(true));
        QCOMPARE(cursorAt(), u"2/4 1.04.002"_s);
    }

    // A find turned into a filter on the dialog's tabs still offers to save the edits first.
    void filterFromTheFindTabAsksToSave()
    {
        clickNode(RawMaterials, 2);
        QVERIFY(grid().editCell(1, EntryCol::BegQty, 3100.0));
        const std::unique_ptr<frmFindFilterSort> dialog = m_control->findFilterSortDialog(FfsAction::Find);
        dialog->prepare();
        dialog->findChild<QTabBar *>()->setCurrentIndex(int(FfsAction::Filter));
        m_prompter.queueAnswer(Prompter::Answer::Yes);
        dialog->findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
        QCOMPARE(onlyMessage(), AskToSave);
        QCOMPARE(storedQty(grid().TextMatrix(1, EntryCol::FieldCompose)), 3100.0);
    }

    // Whatever is typed as a value is compared as data or refused in the dialog: it never changes
    // the statement, the rows of another item never show, and nothing is written.
    void hostileFilterValuesAreDataOrRefused_data()
    {
        QTest::addColumn<DialogLines>("lines");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("quote and always true") << DialogLines{{u"物料名称"_s, u"等于"_s, u"x' OR '1'='1"_s}} << true;
        QTest::newRow("second statement")
            << DialogLines{{u"物料名称"_s, u"包含"_s, u"'; DELETE FROM ICInvInitial; --"_s}} << true;
        QTest::newRow("comment marks") << DialogLines{{u"规格型号"_s, u"等于"_s, u"/* */ or 1=1"_s}} << true;
        QTest::newRow("over-long") << DialogLines{{u"物料名称"_s, u"等于"_s, QString(300, u'钢')}} << false;
        QTest::newRow("statement in a number") << DialogLines{{u"期初数量"_s, u"大于"_s, u"0 or 1=1"_s}} << false;
    }

    void hostileFilterValuesAreDataOrRefused()
    {
        QFETCH(DialogLines, lines);
        QFETCH(bool, accepted);
        clickNode(RawMaterials, 2);
        const QStringList before = balances();
        const QStringList rowsBefore = page();
        runDialog(FfsAction::Filter, lines);
        QCOMPARE(m_prompter.messages().size(), accepted ? 0 : 1);
        QCOMPARE(page(), accepted ? QStringList{u"0/0"_s} : rowsBefore);
        QCOMPARE(balances(), before);
        QVERIFY(CountingInitialData::scripts.isEmpty());
    }

    // A text the data service cannot parse is refused with its reason; the rows before stay.
    void undeclaredFieldIsRefusedWithItsName()
    {
        clickNode(RawMaterials, 2);
        const QStringList before = page();
        const std::unique_ptr<frmFindFilterSort> dialog = m_control->findFilterSortDialog(FfsAction::Filter);
        LibraryState::instance().filters()->setItem(FilterKey::Filter, u"FPassword = 'x' "_s);
        emit dialog->Filter(u"FPassword = 'x' "_s);
        QVERIFY(onlyMessage().contains(u"FPassword"_s));
        QCOMPARE(filterText(FilterKey::Filter), QString());
        QCOMPARE(page(), before);
    }

    // The colour dialog's OK repaints the grid shown at once, without a reload.
    void colourDialogRepaintsTheGrid()
    {
        clickNode(RawMaterials, 2);
        // A reload would first ask to save this edit.
        QVERIFY(grid().editCell(1, EntryCol::BegQty, 3100.0));
        const std::unique_ptr<frmColorManager> dialog = m_control->colorDialog();
        dialog->prepare();
        dialog->session().setColor(2, QColor(Qt::red));
        dialog->findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
        QCOMPARE(grid().cellBackColor(totalsRows(grid()).value(0), EntryCol::BegQty), QColor(Qt::red));
        QVERIFY(m_prompter.messages().isEmpty());
        QCOMPARE(grid().number(1, EntryCol::BegQty), 3100.0);
        dialog->session().restoreDefaults();
        dialog->session().store();
    }

    void failedWriteKeepsTheGridAsTyped()
    {
        clickNode(FinishedTwo, ShelfC);
        const int motor = rowOf(QStringLiteral("3.01.001"));
        QVERIFY(grid().editCell(motor, EntryCol::BegQty, 81.0));
        QVERIFY(grid().select(rowOf(QStringLiteral("3.03.001")), EntryCol::Name));
        QVERIFY(m_control->DeleteCurrentRow());
        SqlRun::exec(m_set->db(), QStringLiteral("DROP TABLE ICSerial_F1"));
        const QStringList before = balances();
        QVERIFY(!m_control->SaveData());
        QCOMPARE(m_prompter.messages().size(), 1);
        QCOMPARE(CountingInitialData::scripts.size(), 1);
        QCOMPARE(balances(), before);
        QCOMPARE(count(QStringLiteral("ICSerial"), QStringLiteral("FSNListID=1")), 5);
        QCOMPARE(grid().number(motor, EntryCol::BegQty), 81.0);
        QCOMPARE(grid().TextMatrix(motor, EntryCol::Flag), QStringLiteral("1"));
        QCOMPARE(rowOf(QStringLiteral("3.03.001")), 0);
        QCOMPARE(m_control->statusPanels()->panelText(1), QStringLiteral("就绪"));
    }
};

int main(int argc, char **argv)
{
    // The view settings this suite's control saves stay with this process.
    const PrivateSettings settings;
    QApplication app(argc, argv);
    TestEntryControl suite;
    return QTest::qExec(&suite, argc, argv);
}
#include "tst_entrycontrol.moc"
