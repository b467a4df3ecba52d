#include "batch/apportion.h"

#include "grid/numberformat.h"

namespace Apportion {

QList<std::optional<double>> split(const QList<std::optional<double>> &quantities, double total, int scale)
{
    double sum = 0;
    for (const std::optional<double> &q : quantities) {
        if (q)
            sum += *q;
    }
    const double price = sum == 0 ? 0 : total / sum;

    QList<std::optional<double>> amounts;
    amounts.reserve(quantities.size());
    double remaining = sum;
    double handedOut = 0;
    for (const std::optional<double> &q : quantities) {
        if (!q) {
            amounts.append(std::nullopt);
            continue;
        }
        remaining -= *q;
        // Exactly zero on purpose: the residue goes to the line that uses up the quantity, and
        // what is handed out then equals the total, so later lines without quantity get 0.
        const double amount = remaining == 0 ? total - handedOut : NumberFormat::roundHalfAway(*q * price, scale);
        handedOut += amount;
        amounts.append(amount);
    }
    return amounts;
}

} // namespace Apportion
