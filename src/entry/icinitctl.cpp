#include "icinitctl.h"

#include "entry/checkmode.h"
#include "entry/entrycommands.h"
#include "entry/entryfinding.h"
#include "entry/entrymode.h"

#include "dialogs/frmcolormanager.h"
#include "dialogs/frmfindfiltersort.h"

#include "sheet/entrygridlayout.h"
#include "sheet/entrysheet.h"
#include "sheet/navtree.h"
#include "sheet/pagebar.h"
#include "frame/barlist.h"
#include "frame/errorbox.h"
#include "frame/librarystate.h"
#include "frame/logincontext.h"
#include "frame/messages.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/progids.h"
#include "grid/spreadgrid.h"
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>
#include "frame/ctlerrors.h"
#include "frame/qllogmsg.h"
#include "frame/settingsstore.h"
#include "frame/sysparams.h"
#include "batch/frmbatchmanager.h"
#include "sheet/entrysaver.h"

namespace {

constexpr int AppTypeStock = 2;
const QString NodeClickLog = QString(ProgId::ICInitCtl) + QStringLiteral(".tvICInit_NodeClick 显示初始化录入界面");

} // namespace

ICInitCtl::ICInitCtl(QWidget *parent)
    : InitControl(parent)
{
    setObjectName(QStringLiteral("ICInitCtl"));
    buildLayout();
    m_entry = std::make_unique<EntryMode>(*this);
    m_check = std::make_unique<CheckMode>(*this);
    m_mode = m_entry.get();
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
    EntryGridLayout::applyWidths(*m_grid, SettingsStore::value(Setting::EntryColWidths).toString());
    connect(m_grid, &SpreadGrid::colWidthDragged, this,
            [this] { SettingsStore::setValue(Setting::EntryColWidths, EntryGridLayout::widthsText(*m_grid)); });
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

    m_pageBar = new PageBar(this);
    m_pageBar->setObjectName(QStringLiteral("pageBar"));
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
    return showControl(ParentWnd, blnIstest, ProgId::MICInitialData);
}

void ICInitCtl::prepareShow()
{
    EntryGridLayout::build(*m_grid, GetIndustryType());
    EntryGridLayout::applyWidths(*m_grid, SettingsStore::value(Setting::EntryColWidths).toString());
    setMode(m_mode);
}

void ICInitCtl::showData(bool blnIstest)
{
    m_sheet->setAmountScale(FetchAmountScale());
    EntryGridLayout::showAmounts(*m_grid, reconciliationExists());
    enableCommands();
    LoadingStocks();
    if (blnIstest && !m_tree->firstKey().isEmpty())
        m_tree->clickNode(m_tree->firstKey());
    else
        m_entry->openDefaultStock();
}

ICInitCtl::Mode ICInitCtl::mode() const
{
    return m_mode->isEntry() ? Mode::Entry : Mode::Check;
}

const QVector<WarehouseEntry> &ICInitCtl::warehouseTable() const
{
    return m_entry->stocks();
}

const QVector<AccountEntry> &ICInitCtl::accountTable() const
{
    return m_check->accounts();
}

qint16 ICInitCtl::amountScale() const
{
    return qint16(m_sheet->amountScale());
}

EntrySaver *ICInitCtl::saver() const
{
    return m_entry->saver();
}

void ICInitCtl::LoadingStocks()
{
    m_entry->LoadingStocks();
}

void ICInitCtl::LoadingAccounts()
{
    m_check->LoadingAccounts();
}

void ICInitCtl::setMode(ControlMode *mode)
{
    m_mode = mode;
    m_title->setText(ResString(mode->titleKey(GetSchemeInfo() == AppTypeStock)));
    m_selectorLabel->setText(ResString(mode->selectorKey()));
    enableCommands();
}

void ICInitCtl::enableCommands()
{
    BarList &bars = *barList();
    const BarList::Batch oneRedraw(bars);
    const bool initialisationOpen = LibraryState::instance().periodOpen;
    const bool rowsLoaded = m_sheet->lastDataRow() > 0;
    for (const EntryCommandSpec &declared : entryCommandTable()) {
        const bool available = declared.available(isEntryMode(), initialisationOpen, rowsLoaded);
        for (const QString &menuKey : declared.menuKeys)
            bars.setEnabled(menuKey, available);
        if (!declared.toolKey.isEmpty())
            bars.setEnabled(declared.toolKey, available);
    }
    // Quantities alone leave nothing to reconcile with the ledger.
    for (const QString &key : commandKeys(CommandFlag::Reconciliation))
        bars.setVisible(key, reconciliationExists());
    // Save follows the unsaved rows and Find the loaded ones.
    m_entry->setSaveEnabled(m_entry->saver()->changes().isDirty());
    setFindEnabled();
}

void ICInitCtl::setFindEnabled()
{
    const bool enabled = entryCommandForKey(EntryKeys::Find)->available(
        isEntryMode(), LibraryState::instance().periodOpen, m_sheet->lastDataRow() > 0);
    barList()->setEnabled(EntryKeys::Find, enabled);
    barList()->setEnabled(EntryKeys::EFind, enabled);
}

void ICInitCtl::switchMode(bool reconciliation)
{
    ControlMode *wanted = reconciliation ? static_cast<ControlMode *>(m_check.get()) : m_entry.get();
    m_modeBox->setCurrentIndex(reconciliation ? 1 : 0);
    if (wanted == m_mode || !confirmLeave()) {
        m_modeBox->setCurrentIndex(isEntryMode() ? 0 : 1);
        return;
    }
    m_sheet->clear();
    m_entry->showPages();
    setMode(wanted);
    EntryGridLayout::setItemHeaders(*m_grid, !reconciliation);
    m_stockBox->setEnabled(!reconciliation);
    m_mode->loadTree();
}

void ICInitCtl::applyDefaultStockSetting()
{
    m_stockBox->setEnabled(true);
}

int ICInitCtl::stockListIndex() const
{
    // With nothing chosen the saved position of the default warehouse stays as it was.
    return m_stockBox->currentIndex() >= 0 ? m_stockBox->currentIndex() : InitControl::stockListIndex();
}

void ICInitCtl::tvICInit_NodeClick(const QString &key)
{
    const int index = m_tree->nodeTag(key);
    if (m_currentNode < 0)
        m_currentNode = index;
    // The save question (and the filter, once the dialog exists) come before the load is logged;
    // a cancel leaves the tree on the node whose rows are still shown.
    if (!confirmLeave()) {
        m_tree->selectNode(currentNodeKey());
        return;
    }
    const qint32 logHandle = LogStart(NodeClickLog);
    try {
        if (isEntryMode() && (index < 0 || index >= warehouseTable().size()))
            throw LumoError(CtlError::SubscriptOutOfRange, QStringLiteral("下标越界：%1").arg(index),
                            QStringLiteral("tvICInit_NodeClick"));
        m_currentNode = index;
        m_entry->loadRows(1);
        if (isEntryMode())
            m_entry->nodeShown(index);
        barList()->setEnabled(EntryKeys::Save, false);
        barList()->setEnabled(EntryKeys::FSave, false);
        RefreshToolbar();
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("tvICInit_NodeClick"), error);
    }
    LogEnd(logHandle, 0);
    m_grid->setFocus();
}

void ICInitCtl::PageCommand(const QString &key)
{
    m_entry->PageCommand(key);
}

QString ICInitCtl::pageLabel() const
{
    return m_pageBar->label();
}

bool ICInitCtl::SaveData()
{
    return m_entry->SaveData();
}

bool ICInitCtl::confirmLeave()
{
    return m_entry->confirmLeave();
}

int ICInitCtl::AddNewRow()
{
    return m_entry->AddNewRow();
}

bool ICInitCtl::DeleteCurrentRow()
{
    return m_entry->DeleteCurrentRow();
}

std::unique_ptr<frmBatchManager> ICInitCtl::batchDialogFor(int row)
{
    return m_entry->batchDialogFor(row);
}

bool ICInitCtl::showTotals()
{
    return m_entry->showTotals();
}

std::unique_ptr<frmFindFilterSort> ICInitCtl::findFilterSortDialog(FfsAction action)
{
    return m_entry->finding()->dialogFor(action);
}

bool ICInitCtl::findNext(bool backwards)
{
    return m_entry->finding()->findNext(backwards);
}

std::unique_ptr<frmColorManager> ICInitCtl::colorDialog()
{
    auto dialog = std::make_unique<frmColorManager>(this);
    dialog->setLVSColor(int(SettingsStore::rgbNumber(m_sheet->colors().lock)));
    dialog->setGVSColor(int(SettingsStore::rgbNumber(m_sheet->colors().sum)));
    return dialog;
}

bool ICInitCtl::confirmClose()
{
    return m_entry->confirmClose();
}

void ICInitCtl::beforeUnload()
{
    confirmLeave();
}

QString ICInitCtl::currentNodeKey() const
{
    for (const QString &key : m_tree->nodeKeys()) {
        if (m_tree->nodeTag(key) == m_currentNode)
            return key;
    }
    return {};
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
            m_entry->loadRows(mlngPageIndex());
        RefreshToolbar();
        break;
    case EntryCommand::Save:
        SaveData();
        break;
    case EntryCommand::AddNew:
        AddNewRow();
        break;
    case EntryCommand::Search:
        m_entry->lookUpItem();
        break;
    case EntryCommand::Delete:
        DeleteCurrentRow();
        break;
    case EntryCommand::Sum:
        showTotals();
        break;
    case EntryCommand::Find:
        m_entry->finding()->openDialog(FfsAction::Find);
        break;
    case EntryCommand::Filter:
        m_entry->finding()->openDialog(FfsAction::Filter);
        break;
    case EntryCommand::Sort:
        m_entry->finding()->openDialog(FfsAction::Sort);
        break;
    case EntryCommand::Color:
        colorDialog()->ShowDialog();
        break;
    case EntryCommand::Calculator:
        m_entry->calculateIntoCell();
        break;
    case EntryCommand::Tree:
        m_treePane->setHidden(!m_treePane->isHidden());
        break;
    case EntryCommand::OrgWidth:
        EntryGridLayout::restoreWidths(*m_grid);
        SettingsStore::setValue(Setting::EntryColWidths, QString());
        break;
    case EntryCommand::AutoRefresh: case EntryCommand::ToolBar: case EntryCommand::ToolBarLabel:
    case EntryCommand::StatusBar: case EntryCommand::DefaultStock:
        toggleView(key);
        break;
    default:
        break;
    }
}
