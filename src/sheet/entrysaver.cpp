#include "entrysaver.h"

#include "sheet/entrygridlayout.h"
#include "sheet/entrysheet.h"
#include "sheet/gridrowview.h"
#include "sheet/itemrows.h"
#include "sheet/sqltext.h"
#include "sheet/rowcheck.h"
#include "sheet/savescript.h"

#include "frame/icinitstruct.h"
#include "frame/librarystate.h"
#include "frame/sysparams.h"

#include "frame/clients/initialdataclient.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/progids.h"

#include "grid/bulkupdate.h"
#include "grid/cellmodel.h"

#include <vector>

namespace {

const QString RowChanged = QStringLiteral("1");

} // namespace

EntrySaver::EntrySaver(EntrySheet &sheet)
    : m_sheet(sheet)
{
}

void EntrySaver::noteDeleted(const QString &itemAndAuxProp)
{
    if (!itemAndAuxProp.isEmpty())
        m_changes.addDeleted(itemAndAuxProp);
    m_changes.setDirty(true);
}

void EntrySaver::normaliseRow(int row)
{
    CellModel &cells = m_sheet.cells();
    for (const auto &g : ItemRows::groups()) {
        for (int col : {g.quantity, g.auxQuantity, g.amount, g.difference}) {
            if (cells.value(row, col).isValid())
                cells.setNumber(row, col, SqlText::roundFigure(cells.number(row, col)));
        }
    }
}

EntrySaver::Outcome EntrySaver::save()
{
    CellModel &cells = m_sheet.cells();
    const int last = m_sheet.lastDataRow();
    const auto flagged = [&cells](int row) { return cells.text(row, EntryCol::Flag) == RowChanged; };

    for (int row = 1; row <= last; ++row) {
        if (m_sheet.isItemRow(row) && flagged(row))
            normaliseRow(row);
    }

    const auto auxClassName = [this](qint32 classId) { return m_sheet.auxClassName(classId); };
    std::vector<std::unique_ptr<ICInitStruct>> checked;
    for (int row = 1; row <= last; ++row) {
        if (!m_sheet.isItemRow(row) || !flagged(row))
            continue;
        auto record = std::make_unique<ICInitStruct>();
        const RowVerdict verdict = RowCheck::check(GridRowView(cells, row), m_sheet.place(), auxClassName, *record);
        if (!verdict.valid)
            return {false, false, row, verdict.column, verdict.message};
        checked.push_back(std::move(record));
    }
    // Only a save whose rows all passed puts them into the bookkeeping.
    for (auto &record : checked)
        m_changes.putChanged(std::move(record));

    if (m_changes.isEmpty()) {
        m_changes.setDirty(false);
        Outcome nothing;
        nothing.saved = true;
        nothing.sentNothing = true;
        return nothing;
    }
    const QString script = SaveScript::build(m_changes.changedRows(), m_changes.deletedRows(), m_sheet.place(),
                                             SysParams::toInt(SysParam::CurrentPeriod));
    Outcome done;
    done.written = int(m_changes.changedRows().size());
    done.deleted = int(m_changes.deletedRows().size());
    m_changes.clear();
    InitialDataClient(ProgId::MICInitialData).UpdateINIData(script);
    markSaved();

    // The record counter numbered by the batch dialogs goes back to the system profile.
    const qint64 held = LibraryState::instance().iniBillInterId;
    if (held != SysParams::toInt(SysParam::INIBillInterID)) {
        InitialDataClient(ProgId::MICInitialData).UpdateINIData(SaveScript::systemProfileUpdate(held));
        SysParams::current()->setItem(SysParam::INIBillInterID, held);
    }
    done.saved = true;
    return done;
}

void EntrySaver::markSaved()
{
    CellModel &cells = m_sheet.cells();
    BulkUpdate bulk(cells);
    const qint32 period = SysParams::toInt(SysParam::CurrentPeriod);
    for (int row = 1; row <= m_sheet.lastDataRow(); ++row) {
        if (!m_sheet.isItemRow(row) || cells.text(row, EntryCol::Flag) != RowChanged)
            continue;
        cells.setText(row, EntryCol::Flag, QString());
        // The row now carries the key its insert or update wrote.
        cells.setText(row, EntryCol::FieldCompose,
                      FFieldCompose(m_sheet.place().stockId, m_sheet.place().spId, period,
                                    qint32(cells.number(row, EntryCol::ItemID)),
                                    qint32(cells.number(row, EntryCol::AuxPropID))));
        m_sheet.markRowSaved(row);
    }
}
