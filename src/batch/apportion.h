#pragma once

#include "frame/lumoicinitial_global.h"

#include <QList>

#include <optional>

// Spreading a total amount over the batch lines of an average-priced item so that every batch
// carries the same unit price.
namespace Apportion {

// The amounts for lines with the given quantities (in grid order; an empty quantity cell is
// nullopt and its line is skipped, its amount nullopt). The unit price is total / sum of the
// quantities, unrounded; each line gets quantity x price rounded half away from zero to `scale`
// decimals, except the line after which no quantity remains: it gets what is left of the total,
// so that the lines add up to it exactly. When the quantities leave a floating-point remainder
// that is never exactly zero, no line takes the residue.
LUMOICINITIAL_EXPORT QList<std::optional<double>> split(const QList<std::optional<double>> &quantities,
                                                        double total, int scale);

} // namespace Apportion
