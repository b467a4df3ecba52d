#include "entrymode.h"

#include "entry/entrycommands.h"
#include "entry/entryfinding.h"
#include "entry/icinitctl.h"

#include "batch/frmbatchmanager.h"
#include "sheet/entrygridlayout.h"
#include "sheet/entrysaver.h"
#include "sheet/entrysheet.h"
#include "sheet/itementry.h"
#include "sheet/navtree.h"
#include "sheet/balancecheck.h"
#include "sheet/pagebar.h"
#include "sheet/sqltext.h"

#include "frame/barlist.h"
#include "frame/errorbox.h"
#include "frame/librarystate.h"
#include "frame/logincontext.h"
#include "frame/messages.h"
#include "frame/settingsstore.h"
#include "frame/statuspanels.h"
#include "frame/sysparams.h"
#include "frame/waitcursor.h"

#include "frame/clients/calcclient.h"
#include "frame/clients/glviewclient.h"
#include "frame/clients/initialdataclient.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/recordset.h"
#include "frame/automation/progids.h"

#include "grid/cellmodel.h"
#include "grid/gridtexts.h"
#include "grid/spreadconsole.h"
#include "grid/spreadgrid.h"

#include <QComboBox>
#include <QElapsedTimer>

namespace {

const QString NewRowExpanded = QStringLiteral("该物料已展开，不能删除！");
// The status bar panel that tells what the last save wrote, or where rows are entered (the first
// holds the busy text).
constexpr int SavedPanel = 2;

} // namespace

EntryMode::EntryMode(ICInitCtl &ctl)
    : m_ctl(ctl)
    , m_grid(ctl.grid())
    , m_sheet(ctl.sheet())
    , m_tree(ctl.tree())
    , m_stockBox(ctl.stockBox())
    , m_pageBar(ctl.pageBar())
    , m_saver(std::make_unique<EntrySaver>(*ctl.sheet()))
    , m_finding(std::make_unique<EntryFinding>(ctl, *this))
{
    QObject::connect(m_grid, &SpreadGrid::afterEdit, &ctl, [this](int row, int col) { onAfterEdit(row, col); });
    QObject::connect(m_grid, &SpreadGrid::validateEdit, &ctl, [this](int row, int col, const QVariant &value) {
        if (!checkEditedGroup(row, col, value))
            m_grid->cancelEdit();
    });
    QObject::connect(m_grid, &SpreadGrid::cellClicked, &ctl, [this](int row, int col) { onCellClicked(row, col); });
    QObject::connect(m_grid, &SpreadGrid::keyDown, &ctl,
                     [this](int key, Qt::KeyboardModifiers modifiers) { onKeyDown(key, modifiers); });
    QObject::connect(m_grid, &SpreadGrid::cellsRestored, &ctl, [this] { onCellsRestored(); });
    QObject::connect(m_grid, &SpreadGrid::pasteRefused, &ctl, [this](int row, int col, const QString &value) {
        tellUser(ResString(GridText::pasteRefused(m_grid->TextMatrix(Grid::HeaderRow, col), row, value)));
    });
    QObject::connect(m_grid, &SpreadGrid::cellButtonClick, &ctl,
                     [this](int row, int col) { onCellButtonClick(row, col); });
    QObject::connect(m_pageBar, &PageBar::pageCommand, &ctl, [this](const QString &key) { PageCommand(key); });
    QObject::connect(m_stockBox, &QComboBox::activated, &ctl, [this](int index) {
        const int tableIndex = m_stockBox->itemData(index).toInt();
        if (tableIndex >= 0 && tableIndex < m_stocks.size())
            m_tree->clickNode(WarehouseTree::nodeKey(m_stocks.at(tableIndex), tableIndex == 0));
    });
}

EntryMode::~EntryMode() = default;

QString EntryMode::titleKey(bool stockProduct) const
{
    return stockProduct ? Msg::TitleEntryStock : Msg::TitleEntryBusiness;
}

QString EntryMode::selectorKey() const
{
    return Msg::SelectorStock;
}

void EntryMode::nodeShown(int index)
{
    m_stockBox->setCurrentIndex(m_stockBox->findData(index));
    setNodeCommandsVisible(m_stocks.at(index).isStockMgr == 0);
    // A warehouse with stock places shows no rows of its own; the user is told where they are.
    const bool hasPlaces = index > 0 && m_stocks.at(index).isStockMgr != 0;
    m_ctl.statusPanels()->setPanelText(SavedPanel, hasPlaces ? ResString(Msg::EnterAtStockPlaces) : QString());
}

void EntryMode::LoadingStocks()
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
        m_ctl.setCurrentNode(-1);
        for (const TreeNodeSpec &node : WarehouseTree::nodes(m_stocks))
            m_tree->addNode(node.key, node.parentKey, node.text, node.tableIndex, WarehouseTree::NodeImage,
                            WarehouseTree::SelectedImage);
        m_tree->ensureRootVisible();
        m_tree->expandToDepth(0);
        // No place is shown yet: the commands that need one wait for the node click.
        setNodeCommandsVisible(false);
        fillStockList();
        m_ctl.setStatusText(QStringLiteral("%1%2ms  %3%4ms  %5%6ms")
                          .arg(ResString(Msg::FetchTime)).arg(fetched)
                          .arg(ResString(Msg::BuildTableTime)).arg(built)
                          .arg(ResString(Msg::BuildTreeTime)).arg(timer.elapsed()));
        m_ctl.setStatusText(Msg::Ready);
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("LoadingStocks"), error);
    }
}

void EntryMode::fillStockList()
{
    m_stockBox->clear();
    for (int i = 1; i < m_stocks.size(); ++i) {
        const WarehouseEntry &entry = m_stocks.at(i);
        QString text = entry.firstText + QLatin1Char('|') + entry.thirdText;
        if (entry.stockPlace != 0)
            text += ResString(Msg::StockPlaceSuffix);
        m_stockBox->addItem(text, i);
    }
    // The box names a warehouse only once one is shown, or when the default one is about to open.
    const int saved = SettingsStore::intValue(Setting::StockListIndex);
    m_stockBox->setCurrentIndex(SettingsStore::boolValue(Setting::ShowDefaultStock)
                                    ? qBound(-1, saved, m_stockBox->count() - 1)
                                    : -1);
}

void EntryMode::openDefaultStock()
{
    if (!m_ctl.barList()->isChecked(EntryKeys::DefaultStock) || m_stockBox->currentIndex() < 0)
        return;
    const int tableIndex = m_stockBox->currentData().toInt();
    m_tree->clickNode(WarehouseTree::nodeKey(m_stocks.at(tableIndex), false));
}

void EntryMode::loadRows(int pageIndex)
{
    const WaitCursor wait;
    // Rows are kept only at a warehouse without stock places or at a stock place.
    if (!m_ctl.isEntryMode() || m_ctl.currentNode() == 0 || m_stocks.at(m_ctl.currentNode()).isStockMgr != 0) {
        m_sheet->clear();
    } else {
        const WarehouseEntry &entry = m_stocks.at(m_ctl.currentNode());
        m_sheet->setPlace({entry.id, entry.stockPlace, entry.typeId});
        m_sheet->loadPage(pageIndex, m_ctl.mlngPerPageSize());
    }
    showPages();
    m_saver->changes().clear();
    m_grid->clearHistory();
    m_ctl.setMBlsIsNewData(false);
    m_ctl.setFindEnabled();
    m_finding->pageLoaded();
}

void EntryMode::showPages()
{
    m_ctl.setMlngPageIndex(m_sheet->pageIndex());
    m_ctl.setMTotalPages(m_sheet->totalPages());
    m_pageBar->setPages(m_sheet->pageIndex(), m_sheet->totalPages());
}

void EntryMode::PageCommand(const QString &key)
{
    if (m_ctl.currentNode() < 0)
        return;
    int page = m_ctl.mlngPageIndex();
    if (key == PageBar::FirstPage)
        page = 1;
    else if (key == PageBar::PreviousPage)
        page = page - 1;
    else if (key == PageBar::NextPage)
        page = page + 1;
    else if (key == PageBar::LastPage)
        page = m_ctl.mTotalPages();
    else if (key == PageBar::SearchPage)
        page = m_pageBar->typedPage();
    else
        return;
    page = qBound(1, page, qMax(1, m_ctl.mTotalPages()));
    if (!confirmLeave())
        return;
    try {
        loadRows(page);
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("PageCommand"), error);
    }
}

void EntryMode::setSaveEnabled(bool enabled)
{
    const bool allowed = enabled && m_ctl.isEntryMode() && LibraryState::instance().periodOpen;
    m_ctl.barList()->setEnabled(EntryKeys::Save, allowed);
    m_ctl.barList()->setEnabled(EntryKeys::FSave, allowed);
}

void EntryMode::markRowChanged(int row)
{
    m_grid->cells()->setText(row, EntryCol::Flag, QStringLiteral("1"));
    // The grand total follows every edit where it is summed from the grid (a place of one page).
    m_sheet->refreshTotals();
    m_saver->changes().setDirty(true);
    m_ctl.setMBlsIsNewData(true);
    if (!m_ctl.barList()->isEnabled(EntryKeys::Save)) {
        setSaveEnabled(true);
        m_ctl.RefreshToolbar();
    }
}

// Each edit of a figure is checked against its group at once; the complete row check runs when
// the row is saved.
bool EntryMode::checkEditedGroup(int row, int col, const QVariant &value)
{
    if (!m_sheet->isItemRow(row))
        return true;
    const CellModel &cells = *m_grid->cells();
    for (const auto &g : ItemRows::groups()) {
        if (col != g.quantity && col != g.amount && col != g.difference)
            continue;
        const auto figure = [&](int c) { return c == col ? value.toDouble() : cells.number(row, c); };
        BalanceRules rules{m_sheet->place().stockType, SysParams::toBool(SysParam::UnderStock),
                           SysParams::toInt(SysParam::AuditChoice), cells.cellStyle(row, g.quantity).decimals(),
                           cells.cellStyle(row, g.amount).decimals()};
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

void EntryMode::onAfterEdit(int row, int col)
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

void EntryMode::onCellClicked(int row, int col)
{
    if (col != EntryCol::Mark || !m_sheet->isItemRow(row))
        return;
    const ItemInfo *info = m_sheet->itemInfo(int(m_grid->cells()->number(row, EntryCol::ItemID)));
    if (!info || !info->hasDetailLines() || m_sheet->isNewRow(row))
        return;
    // Unfolding starts from saved figures: pending changes are saved first, without asking.
    if (m_ctl.barList()->isEnabled(EntryKeys::Save) && !SaveData())
        return;
    try {
        m_sheet->toggleBatchLines(row);
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("FillBatManDetailByRs"), error);
    }
}

void EntryMode::onKeyDown(int key, Qt::KeyboardModifiers modifiers)
{
    if (m_grid->isEditing())
        return;
    const bool ctrl = modifiers.testFlag(Qt::ControlModifier);
    if (key == Qt::Key_PageUp || key == Qt::Key_PageDown) {
        if (key == Qt::Key_PageUp)
            PageCommand(ctrl ? PageBar::FirstPage : PageBar::PreviousPage);
        else
            PageCommand(ctrl ? PageBar::LastPage : PageBar::NextPage);
        m_grid->consumeKey();
        return;
    }
    if (key == Qt::Key_F3) {
        m_finding->findNext(modifiers.testFlag(Qt::ShiftModifier));
        m_grid->consumeKey();
        return;
    }
    const int row = m_grid->row();
    if (m_grid->col() != EntryCol::Mark || ctrl || modifiers.testFlag(Qt::AltModifier))
        return;
    const bool expanded = m_sheet->isExpanded(row);
    if (key == Qt::Key_Space || (key == Qt::Key_Plus && !expanded) || (key == Qt::Key_Minus && expanded)) {
        onCellClicked(row, EntryCol::Mark);
        m_grid->consumeKey();
    }
}

void EntryMode::onCellsRestored()
{
    m_sheet->refreshTotals();
}

void EntryMode::onCellButtonClick(int row, int col)
{
    if (col != EntryCol::Batch || !m_sheet->isItemRow(row))
        return;
    // Pending edits are saved only on the user's Yes; otherwise they stay pending. A new row
    // has no saved key to hang lines on, so it opens the dialog only once saved.
    if (m_ctl.barList()->isEnabled(EntryKeys::Save)) {
        if (askYesNo(Msg::AskSave)) {
            if (!SaveData())
                return;
        } else if (m_sheet->isNewRow(row)) {
            return;
        }
    }
    const std::unique_ptr<frmBatchManager> dialog = batchDialogFor(row);
    if (!dialog)
        return;
    dialog->ShowDialog();
    if (!dialog->SavedBatMan())
        return;
    try {
        // Only the item's own row follows its new lines; a row whose lines were all deleted
        // leaves the page, which is reloaded when nothing else is pending.
        if (!m_sheet->refreshItemRow(row) && !m_ctl.barList()->isEnabled(EntryKeys::Save))
            loadRows(m_ctl.mlngPageIndex());
        showPages();
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("FillBatManDetailByRs"), error);
    }
}

std::unique_ptr<frmBatchManager> EntryMode::batchDialogFor(int row)
{
    if (!m_sheet->isItemRow(row))
        return {};
    const CellModel &cells = *m_grid->cells();
    const ItemInfo *info = m_sheet->itemInfo(int(cells.number(row, EntryCol::ItemID)));
    if (!info || !info->hasDetailLines())
        return {};
    ItemInfo item = *info;
    item.auxPropId = int(cells.number(row, EntryCol::AuxPropID));
    auto dialog = std::make_unique<frmBatchManager>(&m_ctl);
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

bool EntryMode::SaveData()
{
    const WaitCursor wait;
    m_ctl.setStatusText(Msg::Saving);
    bool saved = false;
    try {
        const EntrySaver::Outcome outcome = m_saver->save();
        if (!outcome.saved) {
            tellUser(outcome.message);
            SpreadConsole::moveToCell(*m_grid, outcome.refusedRow, outcome.refusedCol);
        } else {
            saved = true;
            if (!outcome.sentNothing)
                m_ctl.statusPanels()->setPanelText(
                    SavedPanel, ResString(Msg::SavedRows.arg(outcome.written))
                                    + (outcome.deleted > 0 ? ResString(Msg::DeletedRows.arg(outcome.deleted)) : QString()));
            setSaveEnabled(false);
            m_grid->clearHistory();
            m_ctl.setMBlsIsNewData(false);
            m_ctl.RefreshToolbar();
            m_sheet->refetchTotals();
            showPages();
        }
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("SaveData"), error);
    }
    m_ctl.setStatusText(Msg::Ready);
    return saved;
}

bool EntryMode::confirmLeave()
{
    if (askToSave(m_saver->changes(), m_ctl.barList()->isEnabled(EntryKeys::Save)))
        return SaveData();
    setSaveEnabled(false);
    return true;
}

bool EntryMode::confirmClose()
{
    if (!m_ctl.barList()->isEnabled(EntryKeys::Save))
        return true;
    switch (askYesNoCancel(Msg::AskSave)) {
    case Prompter::Answer::Yes:
        return SaveData();
    case Prompter::Answer::No:
        m_saver->changes().clear();
        setSaveEnabled(false);
        return true;
    default:
        return false;
    }
}

bool EntryMode::canAddRows() const
{
    const WarehouseEntry *place = m_ctl.isEntryMode() && m_ctl.currentNode() > 0 ? &m_stocks.at(m_ctl.currentNode()) : nullptr;
    return place && place->isStockMgr == 0;
}

int EntryMode::AddNewRow()
{
    if (!canAddRows())
        return 0;
    const int row = m_sheet->addNewRow();
    SpreadConsole::moveToCell(*m_grid, row, EntryCol::Number);
    return row;
}

bool EntryMode::lookUpItem()
{
    int row = m_grid->row();
    const bool intoCurrentRow = m_sheet->isNewRow(row);
    if (!intoCurrentRow && !canAddRows())
        return false;
    try {
        const QString typed = intoCurrentRow ? m_grid->cells()->text(row, EntryCol::Number).trimmed() : QString();
        const std::unique_ptr<Recordset> item = GLViewClient().ItemLookUp(ItemEntry::StockItemClasses, typed, &m_ctl);
        if (!item)
            return false;
        // A refused item leaves the grid as it was: no row is added for it.
        const QString refusal = ItemEntry::pickedRefusal(*m_sheet, intoCurrentRow ? row : 0, *item);
        if (!refusal.isEmpty()) {
            tellUser(refusal);
            return false;
        }
        if (!intoCurrentRow)
            row = AddNewRow();
        ItemEntry::FillItemDetailByF7(*m_sheet, row, *item, 0);
        SpreadConsole::moveToCell(*m_grid, row, EntryCol::Number);
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("FillItemDetailByF7"), error);
        return false;
    }
    markRowChanged(row);
    return true;
}

bool EntryMode::DeleteCurrentRow()
{
    const int row = m_grid->row();
    if (!m_sheet->isItemRow(row))
        return false;
    if (m_sheet->isExpanded(row)) {
        tellUser(NewRowExpanded);
        return false;
    }
    m_saver->noteDeleted(m_sheet->removeItemRow(row));
    m_sheet->refreshTotals();
    m_ctl.setMBlsIsNewData(true);
    setSaveEnabled(true);
    m_ctl.RefreshToolbar();
    return true;
}

bool EntryMode::showTotals()
{
    if (!m_ctl.isEntryMode() || m_ctl.currentNode() < 0)
        return false;
    // The grand total is shown on the last page only.
    if (m_ctl.mTotalPages() > 1 && m_ctl.mlngPageIndex() != m_ctl.mTotalPages()) {
        PageCommand(PageBar::LastPage);
        if (m_ctl.mlngPageIndex() != m_ctl.mTotalPages())
            return false;
    }
    m_sheet->refreshTotals();
    const int row = m_sheet->totalsRow();
    if (row <= 0)
        return false;
    SpreadConsole::moveToCell(*m_grid, row, EntryCol::Number);
    return true;
}

void EntryMode::calculateIntoCell()
{
    try {
        const CalcClient calculator;
        if (!calculator.Show())
            return;
        const int row = m_grid->row();
        const int col = m_grid->col();
        if (row <= Grid::HeaderRow || col <= Grid::HeaderCol)
            return;
        const QString columnTitle = m_grid->TextMatrix(Grid::HeaderRow, col);
        if (!askYesNo(Msg::askWriteBack(columnTitle), Msg::SystemCaption))
            return;
        const QString text = SqlText::number(calculator.Value());
        switch (m_grid->tryEditCell(row, col, text)) {
        case Grid::EditResult::Accepted:
        case Grid::EditResult::Unchanged:
        case Grid::EditResult::Cancelled: // the check that refused it has said why
            break;
        case Grid::EditResult::OutOfRange:
            tellUser(Msg::writeBackOutOfRange(text, columnTitle));
            break;
        default:
            tellUser(Msg::writeBackRefused(text, columnTitle));
            break;
        }
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("mnuECal_Click"), error);
    }
}

void EntryMode::setNodeCommandsVisible(bool visible)
{
    const QVector<QString> reconciliation = commandKeys(CommandFlag::Reconciliation);
    const BarList::Batch oneRedraw(*m_ctl.barList());
    for (const QString &key : commandKeys(CommandFlag::NodeDependent) + QVector<QString>{EntryKeys::Separator2, EntryKeys::Separator3})
        m_ctl.barList()->setVisible(key, visible && (m_ctl.reconciliationExists() || !reconciliation.contains(key)));
}

