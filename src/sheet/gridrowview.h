#pragma once

#include "sheet/rowcheck.h"
#include "frame/lumoicinitial_global.h"

class CellModel;

// One row of the entry grid as the row check reads it. The view reads the cells when asked, so
// it must not outlive the grid's row.
class LUMOICINITIAL_EXPORT GridRowView : public EntryRowView
{
public:
    GridRowView(const CellModel &cells, int row);

    qint32 itemId() const override;
    QString itemCode() const override;
    qint32 unitId() const override;
    bool auxPropLocked() const override;
    qint32 auxPropId() const override;
    qint32 auxClassId() const override;
    GroupFigures group(int index) const override;
    int quantityDecimals() const override;
    int amountDecimals() const override;
    double secCoefficient() const override;
    qint32 secUnitId() const override;
    QDate stockInDate() const override;
    QString fieldCompose() const override;
    bool batchCellLocked() const override;

private:
    qint32 id(int col) const;

    const CellModel &m_cells;
    int m_row;
};
