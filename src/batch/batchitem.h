#pragma once

#include "frame/lumoicinitial_global.h"

#include <QString>

class Dictionary;

// The item whose detail lines the batch dialog edits, as the opener hands it over in the keyed
// collection BMItemKey ("ID", "ShortNum", "Num", "Name", "Model", "FBM", "FKF", "Track",
// "PlanPrice", "UnitID", "QtyDecimal", "PriceDecimal", "KFPeriod", "SecUnitID",
// "SecCoefficient", "AuxPropID"). A missing key reads as 0, false or empty.
struct LUMOICINITIAL_EXPORT BatchItem
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

    static BatchItem fromItemKey(const Dictionary &key);

    // "Name" and, when there is one, "/" and the model.
    QString title() const;
    // The caption of the grid's mode: what the lines hold for this item and accounting.
    QString modeCaption(bool quantitiesOnly) const;
    bool plannedCost() const;
    // Amounts of an average-priced batch item are spread over its batches (one unit price);
    // the account set must keep amounts and offer the apportioning.
    bool apportionApplies(bool shareBalOption, bool keepsAmounts) const;
    // Whether a batch number typed twice is refused at once. With shelf-life management a batch
    // may repeat under another production date, so the complete test waits for the save.
    bool refusesRepeatedBatchOnEntry() const;
};
