#pragma once

#include "sheet/rowcheck.h"

#include <array>

// A row of plain values: a complete, valid row of an ordinary item unless a test changes it.
struct FakeRowView : EntryRowView
{
    qint32 item = 3057;
    QString code = QStringLiteral("1.01.001");
    qint32 unit = 7;
    bool auxLocked = true;
    qint32 auxProp = 0;
    qint32 auxClass = 0;
    std::array<GroupFigures, GroupCount> groups{{{10, 0, 100, 0}, {0, 0, 0, 0}, {0, 0, 0, 0}, {10, 0, 100, 0}}};
    double rate = 0;
    qint32 secUnit = 0;
    QDate stockIn;
    QString key;
    bool batchLocked = true;
    int qtyDecimals = 2;
    int amountScale = 2;

    qint32 itemId() const override { return item; }
    QString itemCode() const override { return code; }
    qint32 unitId() const override { return unit; }
    bool auxPropLocked() const override { return auxLocked; }
    qint32 auxPropId() const override { return auxProp; }
    qint32 auxClassId() const override { return auxClass; }
    GroupFigures group(int index) const override { return groups.at(size_t(index)); }
    int quantityDecimals() const override { return qtyDecimals; }
    int amountDecimals() const override { return amountScale; }
    double secCoefficient() const override { return rate; }
    qint32 secUnitId() const override { return secUnit; }
    QDate stockInDate() const override { return stockIn; }
    QString fieldCompose() const override { return key; }
    bool batchCellLocked() const override { return batchLocked; }
};
