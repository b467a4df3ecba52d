#include "batch/linebalance.h"

#include "batch/batchline.h"

namespace LineBalance {

bool balances(double yearOpening, double received, double sent, double periodOpening)
{
    // As the cells hold them: a rounding here would pass lines the saved figures do not balance.
    return yearOpening == periodOpening + sent - received;
}

std::array<int, 4> columns(FigureKind kind)
{
    std::array<int, 4> cols{};
    for (size_t g = 0; g < BatchGroups.size(); ++g)
        cols[g] = columnOf(BatchGroups[g], kind);
    return cols;
}

QList<FigureKind> unbalanced(const BatchLine &line)
{
    QList<FigureKind> out;
    for (FigureKind kind : {FigureKind::Quantity, FigureKind::SecQuantity, FigureKind::Amount, FigureKind::Difference}) {
        const std::array<int, 4> c = columns(kind);
        if (!balances(line.figure(c[YearOpeningGroup]), line.figure(c[ReceivedGroup]), line.figure(c[SentGroup]),
                      line.figure(c[PeriodOpeningGroup])))
            out.append(kind);
    }
    return out;
}

} // namespace LineBalance
