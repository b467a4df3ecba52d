#pragma once

#include "frame/lumoicinitial_global.h"

#include <QDate>
#include <QString>

#include <functional>

class ICInitStruct;
struct EntryPlace;

// The figures of one of a row's four groups (year start, receipts, issues, opening).
struct GroupFigures
{
    double quantity = 0;
    double auxQuantity = 0; // the quantity in the secondary unit
    double amount = 0;
    double difference = 0;
};

// What the row check reads from one row of the entry grid. The grid implements it over its cells
// (GridRowView); tests implement it over plain values.
class LUMOICINITIAL_EXPORT EntryRowView
{
public:
    static constexpr int GroupCount = 4;

    virtual ~EntryRowView() = default;

    virtual qint32 itemId() const = 0;
    virtual QString itemCode() const = 0;
    virtual qint32 unitId() const = 0;
    // The auxiliary property cell is unlocked only for items under an auxiliary class.
    virtual bool auxPropLocked() const = 0;
    virtual qint32 auxPropId() const = 0;
    virtual qint32 auxClassId() const = 0;
    // Group 0 to 3 in the order year start, receipts, issues, opening.
    virtual GroupFigures group(int index) const = 0;
    // The decimals the row shows its quantities and its amounts with.
    virtual int quantityDecimals() const = 0;
    virtual int amountDecimals() const = 0;
    virtual double secCoefficient() const = 0;
    virtual qint32 secUnitId() const = 0;
    // Invalid when the cell is empty.
    virtual QDate stockInDate() const = 0;
    // The key the row was loaded with; empty on a new row.
    virtual QString fieldCompose() const = 0;
    // The batch cell is unlocked (a button) only on items under batch or shelf-life management.
    virtual bool batchCellLocked() const = 0;
};

// The outcome of a row check: either valid, or the message to show (lines joined by CR LF) and
// the column the cursor goes to so that the user lands on the cell to correct.
struct RowVerdict
{
    bool valid = true;
    QString message;
    int column = 0;
};

// The name of an auxiliary class by its id, as the item entry knows it.
using AuxClassNameLookup = std::function<QString(qint32 auxClassId)>;

namespace RowCheck {

// Checks one row before it is kept for saving: item, item code, unit, auxiliary property, then the
// four balance groups with one shared empty-group counter, judged as the row shows them. Reads the
// system parameters CurrentPeriod, UnderStock and AuditChoice. Only a valid row fills `record`
// (place, period, ids, figures rounded to ten decimals, dates as "yyyy-MM-dd"); a refused one
// leaves it as it was.
LUMOICINITIAL_EXPORT RowVerdict check(const EntryRowView &row, const EntryPlace &place,
                                      const AuxClassNameLookup &auxClassName, ICInitStruct &record);

} // namespace RowCheck
