#pragma once

#include "frame/lumoicinitial_global.h"

#include <QString>
#include <QStringList>

// The one rule on a quantity, amount and difference group, shared by the entry grid, the batch
// dialogs and the adjustment control.
struct BalanceRules
{
    int stockType = 0;        // the current warehouse's type; 502 keeps quantities only
    bool underStock = false;  // negative stock allowed
    int auditChoice = 0;      // 1: quantity and amount are kept
    // The decimals the grid shows quantities and amounts (and differences) with; the group is
    // judged as shown, so 0.000001 typed into an amount of two decimals is an amount of 0.
    // -1: as many as the value has.
    int quantityDecimals = -1;
    int amountDecimals = -1;
};

struct LUMOICINITIAL_EXPORT BalanceVerdict
{
    bool valid = true;
    QStringList lines; // the refusal's lines, shown joined by CR LF
    QString message() const;
};

namespace BalanceCheck {
inline constexpr int AgencyStockType = 502;

// Checks one group. `emptyGroups` is shared by the four calls of one row: the fourth empty group
// refuses the row. `allocate` and `track` are the batch dialog's: with the allocation flag an
// average-priced item may not carry a value without a quantity.
LUMOICINITIAL_EXPORT BalanceVerdict check(double quantity, double amount, double difference, int &emptyGroups,
                                          bool allocate, int track, const BalanceRules &rules);
} // namespace BalanceCheck
