#include "openingline.h"

#include "db/sqlrun.h"

#include <cmath>

namespace {

constexpr int MoneyDecimals = 2;
constexpr int SecondaryDecimals = 4;

double rounded(double value, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    return std::round(value * scale) / scale;
}

} // namespace

const QStringList &OpeningLine::columns()
{
    static const QStringList names{QStringLiteral("FBrNo"),
                                   QStringLiteral("FPeriod"),
                                   QStringLiteral("FStockID"),
                                   QStringLiteral("FSPID"),
                                   QStringLiteral("FItemID"),
                                   QStringLiteral("FUnitID"),
                                   QStringLiteral("FBatchNo"),
                                   QStringLiteral("FYtdAuxBegQty"),
                                   QStringLiteral("FYtdBegBal"),
                                   QStringLiteral("FYtdBegDiff"),
                                   QStringLiteral("FYtdAuxReceive"),
                                   QStringLiteral("FYtdDebit"),
                                   QStringLiteral("FYtdReceiveDiff"),
                                   QStringLiteral("FYtdAuxSend"),
                                   QStringLiteral("FYtdCredit"),
                                   QStringLiteral("FYtdSendDiff"),
                                   QStringLiteral("FAuxBegQty"),
                                   QStringLiteral("FBegBal"),
                                   QStringLiteral("FBegDiff"),
                                   QStringLiteral("FAuxUnitBegQty"),
                                   QStringLiteral("FYtdAuxUnitBegQty"),
                                   QStringLiteral("FYtdAuxUnitSend"),
                                   QStringLiteral("FYtdAuxUnitReceive"),
                                   QStringLiteral("FStockInDate"),
                                   QStringLiteral("FSecUnitID"),
                                   QStringLiteral("FAuxPropID"),
                                   QStringLiteral("FSecCoefficient"),
                                   QStringLiteral("FFieldCompose"),
                                   QStringLiteral("FSNListID"),
                                   QStringLiteral("FBillInterID"),
                                   QStringLiteral("FKFDate"),
                                   QStringLiteral("FKFPeriod")};
    return names;
}

QString OpeningLine::fieldCompose(int period) const
{
    return QStringLiteral("%1|%2|%3|%4|%5").arg(stockId).arg(placeId).arg(period).arg(itemId).arg(auxPropId);
}

QVariantList OpeningLine::values(int period) const
{
    const double yearStartQty = openingQty + issuedQty - receivedQty;
    const auto money = [this](double qty) { return rounded(qty * price, MoneyDecimals); };
    const auto secondary = [this](double qty) {
        return secCoefficient > 0 ? rounded(qty / secCoefficient, SecondaryDecimals) : 0.0;
    };
    return {QStringLiteral("0"),
            period,
            stockId,
            placeId,
            itemId,
            unitId,
            SqlRun::text(batchNo),
            yearStartQty,
            money(yearStartQty),
            openingDiff,
            receivedQty,
            money(receivedQty),
            0.0,
            issuedQty,
            money(issuedQty),
            0.0,
            openingQty,
            money(openingQty),
            openingDiff,
            secondary(openingQty),
            secondary(yearStartQty),
            secondary(issuedQty),
            secondary(receivedQty),
            SqlRun::text(stockInDate),
            secUnitId,
            auxPropId,
            secCoefficient,
            fieldCompose(period),
            snListId,
            billInterId,
            SqlRun::text(kfDate),
            kfPeriod};
}
