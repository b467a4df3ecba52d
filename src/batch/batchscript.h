#pragma once

#include "frame/lumoicinitial_global.h"

#include <QList>
#include <QString>

#include <optional>

struct BatchLine;

// Whose detail lines a script writes: the item row's place, period and item, the units and its
// composed key.
struct BatchScriptKey
{
    qint32 stockId = 0;
    qint32 spId = 0;
    qint32 period = 0;
    qint32 itemId = 0;
    qint32 auxPropId = 0;
    qint32 unitId = 0;
    qint32 secUnitId = 0;
    double secCoefficient = 0;
    QString fieldCompose; // the item row's composed key as loaded; empty for none
    // The record counter INIBillInterID after the lines were numbered; set when it moved, so that
    // the system profile is written in the same script as the rows it numbers.
    std::optional<qint64> recordCounter;
};

// The SQL script that replaces an item's detail lines in ICInvInitial: the item's rows are
// deleted (by place and item, and by the item row's composed key), every line is inserted again,
// the serial-number lists of deleted lines are cleared, and a moved record counter is written
// back. Statements are joined by CR LF.
namespace BatchScript {

LUMOICINITIAL_EXPORT QString build(const BatchScriptKey &key, const QList<BatchLine> &lines,
                                   const QList<qint32> &deletedSerialLists);

} // namespace BatchScript
