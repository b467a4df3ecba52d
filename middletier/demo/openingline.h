#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>

// One initial balance as the demo writes it: an item row (no batch, no production date) or a
// batch / shelf-life line. The year-start figures follow from the rule every line keeps:
// year start = opening + issued this year - received this year.
struct OpeningLine
{
    int stockId = 0;
    int placeId = 0;
    int itemId = 0;
    int unitId = 0;
    int auxPropId = 0;
    int secUnitId = 0;
    double secCoefficient = 0; // units per secondary unit; 0 without a secondary unit
    QString batchNo;
    QString stockInDate; // "yyyy-mm-dd"
    QString kfDate;      // production date of a shelf-life line
    int kfPeriod = 0;
    double openingQty = 0;
    double price = 0;
    double receivedQty = 0;
    double issuedQty = 0;
    double openingDiff = 0; // material-cost difference (planned cost)
    int billInterId = 0;
    int snListId = 0;

    static const QStringList &columns();
    // Values in the order of columns().
    QVariantList values(int period) const;
    QString fieldCompose(int period) const;
};
