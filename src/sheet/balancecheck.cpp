#include "balancecheck.h"

#include "frame/logincontext.h"
#include "frame/messages.h"
#include "frame/valuationmethods.h"

#include "grid/numberformat.h"

#include <cmath>

namespace {

constexpr int GroupsPerRow = 4;

BalanceVerdict refuse(std::initializer_list<const char *> lines)
{
    BalanceVerdict verdict;
    verdict.valid = false;
    for (const char *line : lines)
        verdict.lines.append(ResString(QString::fromUtf8(line)));
    return verdict;
}

// The figure as the grid shows it. Only a value below one unit of the last decimal can show as
// zero, and nothing else changes a sign or a zero, so larger values are taken as they are.
double shown(double value, int decimals)
{
    if (decimals < 0 || std::abs(value) >= std::pow(10.0, -decimals))
        return value;
    return NumberFormat::roundHalfAway(value, decimals);
}

} // namespace

QString BalanceVerdict::message() const
{
    return lines.join(Msg::LineBreak);
}

namespace BalanceCheck {

BalanceVerdict check(double typedQuantity, double amount, double difference, int &emptyGroups, bool allocate,
                     int track, const BalanceRules &rules)
{
    const double quantity = shown(typedQuantity, rules.quantityDecimals);
    const double value = shown(amount, rules.amountDecimals) + shown(difference, rules.amountDecimals);
    const bool agency = rules.stockType == AgencyStockType;
    if (quantity == 0 && value == 0) {
        ++emptyGroups;
        if (emptyGroups >= GroupsPerRow)
            return refuse({agency ? "录入的数据[数量=0]！" : "录入的数据[数量=0，金额=0]！",
                           "没有实际意义，数据非法！请重新录入！"});
    }
    if (quantity < 0 && !rules.underStock)
        return refuse({"录入的数据[数量<0]！", "但账套不允许负结存,因此数量不能<0！", "数据非法！请重新录入！"});
    if (quantity > 0 && value < 0)
        return refuse({"录入的数据[数量>0，金额<0]！", "单价将出现负数，数据非法！请重新录入！"});
    if (quantity < 0 && value > 0)
        return refuse({"录入的数据[数量<0，金额>0]！", "单价将出现负数，数据非法！请重新录入！"});
    if (quantity != 0 && value == 0 && !agency && rules.auditChoice == 1)
        return refuse({"录入的数据[金额=0]！", "但账套实行数量金额核算,因此金额不能等于0！", "数据非法！请重新录入！"});
    if (allocate && Valuation::isAverage(track) && quantity == 0 && value != 0)
        return refuse({"分摊的数据[数量=0，金额<>0]！", "单价将不一致，数据非法！请重新录入！"});
    return {};
}

} // namespace BalanceCheck
