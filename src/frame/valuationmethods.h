#pragma once

#include "lumoicinitial_global.h"

#include <QString>

// Valuation methods of items (the item field FTrack).
namespace Valuation {
inline constexpr int WeightedAverage = 76;
inline constexpr int MovingAverage = 77;
inline constexpr int Fifo = 78;
inline constexpr int Lifo = 79;
inline constexpr int BatchMovingAverage = 80;
inline constexpr int PlannedCost = 81;
inline constexpr int BatchFifo = 20308;

// The method's name; empty for a code outside the table.
LUMOICINITIAL_EXPORT QString name(int code);
// Weighted or moving average: one unit price for the whole item.
LUMOICINITIAL_EXPORT bool isAverage(int code);
} // namespace Valuation
