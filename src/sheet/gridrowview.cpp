#include "gridrowview.h"

#include "sheet/entrygridlayout.h"
#include "sheet/itemrows.h"

#include "grid/cellmodel.h"
#include "grid/celltext.h"

#include <cmath>

GridRowView::GridRowView(const CellModel &cells, int row)
    : m_cells(cells)
    , m_row(row)
{
}

qint32 GridRowView::id(int col) const
{
    return qint32(std::lround(m_cells.number(m_row, col)));
}

qint32 GridRowView::itemId() const
{
    return id(EntryCol::ItemID);
}

QString GridRowView::itemCode() const
{
    return m_cells.editText(m_row, EntryCol::Number);
}

qint32 GridRowView::unitId() const
{
    return id(EntryCol::UnitID);
}

bool GridRowView::auxPropLocked() const
{
    return m_cells.cellLocked(m_row, EntryCol::AuxProp);
}

qint32 GridRowView::auxPropId() const
{
    return id(EntryCol::AuxPropID);
}

qint32 GridRowView::auxClassId() const
{
    return id(EntryCol::AuxClassID);
}

GroupFigures GridRowView::group(int index) const
{
    const ItemRows::GroupColumns &cols = ItemRows::groups()[index];
    return {m_cells.number(m_row, cols.quantity), m_cells.number(m_row, cols.auxQuantity),
            m_cells.number(m_row, cols.amount), m_cells.number(m_row, cols.difference)};
}

// Every group shows its figures alike, so the first one speaks for the row.
int GridRowView::quantityDecimals() const
{
    return m_cells.cellStyle(m_row, ItemRows::groups()[0].quantity).decimals();
}

int GridRowView::amountDecimals() const
{
    return m_cells.cellStyle(m_row, ItemRows::groups()[0].amount).decimals();
}

double GridRowView::secCoefficient() const
{
    return m_cells.number(m_row, EntryCol::SecCoefficient);
}

qint32 GridRowView::secUnitId() const
{
    return id(EntryCol::SecUnitID);
}

QDate GridRowView::stockInDate() const
{
    // A date cell holds a QDate; a column not (yet) typed as dates holds the text as typed.
    const QVariant value = m_cells.value(m_row, EntryCol::StockInDate);
    if (value.typeId() == QMetaType::QDate)
        return value.toDate();
    return CellText::parseDate(value.toString());
}

QString GridRowView::fieldCompose() const
{
    return m_cells.editText(m_row, EntryCol::FieldCompose);
}

bool GridRowView::batchCellLocked() const
{
    return m_cells.cellLocked(m_row, EntryCol::Batch);
}
