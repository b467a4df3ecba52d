#pragma once

#include "frame/lumoicinitial_global.h"

#include <QString>

#include <memory>

class Dictionary;
class Recordset;

// What the control keeps beside the grid for every item shown: editing, unfolding and the batch
// dialog read an item's flags and precisions from here rather than from the grid.
struct ItemInfo
{
    qint32 id = 0;
    QString shortNumber;
    QString number;
    QString name;
    QString model;
    bool batchManaged = false;     // FBM
    bool shelfLifeManaged = false; // FKF
    qint32 track = 0;
    double planPrice = 0;
    qint32 unitId = 0;
    int qtyDecimal = 0;
    int priceDecimal = 0;
    qint32 kfPeriod = 0;
    qint32 secUnitId = 0;
    double secCoefficient = 0;
    qint32 auxPropId = 0;
    qint32 auxClassId = 0;
    QString auxClassName;

    bool hasDetailLines() const { return batchManaged || shelfLifeManaged; }

    // From the current record of an item recordset (the fields FetchYtdInitialData delivers).
    static ItemInfo fromRecord(const Recordset &rs, int row);
    // The keyed record the batch dialog reads ("ID", "ShortNum", "Num", ...).
    std::unique_ptr<Dictionary> toItemKey() const;
};
