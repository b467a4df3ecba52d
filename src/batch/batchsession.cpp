#include "batch/batchsession.h"

#include "batch/apportion.h"
#include "batch/batchscript.h"
#include "batch/batchtexts.h"
#include "sheet/recordvalues.h"
#include "batch/linebalance.h"

#include "frame/errorbox.h"
#include "frame/librarystate.h"
#include "frame/logincontext.h"
#include "frame/messages.h"
#include "frame/prompter.h"
#include "frame/settingsstore.h"
#include "frame/sysparams.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/recordset.h"

#include "grid/bulkupdate.h"
#include "grid/cellmodel.h"
#include "grid/numberformat.h"

#include <algorithm>

namespace {

// The start date of the current period, "mmddyyyy": the stock-in date of a line without one.
const QString StartDateParam = QStringLiteral("CPStartDate");

// The line on which the totals to apportion are typed.
const QColor InputLineColor{255, 250, 215};

// The groups split by the apportioning, in the order they are split.
constexpr int ApportionedGroups[] = {PeriodOpeningGroup, YearOpeningGroup};

} // namespace

BatchSession::BatchSession(CellModel &cells, QObject *parent)
    : QObject(parent)
    , m_cells(cells)
    , m_sheet(cells)
{
    m_handover.lockColor = SettingsStore::colorValue(Setting::LockColor);
    connect(&m_cells, &CellModel::validateEdit, this, &BatchSession::onValidateEdit);
    connect(&m_cells, &CellModel::afterEdit, this, &BatchSession::onAfterEdit);
}

void BatchSession::open()
{
    m_item = m_handover.itemKey ? ItemInfo::fromItemKey(*m_handover.itemKey) : ItemInfo{};
    m_quantitiesOnly = m_handover.quantitiesOnly.value_or(SysParams::toInt(SysParam::AuditChoice) == 0);
    m_startDate = RecordValues::date(SysParams::toText(StartDateParam));
    m_apportioned = false;
    m_changed = false;
    m_saved = false;
    m_deletedSerialLists.clear();

    try {
        m_amountScale = BatchServices::fetchAmountScale();
    } catch (const LumoError &error) {
        reportProcedureError(BatchMsg::ProcAmountScale, error);
    }
    try {
        m_coefficients = BatchServices::fetchCoefficients(m_item.id, m_handover.unitId, m_handover.secUnitId);
    } catch (const LumoError &error) {
        reportProcedureError(BatchMsg::ProcCoefficients, error);
    }

    BatchSheetLook look;
    look.amountScale = m_amountScale;
    look.quantitiesOnly = m_quantitiesOnly;
    look.secondaryShown = m_handover.secUnitId > 0;
    look.lockColor = m_handover.lockColor;
    look.sumColor = SettingsStore::colorValue(Setting::SumColor);
    look.inputColor = InputLineColor;
    m_sheet.build(m_item, look);

    try {
        BatchServices::DetailQuery query;
        query.period = SysParams::toInt(SysParam::CurrentPeriod);
        query.stockId = m_handover.stockId;
        query.spId = m_handover.spId;
        query.itemId = m_handover.itemId;
        query.auxPropId = m_item.auxPropId;
        query.unitId = m_handover.unitId;
        query.batchManaged = m_item.batchManaged;
        query.shelfLifeManaged = m_item.shelfLifeManaged;
        query.fieldCompose = m_handover.fieldCompose;
        const std::unique_ptr<Recordset> records = BatchServices::fetchDetail(query);
        const int count = records->RecordCount();
        emit progressChanged(0, count);
        m_sheet.fillLines(*records, m_startDate, [this, count](int filled) { emit progressChanged(filled, count); });
    } catch (const LumoError &error) {
        reportProcedureError(BatchMsg::ProcFill, error);
    }
    m_sheet.refreshTotals();
    emit progressChanged(0, 1);
    emit apportionedChanged(false);
}

bool BatchSession::apportionOffered() const
{
    return m_item.apportionApplies(SysParams::toBool(SysParam::ShareBal), SysParams::toInt(SysParam::AuditChoice) != 0);
}

void BatchSession::setApportioned(bool on)
{
    if (on == m_apportioned || (on && !apportionOffered()))
        return;
    m_apportioned = on;
    if (on) {
        m_sheet.openInputLine();
        emit focusRequested(m_sheet.inputRow(), BatCol::YtdBegBal);
    } else {
        m_sheet.closeInputLine();
        m_sheet.resetQuantityDecimals(BatCol::BegQty);
    }
    emit apportionedChanged(on);
}

void BatchSession::cellsRestored()
{
    apportion();
    m_sheet.refreshTotals();
}

bool BatchSession::hasChanges() const
{
    if (m_changed)
        return true;
    for (int row = 1; row <= m_sheet.lineCount(); ++row) {
        if (m_cells.text(row, BatCol::Flag) == LineChangedMark)
            return true;
    }
    return false;
}

int BatchSession::addLine()
{
    const std::optional<qint32> shelfLife = m_item.shelfLifeManaged ? std::optional<qint32>(m_item.kfPeriod)
                                                                    : std::nullopt;
    // Record numbers run library-wide, across items, dialogs and controls: the line takes the next
    // one, and never one that a line of this item already holds.
    qint64 &counter = LibraryState::instance().iniBillInterId;
    counter = std::max(counter, qint64(m_sheet.highestBillInterId())) + 1;
    const int row = m_sheet.appendLine(m_startDate, shelfLife, qint32(counter));
    m_changed = true;
    m_sheet.refreshTotals();
    emit focusRequested(row, m_item.batchManaged ? BatCol::BatchNo : BatCol::YtdBegQty);
    return row;
}

bool BatchSession::deleteLine(int row)
{
    if (!m_sheet.isLine(row))
        return false;
    const BatchLine line = m_sheet.line(row);
    if (line.locked)
        return false;
    if (line.snListId > 0 && !m_deletedSerialLists.contains(line.snListId))
        m_deletedSerialLists.append(line.snListId);
    m_sheet.removeLine(row);
    m_changed = true;
    apportion();
    m_sheet.refreshTotals();
    return true;
}

int BatchSession::balanceTest()
{
    int failing = 0;
    int firstRow = -1;
    int firstCol = -1;
    for (int row = 1; row <= m_sheet.lineCount(); ++row) {
        const QList<FigureKind> kinds = LineBalance::unbalanced(m_sheet.line(row));
        m_sheet.markUnbalanced(row, kinds);
        if (kinds.isEmpty())
            continue;
        if (failing++ == 0) {
            firstRow = row;
            firstCol = LineBalance::columns(kinds.first())[YearOpeningGroup];
        }
    }
    if (failing > 0)
        emit focusRequested(firstRow, firstCol);
    return failing;
}

bool BatchSession::save()
{
    const QList<BatchLine> lines = m_sheet.lines();
    const ApportionState state{apportionOffered(), m_apportioned, hasChanges()};
    if (const std::optional<BatchRefusal> refused = BatchValidation::checkBeforeSave(m_item, rules(), state, lines)) {
        warn(refused->message);
        if (refused->row >= 0)
            emit focusRequested(refused->row, refused->col);
        return false;
    }
    const QString script = saveScript();
    emit progressChanged(0, 1);
    try {
        BatchServices::updateINIData(script);
    } catch (const LumoError &error) {
        emit progressChanged(0, 1);
        reportProcedureError(BatchMsg::ProcSave, error);
        return false;
    }
    emit progressChanged(1, 1);
    // The script wrote the counter back; the parameter follows so nobody writes it again.
    if (Dictionary *params = SysParams::current())
        params->setItem(SysParam::INIBillInterID, LibraryState::instance().iniBillInterId);
    m_saved = true;
    m_changed = false;
    m_deletedSerialLists.clear();
    m_sheet.markSaved();
    return true;
}

bool BatchSession::confirmClose()
{
    if (!hasChanges() || !askYesNo(Msg::AskSave))
        return true;
    return save();
}

QString BatchSession::saveScript() const
{
    BatchScriptKey key;
    key.stockId = m_handover.stockId;
    key.spId = m_handover.spId;
    key.period = SysParams::toInt(SysParam::CurrentPeriod);
    key.itemId = m_item.id;
    key.auxPropId = m_item.auxPropId;
    key.unitId = m_handover.unitId;
    key.secUnitId = m_handover.secUnitId;
    key.secCoefficient = m_item.secCoefficient;
    key.fieldCompose = m_handover.fieldCompose;
    const qint64 counter = LibraryState::instance().iniBillInterId;
    if (counter != SysParams::toInt(SysParam::INIBillInterID))
        key.recordCounter = counter;
    return BatchScript::build(key, m_sheet.lines(), m_deletedSerialLists);
}

void BatchSession::onValidateEdit(int row, int col, const QVariant &value)
{
    if (col != BatCol::BatchNo || !m_sheet.isLine(row))
        return;
    const std::optional<QString> refused = BatchValidation::checkTypedBatch(
        m_item, value.toString(), m_cells.text(row, BatCol::LoadedBatchNo), m_sheet.otherBatchNumbers(row));
    if (!refused)
        return;
    m_cells.cancelEdit();
    warn(*refused);
    emit focusRequested(row, col);
}

void BatchSession::onAfterEdit(int row, int col)
{
    if (row == m_sheet.inputRow()) {
        apportion();
        m_sheet.refreshTotals();
        return;
    }
    if (!m_sheet.isLine(row) || col == BatCol::Flag)
        return;
    if (isQuantityKind(col)) {
        convertUnits(row, col);
        applyPlanPrice(row, col);
    }
    // An apportioned line's amount follows its quantity before the pair is judged.
    if (col == BatCol::YtdBegQty || col == BatCol::BegQty)
        apportion();
    if (BatCol::isFigure(col)) {
        BatchRules editRules = rules();
        // A quantity is typed before its amount, as in the entry grid: a missing amount is judged
        // when the line is saved.
        if (isQuantityKind(col))
            editRules.balance.auditChoice = 0;
        const BalanceVerdict verdict = BatchValidation::checkGroup(m_sheet.line(row), groupOf(col), m_item, editRules);
        if (!verdict.valid) {
            // The figure stays so that it can be corrected; the save checks the line again.
            warn(verdict.message());
            emit focusRequested(row, col);
        }
    }
    m_sheet.markChanged(row);
    m_changed = true;
    m_sheet.refreshTotals();
}

void BatchSession::convertUnits(int row, int col)
{
    // Both quantities of a group stay in step when both units belong to the item's unit group.
    if (m_handover.secUnitId <= 0 || m_coefficients.unit <= 0 || m_coefficients.secondary <= 0)
        return;
    const int decimals = m_cells.cellStyle(row, col).decimals();
    const double typed = m_cells.number(row, col);
    if (kindOf(col) == FigureKind::Quantity) {
        const double secondary = typed * m_coefficients.unit / m_coefficients.secondary;
        m_sheet.setFigure(row, col + 1, NumberFormat::roundHalfAway(secondary, decimals));
    } else {
        const double quantity = typed * m_coefficients.secondary / m_coefficients.unit;
        m_sheet.setFigure(row, col - 1, NumberFormat::roundHalfAway(quantity, decimals));
    }
}

void BatchSession::applyPlanPrice(int row, int col)
{
    // Amounts are neither shown nor kept when the account set keeps quantities only.
    if (!m_item.plannedCost() || m_quantitiesOnly)
        return;
    const BatchGroup &group = groupOf(col);
    const double amount = m_cells.number(row, group.quantity) * m_item.planPrice;
    m_sheet.setFigure(row, group.amount, NumberFormat::roundHalfAway(amount, m_amountScale));
}

void BatchSession::apportion()
{
    if (!m_apportioned)
        return;
    BulkUpdate bulk(m_cells);
    for (int groupIndex : ApportionedGroups) {
        const BatchGroup &group = BatchGroups[size_t(groupIndex)];
        const QList<std::optional<double>> amounts = Apportion::split(
            m_sheet.quantities(group.quantity), m_sheet.inputTotal(group.amount), m_amountScale);
        for (int i = 0; i < amounts.size(); ++i) {
            const int row = i + 1;
            if (!amounts[i] || m_cells.value(row, group.amount) == QVariant(*amounts[i]))
                continue;
            m_sheet.setFigure(row, group.amount, *amounts[i]);
            m_sheet.markChanged(row);
            m_changed = true;
        }
    }
}

BatchRules BatchSession::rules() const
{
    BatchRules rules;
    rules.balance.stockType = m_handover.stockType;
    rules.balance.underStock = SysParams::toBool(SysParam::UnderStock);
    rules.balance.auditChoice = SysParams::toInt(SysParam::AuditChoice);
    rules.balance.quantityDecimals = m_item.qtyDecimal;
    rules.balance.amountDecimals = m_amountScale;
    rules.allocate = apportionOffered();
    return rules;
}

void BatchSession::warn(const QString &text) const
{
    Prompter::current().ask({ResString(Msg::Caption), text, Prompter::Buttons::Ok, Prompter::Icon::Warning});
}
