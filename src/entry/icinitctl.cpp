#include "icinitctl.h"

#include "batch/frmbatchmanager.h"
#include "entry/entrygridlayout.h"
#include "entry/entrysaver.h"
#include "entry/entrysheet.h"
#include "entry/itementry.h"
#include "entry/navtree.h"
#include "entry/pagebar.h"

#include "frame/balancecheck.h"
#include "frame/barlist.h"
#include "frame/errorbox.h"
#include "frame/librarystate.h"
#include "frame/logincontext.h"
#include "frame/messages.h"
#include "frame/netcontrol.h"
#include "frame/qllogmsg.h"
#include "frame/settingsstore.h"
#include "frame/sysparams.h"

#include "frame/ctlerrors.h"
#include "frame/clients/initialdataclient.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/recordset.h"
#include "frame/automation/progids.h"

#include "grid/cellmodel.h"
#include "grid/spreadconsole.h"
#include "grid/spreadgrid.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

constexpr int AppTypeStock = 2;
const QString NodeClickLog = QStringLiteral("LumoICInitialCtl.ICInitCtl.tvICInit_NodeClick 显示初始化录入界面");

} // namespace

ICInitCtl::ICInitCtl(QWidget *parent)
    : InitControl(parent)
{
    setObjectName(QStringLiteral("ICInitCtl"));
    buildLayout();
    fillEntryBarList(*barList());
    // The adjustment control's commands are in the description but never shown here.
    for (const QString &key : commandKeys(CommandFlag::AdjustmentOnly))
        barList()->setVisible(key, false);
    // Nothing is loaded yet: Save and Find stay disabled.
    enableCommands();
    try {
        EntryGridLayout::build(*m_grid, GetIndustryType());
    } catch (const LumoError &) {
        EntryGridLayout::build(*m_grid, 0);
    }
    rebuildToolBar();
}

ICInitCtl::~ICInitCtl() = default;

void ICInitCtl::buildLayout()
{
    m_title = new QLabel(this);
    m_title->setObjectName(QStringLiteral("lblTitle"));
    m_title->setAlignment(Qt::AlignCenter);
    QFont titleFont = m_title->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.6);
    titleFont.setBold(true);
    m_title->setFont(titleFont);
    m_title->setContentsMargins(0, 6, 0, 6);

    m_modeBox = new QComboBox(this);
    m_modeBox->setObjectName(QStringLiteral("cbInitial"));
    m_modeBox->addItem(ResString(Msg::ModeEntry));
    m_modeBox->addItem(ResString(Msg::ModeCheck));
    connect(m_modeBox, &QComboBox::activated, this, [this](int index) { switchMode(index == 1); });
    m_selectorLabel = new QLabel(this);
    m_selectorLabel->setObjectName(QStringLiteral("lblStock"));
    m_stockBox = new QComboBox(this);
    m_stockBox->setObjectName(QStringLiteral("cbStock"));
    m_stockBox->setMinimumWidth(200);
    connect(m_stockBox, &QComboBox::activated, this, [this](int index) {
        const int tableIndex = m_stockBox->itemData(index).toInt();
        if (tableIndex >= 0 && tableIndex < m_stocks.size())
            m_tree->clickNode(WarehouseTree::nodeKey(m_stocks.at(tableIndex), tableIndex == 0));
    });

    auto *selector = new QHBoxLayout;
    selector->setContentsMargins(6, 2, 6, 4);
    selector->addWidget(m_selectorLabel);
    selector->addWidget(m_stockBox);
    selector->addStretch(1);
    selector->addWidget(m_modeBox);

    m_tree = new NavTree(this);
    m_tree->setObjectName(QStringLiteral("tvICInit"));
    connect(m_tree, &NavTree::NodeClick, this, &ICInitCtl::tvICInit_NodeClick);

    m_grid = new SpreadGrid(this);
    m_grid->setObjectName(QStringLiteral("vsICInit"));
    m_sheet = new EntrySheet(*m_grid, this);
    m_saver = std::make_unique<EntrySaver>(*m_sheet);
    connect(m_grid, &SpreadGrid::afterEdit, this, &ICInitCtl::onAfterEdit);
    connect(m_grid, &SpreadGrid::validateEdit, this, [this](int row, int col, const QVariant &value) {
        if (!checkEditedGroup(row, col, value))
            m_grid->cancelEdit();
    });
    connect(m_grid, &SpreadGrid::cellClicked, this, &ICInitCtl::onCellClicked);
    connect(m_grid, &SpreadGrid::cellButtonClick, this, &ICInitCtl::onCellButtonClick);

    m_pageBar = new PageBar(this);
    m_pageBar->setObjectName(QStringLiteral("pageBar"));
    connect(m_pageBar, &PageBar::pageCommand, this, &ICInitCtl::PageCommand);
    auto *gridPane = new QWidget(this);
    auto *gridLayout = new QVBoxLayout(gridPane);
    gridLayout->setContentsMargins(0, 0, 0, 0);
    gridLayout->setSpacing(0);
    gridLayout->addWidget(m_grid, 1);
    gridLayout->addWidget(m_pageBar);

    auto *splitter = new QSplitter(Qt::Horizontal, this);
    splitter->setObjectName(QStringLiteral("splitter"));
    m_treePane = m_tree;
    splitter->addWidget(m_tree);
    splitter->addWidget(gridPane);
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({230, 900});

    bodyLayout()->addWidget(m_title);
    bodyLayout()->addLayout(selector);
    bodyLayout()->addWidget(splitter, 1);
}

bool ICInitCtl::Show(QObject *ParentWnd, bool blnIstest)
{
    takeLoginContext();
    bool shown = false;
    try {
        SetFormFont(Controls());
        EntryGridLayout::build(*m_grid, GetIndustryType());
        setMode(m_mode);
        if (!blnIstest) {
            setTaskHandle(ExecFunc(EntryTaskId, QString::fromLatin1(EntryFuncCode), 0, 0));
            if (!ParentWnd)
                return false;
            bindHost(ParentWnd);
        }
        LoadSysParams(ProgId::MICInitialData);
        LibraryState::instance().periodOpen = !SysParams::toBool(SysParam::ICClosed);
        m_amountScale = FetchAmountScale();
        m_sheet->setAmountScale(m_amountScale);
        m_units = FetchMeasureUnits(ProgId::MICInitialData);
        loadViewSettings();
        enableCommands();
        LoadingStocks();
        shown = true;
        if (blnIstest && !m_tree->firstKey().isEmpty())
            m_tree->clickNode(m_tree->firstKey());
        else
            openDefaultStock();
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("Show"), error);
        return false;
    }
    CommitTask(taskHandle());
    return shown;
}

void ICInitCtl::setMode(Mode mode)
{
    m_mode = mode;
    const bool stockProduct = GetSchemeInfo() == AppTypeStock;
    const bool entry = mode == Mode::Entry;
    const QString title = stockProduct ? (entry ? Msg::TitleEntryStock : Msg::TitleCheckStock)
                                       : (entry ? Msg::TitleEntryBusiness : Msg::TitleCheckBusiness);
    m_title->setText(ResString(title));
    m_selectorLabel->setText(ResString(entry ? Msg::SelectorStock : Msg::SelectorAccount));
    enableCommands();
}

void ICInitCtl::enableCommands()
{
    BarList &bars = *barList();
    const bool entryMode = m_mode == Mode::Entry;
    const bool initialisationOpen = LibraryState::instance().periodOpen;
    const bool rowsLoaded = m_sheet && m_sheet->lastDataRow() > 0;
    for (const EntryCommandSpec &declared : entryCommandTable()) {
        const bool available = declared.available(entryMode, initialisationOpen, rowsLoaded);
        for (const QString &menuKey : declared.menuKeys)
            bars.setEnabled(menuKey, available);
        if (!declared.toolKey.isEmpty())
            bars.setEnabled(declared.toolKey, available);
    }
    // Quantities alone leave nothing to reconcile with the ledger.
    for (const QString &key : commandKeys(CommandFlag::Reconciliation))
        bars.setVisible(key, reconciliationExists());
    // Save follows the unsaved rows and Find the loaded ones.
    setSaveEnabled(m_saver && m_saver->changes().isDirty());
    setFindEnabled();
}

void ICInitCtl::setFindEnabled()
{
    const bool enabled = entryCommandForKey(EntryKeys::Find)->available(
        m_mode == Mode::Entry, LibraryState::instance().periodOpen, m_sheet && m_sheet->lastDataRow() > 0);
    barList()->setEnabled(EntryKeys::Find, enabled);
    barList()->setEnabled(EntryKeys::EFind, enabled);
}

void ICInitCtl::LoadingStocks()
{
    try {
        QElapsedTimer timer;
        timer.start();
        const std::unique_ptr<Recordset> stocks =
            InitialDataClient(ProgId::MICInitialData).FetchStocks(WarehouseTree::StockTypes);
        const qint64 fetched = timer.restart();
        m_stocks = WarehouseTree::buildTable(*stocks);
        const qint64 built = timer.restart();
        m_tree->clearNodes();
        m_currentNode = -1;
        for (const TreeNodeSpec &node : WarehouseTree::nodes(m_stocks))
            m_tree->addNode(node.key, node.parentKey, node.text, node.tableIndex, WarehouseTree::NodeImage,
                            WarehouseTree::SelectedImage);
        m_tree->ensureRootVisible();
        m_tree->expandToDepth(0);
        fillStockList();
        setStatusText(QStringLiteral("%1%2ms  %3%4ms  %5%6ms")
                          .arg(ResString(Msg::FetchTime)).arg(fetched)
                          .arg(ResString(Msg::BuildTableTime)).arg(built)
                          .arg(ResString(Msg::BuildTreeTime)).arg(timer.elapsed()));
        setStatusText(Msg::Ready);
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("LoadingStocks"), error);
    }
}

void ICInitCtl::LoadingAccounts()
{
    try {
        m_accountRecords =
            InitialDataClient(ProgId::MICInitialData).FetchYtdAccounts(SysParams::toInt(SysParam::CurrentPeriod));
        m_accounts = AccountTree::buildTable(*m_accountRecords);
        m_tree->clearNodes();
        m_currentNode = -1;
        for (const TreeNodeSpec &node : AccountTree::nodes(m_accounts))
            m_tree->addNode(node.key, node.parentKey, node.text, node.tableIndex, WarehouseTree::NodeImage,
                            WarehouseTree::SelectedImage);
        m_tree->ensureRootVisible();
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("LoadingAccounts"), error);
    }
}

void ICInitCtl::switchMode(bool reconciliation)
{
    const Mode wanted = reconciliation ? Mode::Check : Mode::Entry;
    m_modeBox->setCurrentIndex(reconciliation ? 1 : 0);
    if (wanted == m_mode || !confirmLeave()) {
        m_modeBox->setCurrentIndex(m_mode == Mode::Check ? 1 : 0);
        return;
    }
    m_sheet->clear();
    showPages();
    setMode(wanted);
    EntryGridLayout::setItemHeaders(*m_grid, !reconciliation);
    m_stockBox->setEnabled(!reconciliation);
    if (reconciliation)
        LoadingAccounts();
    else
        LoadingStocks();
}

void ICInitCtl::fillStockList()
{
    m_stockBox->clear();
    for (int i = 1; i < m_stocks.size(); ++i) {
        const WarehouseEntry &entry = m_stocks.at(i);
        QString text = entry.firstText + QLatin1Char('|') + entry.thirdText;
        if (entry.stockPlace != 0)
            text += ResString(Msg::StockPlaceSuffix);
        m_stockBox->addItem(text, i);
    }
    m_stockBox->setCurrentIndex(qBound(-1, SettingsStore::intValue(Setting::StockListIndex), m_stockBox->count() - 1));
}

void ICInitCtl::openDefaultStock()
{
    if (!barList()->isChecked(EntryKeys::DefaultStock) || m_stockBox->currentIndex() < 0)
        return;
    const int tableIndex = m_stockBox->currentData().toInt();
    m_tree->clickNode(WarehouseTree::nodeKey(m_stocks.at(tableIndex), false));
}

void ICInitCtl::applyDefaultStockSetting()
{
    m_stockBox->setEnabled(true);
}

int ICInitCtl::stockListIndex() const
{
    return m_stockBox->currentIndex();
}

void ICInitCtl::tvICInit_NodeClick(const QString &key)
{
    const qint32 logHandle = LogStart(NodeClickLog);
    try {
        const int index = m_tree->nodeTag(key);
        if (m_currentNode < 0)
            m_currentNode = index;
        if (m_mode == Mode::Entry && (index < 0 || index >= m_stocks.size()))
            throw LumoError(CtlError::SubscriptOutOfRange, QStringLiteral("下标越界：%1").arg(index),
                            QStringLiteral("tvICInit_NodeClick"));
        if (!confirmLeave()) {
            m_tree->selectNode(currentNodeKey());
            LogEnd(logHandle, 0);
            return;
        }
        m_currentNode = index;
        loadRows(1);
        // The selector beside the tree names the warehouse on screen (none at the root).
        if (m_mode == Mode::Entry) {
            m_stockBox->setCurrentIndex(m_stockBox->findData(index));
            setNodeCommandsVisible(m_stocks.at(index).isStockMgr == 0);
        }
        barList()->setEnabled(EntryKeys::Save, false);
        barList()->setEnabled(EntryKeys::FSave, false);
        RefreshToolbar();
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("tvICInit_NodeClick"), error);
    }
    LogEnd(logHandle, 0);
    m_grid->setFocus();
}

void ICInitCtl::loadRows(int pageIndex)
{
    // Rows are kept only at a warehouse without stock places or at a stock place.
    if (m_mode == Mode::Check || m_currentNode == 0 || m_stocks.at(m_currentNode).isStockMgr != 0) {
        m_sheet->clear();
    } else {
        const WarehouseEntry &entry = m_stocks.at(m_currentNode);
        m_sheet->setPlace({entry.id, entry.stockPlace, entry.typeId});
        m_sheet->loadPage(pageIndex, mlngPerPageSize());
    }
    showPages();
    m_saver->changes().clear();
    setMBlsIsNewData(false);
    setFindEnabled();
}

void ICInitCtl::showPages()
{
    setMlngPageIndex(m_sheet->pageIndex());
    setMTotalPages(m_sheet->totalPages());
    m_pageBar->setPages(m_sheet->pageIndex(), m_sheet->totalPages());
}

QString ICInitCtl::pageLabel() const
{
    return m_pageBar->label();
}

void ICInitCtl::PageCommand(const QString &key)
{
    if (m_currentNode < 0)
        return;
    int page = mlngPageIndex();
    if (key == PageBar::FirstPage)
        page = 1;
    else if (key == PageBar::PreviousPage)
        page = page - 1;
    else if (key == PageBar::NextPage)
        page = page + 1;
    else if (key == PageBar::LastPage)
        page = mTotalPages();
    else if (key == PageBar::SearchPage)
        page = m_pageBar->typedPage();
    else
        return;
    page = qBound(1, page, qMax(1, mTotalPages()));
    if (!confirmLeave())
        return;
    try {
        loadRows(page);
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("PageCommand"), error);
    }
}

void ICInitCtl::setSaveEnabled(bool enabled)
{
    const bool allowed = enabled && m_mode == Mode::Entry && LibraryState::instance().periodOpen;
    barList()->setEnabled(EntryKeys::Save, allowed);
    barList()->setEnabled(EntryKeys::FSave, allowed);
}

void ICInitCtl::markRowChanged(int row)
{
    m_grid->cells()->setText(row, EntryCol::Flag, QStringLiteral("1"));
    m_saver->changes().setDirty(true);
    setMBlsIsNewData(true);
    if (!barList()->isEnabled(EntryKeys::Save)) {
        setSaveEnabled(true);
        RefreshToolbar();
    }
}

// Each edit of a figure is checked against its group at once; the complete row check runs when
// the row is saved.
bool ICInitCtl::checkEditedGroup(int row, int col, const QVariant &value)
{
    if (!m_sheet->isItemRow(row))
        return true;
    const CellModel &cells = *m_grid->cells();
    for (const auto &g : ItemRows::groups()) {
        if (col != g.quantity && col != g.amount && col != g.difference)
            continue;
        const auto figure = [&](int c) { return c == col ? value.toDouble() : cells.number(row, c); };
        BalanceRules rules{m_sheet->place().stockType, SysParams::toBool(SysParam::UnderStock),
                           SysParams::toInt(SysParam::AuditChoice)};
        // A quantity is typed before its amount: a missing amount is judged when the row is saved.
        if (col == g.quantity)
            rules.auditChoice = 0;
        int emptyGroups = 0;
        const BalanceVerdict verdict = BalanceCheck::check(figure(g.quantity), figure(g.amount),
                                                           figure(g.difference), emptyGroups, false, 0, rules);
        if (!verdict.valid)
            tellUser(verdict.message());
        return verdict.valid;
    }
    return true;
}

void ICInitCtl::onAfterEdit(int row, int col)
{
    if (!m_sheet->isItemRow(row) || col == EntryCol::Flag)
        return;
    if (col == EntryCol::Number && m_sheet->isNewRow(row)) {
        try {
            const ItemEntry::Outcome outcome = ItemEntry::enterCode(*m_sheet, row, m_grid->cells()->text(row, col));
            if (!outcome.filled) {
                tellUser(outcome.message);
                SpreadConsole::moveToCell(*m_grid, row, EntryCol::Number);
                return;
            }
        } catch (const LumoError &error) {
            reportProcedureError(QStringLiteral("FillItemDetailByF7"), error);
            return;
        }
    }
    markRowChanged(row);
}

void ICInitCtl::onCellClicked(int row, int col)
{
    if (col != EntryCol::Mark || !m_sheet->isItemRow(row))
        return;
    const ItemInfo *info = m_sheet->itemInfo(int(m_grid->cells()->number(row, EntryCol::ItemID)));
    if (!info || !info->hasDetailLines() || m_sheet->isNewRow(row))
        return;
    // Unfolding starts from saved figures: pending changes are saved first, without asking.
    if (barList()->isEnabled(EntryKeys::Save) && !SaveData())
        return;
    try {
        m_sheet->toggleBatchLines(row);
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("FillBatManDetailByRs"), error);
    }
}

void ICInitCtl::onCellButtonClick(int row, int col)
{
    if (col != EntryCol::Batch || !m_sheet->isItemRow(row))
        return;
    // The batch lines hang on the item row's saved key: a new or changed row is saved first.
    if (barList()->isEnabled(EntryKeys::Save) && !SaveData())
        return;
    const std::unique_ptr<frmBatchManager> dialog = batchDialogFor(row);
    if (!dialog)
        return;
    dialog->ShowDialog();
    if (!dialog->SavedBatMan())
        return;
    try {
        loadRows(mlngPageIndex());
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("FillBatManDetailByRs"), error);
    }
}

std::unique_ptr<frmBatchManager> ICInitCtl::batchDialogFor(int row)
{
    if (!m_sheet->isItemRow(row))
        return {};
    const CellModel &cells = *m_grid->cells();
    const ItemInfo *info = m_sheet->itemInfo(int(cells.number(row, EntryCol::ItemID)));
    if (!info || !info->hasDetailLines())
        return {};
    ItemInfo item = *info;
    item.auxPropId = int(cells.number(row, EntryCol::AuxPropID));
    auto dialog = std::make_unique<frmBatchManager>(this);
    // The dialog reads the item's collection when it opens; it keeps it until then.
    Dictionary *itemKey = item.toItemKey().release();
    itemKey->setParent(dialog.get());
    dialog->setBMItemKey(itemKey);
    dialog->setCurrentBMStock(m_sheet->place().stockId);
    dialog->setCurrentBMSPlace(m_sheet->place().spId);
    dialog->setCurrentBMItem(item.id);
    dialog->setCurrentUnitID(int(cells.number(row, EntryCol::UnitID)));
    dialog->setCurrentSecUnitID(int(cells.number(row, EntryCol::SecUnitID)));
    dialog->setFieldCompose(cells.text(row, EntryCol::FieldCompose));
    dialog->setLVSColor(int(SettingsStore::rgbNumber(m_sheet->colors().lock)));
    dialog->setStockType(m_sheet->place().stockType);
    return dialog;
}

bool ICInitCtl::SaveData()
{
    setStatusText(Msg::Saving);
    bool saved = false;
    try {
        const EntrySaver::Outcome outcome = m_saver->save();
        if (!outcome.saved) {
            tellUser(outcome.message);
            SpreadConsole::moveToCell(*m_grid, outcome.refusedRow, outcome.refusedCol);
        } else {
            saved = true;
            setSaveEnabled(false);
            setMBlsIsNewData(false);
            m_sheet->refreshTotals();
            RefreshToolbar();
        }
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("SaveData"), error);
    }
    setStatusText(Msg::Ready);
    return saved;
}

bool ICInitCtl::confirmLeave()
{
    if (askToSave(m_saver->changes(), barList()->isEnabled(EntryKeys::Save)))
        return SaveData();
    setSaveEnabled(false);
    return true;
}

void ICInitCtl::beforeUnload()
{
    confirmLeave();
}

int ICInitCtl::AddNewRow()
{
    const WarehouseEntry *place = m_mode == Mode::Entry && m_currentNode > 0 ? &m_stocks.at(m_currentNode) : nullptr;
    if (!place || place->isStockMgr != 0)
        return 0;
    const int row = m_sheet->addNewRow();
    SpreadConsole::moveToCell(*m_grid, row, EntryCol::Number);
    return row;
}

bool ICInitCtl::DeleteCurrentRow()
{
    const int row = m_grid->row();
    if (!m_sheet->isItemRow(row))
        return false;
    if (m_sheet->isExpanded(row)) {
        tellUser(QStringLiteral("该物料已展开，不能删除！"));
        return false;
    }
    m_saver->noteDeleted(m_sheet->removeItemRow(row));
    m_sheet->refreshTotals();
    setMBlsIsNewData(true);
    setSaveEnabled(true);
    RefreshToolbar();
    return true;
}

bool ICInitCtl::showTotals()
{
    if (m_mode != Mode::Entry || m_currentNode < 0)
        return false;
    // The grand total is shown on the last page only.
    if (mTotalPages() > 1 && mlngPageIndex() != mTotalPages()) {
        PageCommand(PageBar::LastPage);
        if (mlngPageIndex() != mTotalPages())
            return false;
    }
    m_sheet->refreshTotals();
    const int row = m_sheet->totalsRow();
    if (row <= 0)
        return false;
    SpreadConsole::moveToCell(*m_grid, row, EntryCol::Number);
    return true;
}

QString ICInitCtl::currentNodeKey() const
{
    for (const QString &key : m_tree->nodeKeys()) {
        if (m_tree->nodeTag(key) == m_currentNode)
            return key;
    }
    return {};
}

void ICInitCtl::setNodeCommandsVisible(bool visible)
{
    const QVector<QString> reconciliation = commandKeys(CommandFlag::Reconciliation);
    for (const QString &key : commandKeys(CommandFlag::NodeDependent) + QVector<QString>{EntryKeys::Separator2, EntryKeys::Separator3})
        barList()->setVisible(key, visible && (reconciliationExists() || !reconciliation.contains(key)));
}

bool ICInitCtl::reconciliationExists() const
{
    return SysParams::current() && SysParams::toInt(SysParam::AuditChoice) != 0;
}

void ICInitCtl::runCommand(const QString &key)
{
    const EntryCommandSpec *declared = entryCommandForKey(key);
    if (!declared)
        return;
    switch (declared->command) {
    case EntryCommand::Exit:
        closeHostFrame();
        break;
    case EntryCommand::Refresh:
        if (m_currentNode >= 0 && confirmLeave())
            loadRows(mlngPageIndex());
        RefreshToolbar();
        break;
    case EntryCommand::Save:
        SaveData();
        break;
    case EntryCommand::AddNew:
        AddNewRow();
        break;
    case EntryCommand::Delete:
        DeleteCurrentRow();
        break;
    case EntryCommand::Sum:
        showTotals();
        break;
    case EntryCommand::Tree:
        m_treePane->setHidden(!m_treePane->isHidden());
        break;
    case EntryCommand::OrgWidth:
        EntryGridLayout::restoreWidths(*m_grid);
        break;
    case EntryCommand::AutoRefresh: case EntryCommand::ToolBar: case EntryCommand::ToolBarLabel:
    case EntryCommand::StatusBar: case EntryCommand::DefaultStock:
        toggleView(key);
        break;
    default:
        break;
    }
}
