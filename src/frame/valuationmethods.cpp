#include "valuationmethods.h"

#include "logincontext.h"

namespace Valuation {

QString name(int code)
{
    switch (code) {
    case WeightedAverage: return ResString(QStringLiteral("加权平均法"));
    case MovingAverage: return ResString(QStringLiteral("移动平均法"));
    case Fifo: return ResString(QStringLiteral("先进先出法"));
    case Lifo: return ResString(QStringLiteral("后进先出法"));
    case BatchMovingAverage: return ResString(QStringLiteral("分批认定法-批内移动平均"));
    case PlannedCost: return ResString(QStringLiteral("计划成本法"));
    case BatchFifo: return ResString(QStringLiteral("分批认定法-批内先进先出"));
    default: return {};
    }
}

bool isAverage(int code)
{
    return code == WeightedAverage || code == MovingAverage;
}

} // namespace Valuation
