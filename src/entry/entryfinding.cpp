#include "entryfinding.h"

#include "entry/entrymode.h"
#include "entry/icinitctl.h"

#include "dialogs/frmfindfiltersort.h"

#include "sheet/entrygridlayout.h"
#include "sheet/entrysheet.h"

#include "frame/errorbox.h"
#include "frame/librarystate.h"
#include "frame/logincontext.h"
#include "frame/messages.h"
#include "frame/settingsstore.h"
#include "frame/statuspanels.h"
#include "frame/sysparams.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/lumoerror.h"

#include "grid/cellmodel.h"
#include "grid/spreadconsole.h"
#include "grid/spreadgrid.h"

#include <QHash>

namespace {

// The status bar panel that tells what a find or filter selected.
constexpr int ResultPanel = 2;
const QString UseShortNumber = QStringLiteral("UseShortNumber");

const QStringList &filterKeys()
{
    static const QStringList keys{FilterKey::Filter, FilterKey::ActualFilter, FilterKey::VirtualFilter,
                                  FilterKey::Sort};
    return keys;
}

// The grid column of each field the dialog offers over item rows.
const QHash<QString, int> &fieldColumns()
{
    using namespace EntryCol;
    static const QHash<QString, int> columns{
        {QStringLiteral("FNumber"), Number},         {QStringLiteral("FShortNumber"), Number},
        {QStringLiteral("FItemName"), Name},         {QStringLiteral("FModel"), Model},
        {QStringLiteral("FUnitName"), Unit},         {QStringLiteral("FTrackName"), Track},
        {QStringLiteral("FInitYtdBegQty"), YtdBegQty}, {QStringLiteral("FInitYtdBegBal"), YtdBegBal},
        {QStringLiteral("FInitYtdBegDiff"), YtdBegDiff}, {QStringLiteral("FInitYtdReceive"), ReceiveQty},
        {QStringLiteral("FInitYtdDebit"), Debit},    {QStringLiteral("FInitYtdReceiveDiff"), ReceiveDiff},
        {QStringLiteral("FInitYtdSend"), SendQty},   {QStringLiteral("FInitYtdCredit"), Credit},
        {QStringLiteral("FInitYtdSendDiff"), SendDiff}, {QStringLiteral("FInitBegQty"), BegQty},
        {QStringLiteral("FInitBegBal"), BegBal},     {QStringLiteral("FInitBegDiff"), BegDiff},
        {QStringLiteral("FKFDate"), KFDate},         {QStringLiteral("FKFPeriod"), KFPeriod},
    };
    return columns;
}

} // namespace

EntryFinding::EntryFinding(ICInitCtl &ctl, EntryMode &mode)
    : m_ctl(ctl)
    , m_mode(mode)
    , m_sheet(*ctl.sheet())
{
}

EntryFinding::~EntryFinding() = default;

std::unique_ptr<frmFindFilterSort> EntryFinding::dialogFor(FfsAction action)
{
    auto dialog = std::make_unique<frmFindFilterSort>(&m_ctl);
    dialog->setCurrentMode(int(FfsMode::EntryItem));
    dialog->setCurrentAction(int(action));
    dialog->setStockID(m_sheet.place().stockId);
    dialog->setLVSColor(int(SettingsStore::rgbNumber(m_sheet.colors().lock)));
    dialog->setUseShortNumber(SysParams::current() && SysParams::toBool(UseShortNumber));
    frmFindFilterSort *opened = dialog.get();
    QObject::connect(opened, &frmFindFilterSort::Find, &m_ctl,
                     [this, opened](bool) { frmFFS_Find(opened->session().matcher()); });
    QObject::connect(opened, &frmFindFilterSort::Filter, &m_ctl,
                     [this](const QString &expression) { frmFFS_Filter(expression); });
    QObject::connect(opened, &frmFindFilterSort::Sort, &m_ctl,
                     [this](const QString &expression) { frmFFS_Sort(expression); });
    m_keptFilters.clear();
    const Dictionary *filters = LibraryState::instance().filters();
    for (const QString &key : filterKeys())
        m_keptFilters.append(filters ? filters->Item(key).toString() : QString());
    return dialog;
}

bool EntryFinding::openDialog(FfsAction action)
{
    // A filter or sort reloads the rows: what is pending is saved first or the dialog stays shut.
    if (action != FfsAction::Find && !m_mode.confirmLeave())
        return false;
    dialogFor(action)->ShowDialog();
    return true;
}

void EntryFinding::frmFFS_Find(const FindMatcher &matcher)
{
    m_matcher = matcher;
    const QVector<int> rows = markPage();
    if (!rows.isEmpty())
        SpreadConsole::moveToCell(*m_ctl.grid(), rows.first(), EntryCol::Number);
}

void EntryFinding::frmFFS_Filter(const QString &)
{
    reloadFiltered(QStringLiteral("frmFFS_Filter"));
}

void EntryFinding::frmFFS_Sort(const QString &)
{
    reloadFiltered(QStringLiteral("frmFFS_Sort"));
}

void EntryFinding::reloadFiltered(const QString &procedure)
{
    // The dialog may have been opened for a find and turned to another tab: pending edits are
    // still offered for saving before the rows are reloaded.
    if (!m_mode.confirmLeave()) {
        restoreFilters();
        return;
    }
    try {
        m_mode.loadRows(1);
        tell(ResString(Msg::FilteredRows.arg(m_sheet.recordCount())));
        return;
    } catch (const LumoError &error) {
        reportProcedureError(procedure, error);
    }
    restoreFilters();
    try {
        m_mode.loadRows(1);
    } catch (const LumoError &error) {
        reportProcedureError(procedure, error);
    }
}

void EntryFinding::restoreFilters()
{
    Dictionary *filters = LibraryState::instance().filters();
    for (int i = 0; filters && i < filterKeys().size() && i < m_keptFilters.size(); ++i)
        filters->setItem(filterKeys().at(i), m_keptFilters.at(i));
}

void EntryFinding::pageLoaded()
{
    if (!m_matcher.isEmpty())
        markPage();
}

QVector<int> EntryFinding::markPage()
{
    QVector<int> rows;
    const int last = m_sheet.lastDataRow();
    for (int row = 1; row <= last && !m_matcher.isEmpty(); ++row) {
        if ((m_sheet.isItemRow(row) || m_sheet.isBatchLine(row))
            && m_matcher.matches([this, row](const QString &field) { return fieldValue(row, field); }))
            rows.append(row);
    }
    m_sheet.markFound(rows);
    tell(ResString(Msg::FoundRows.arg(rows.size())));
    return rows;
}

bool EntryFinding::findNext(bool backwards)
{
    if (m_matcher.isEmpty())
        return false;
    SpreadGrid &grid = *m_ctl.grid();
    const auto matches = [this](int row) {
        return (m_sheet.isItemRow(row) || m_sheet.isBatchLine(row))
               && m_matcher.matches([this, row](const QString &field) { return fieldValue(row, field); });
    };
    const int step = backwards ? -1 : 1;
    const int startRow = grid.row();
    for (int row = startRow + step; row >= 1 && row <= m_sheet.lastDataRow(); row += step) {
        if (matches(row))
            return SpreadConsole::moveToCell(grid, row, EntryCol::Number);
    }
    // On to the pages before or after, as long as nothing pending holds the page.
    const int startPage = m_sheet.pageIndex();
    for (int page = startPage + step; page >= 1 && page <= m_sheet.totalPages(); page += step) {
        if (!m_mode.confirmLeave())
            return false;
        try {
            m_mode.loadRows(page);
        } catch (const LumoError &error) {
            reportProcedureError(QStringLiteral("FindNext"), error);
            return false;
        }
        const QVector<int> rows = markPage();
        if (!rows.isEmpty())
            return SpreadConsole::moveToCell(grid, backwards ? rows.last() : rows.first(), EntryCol::Number);
    }
    // Nothing further: back where the search started.
    if (m_sheet.pageIndex() != startPage) {
        try {
            m_mode.loadRows(startPage);
            SpreadConsole::moveToCell(grid, startRow, EntryCol::Number);
        } catch (const LumoError &error) {
            reportProcedureError(QStringLiteral("FindNext"), error);
        }
    }
    tell(ResString(Msg::NoMoreFound));
    return false;
}

QVariant EntryFinding::fieldValue(int row, const QString &field) const
{
    const int col = fieldColumns().value(field, -1);
    if (col < 0)
        return {};
    const CellModel &cells = *m_ctl.grid()->cells();
    const QVariant value = cells.value(row, col);
    return value.typeId() == QMetaType::Double || value.typeId() == QMetaType::QDate ? value
                                                                                     : QVariant(cells.text(row, col));
}

void EntryFinding::tell(const QString &text)
{
    m_ctl.statusPanels()->setPanelText(ResultPanel, text);
}
