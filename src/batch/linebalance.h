#pragma once

#include "batch/batchlayout.h"
#include "frame/lumoicinitial_global.h"

#include <QList>

struct BatchLine;

// The balance of one line: for quantities, secondary quantities, amounts and differences alike,
// year opening = period opening + sent this year - received this year.
namespace LineBalance {

LUMOICINITIAL_EXPORT bool balances(double yearOpening, double received, double sent, double periodOpening);

// The figure kinds whose four columns do not balance on the line, tested on the unrounded values.
LUMOICINITIAL_EXPORT QList<FigureKind> unbalanced(const BatchLine &line);

// The four columns of a kind: year opening, received, sent, period opening.
LUMOICINITIAL_EXPORT std::array<int, 4> columns(FigureKind kind);

} // namespace LineBalance
