#pragma once

#include "frame/lumoicinitial_global.h"

#include <QString>

#include <memory>

class Dictionary;
class Recordset;

// An item as every item grid keeps it beside its rows: editing, unfolding and the batch dialog
// read its flags and precisions from here rather than from the grid. The batch dialog receives it
// in the keyed collection BMItemKey ("ID", "ShortNum", "Num", "Name", "Model", "FBM", "FKF",
// "Track", "PlanPrice", "UnitID", "QtyDecimal", "PriceDecimal", "KFPeriod", "SecUnitID",
// "SecCoefficient", "AuxPropID", "AuxClassID"); a missing key reads as 0, false or empty.
struct LUMOICINITIAL_EXPORT ItemInfo
{
    qint32 id = 0;
    QString shortNumber;
    QString number;
    QString name;
    QString model;
    bool batchManaged = false;     // FBM
    bool shelfLifeManaged = false; // FKF
    qint32 track = 0;              // valuation method code
    double planPrice = 0;
    qint32 unitId = 0;
    int qtyDecimal = 0;
    int priceDecimal = 0;
    qint32 kfPeriod = 0; // default shelf life in days
    qint32 secUnitId = 0;
    double secCoefficient = 0;
    qint32 auxPropId = 0;
    qint32 auxClassId = 0;
    QString auxClassName;

    bool hasDetailLines() const { return batchManaged || shelfLifeManaged; }
    // "Name" and, when there is one, "/" and the model.
    QString title() const;
    bool plannedCost() const;
    // Amounts of an average-priced batch item are spread over its batches (one unit price);
    // the account set must keep amounts and offer the apportioning.
    bool apportionApplies(bool shareBalOption, bool keepsAmounts) const;
    // Whether a batch number typed twice is refused at once. With shelf-life management a batch
    // may repeat under another production date, so the complete test waits for the save.
    bool refusesRepeatedBatchOnEntry() const;

    // From a record of an item recordset (the fields FetchYtdInitialData delivers).
    static ItemInfo fromRecord(const Recordset &rs, int row);
    // From a record of the item look-up (FetchYtdItemDetail), which names some fields otherwise.
    static ItemInfo fromItemRecord(const Recordset &rs, int row);
    static ItemInfo fromItemKey(const Dictionary &key);
    std::unique_ptr<Dictionary> toItemKey() const;
};
