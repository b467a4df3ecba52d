#pragma once

#include <QString>

#include <array>

// The columns of the batch grid "vsBatMan". Column 0 is the grid's row header; the detail lines
// start at row 1 and are followed by the totals row (and, while amounts are apportioned, by the
// line on which the totals to apportion are typed).
namespace BatCol {
inline constexpr int BatchNo = 1;
inline constexpr int YtdBegQty = 2;
inline constexpr int YtdBegSecQty = 3;
inline constexpr int YtdBegBal = 4;
inline constexpr int YtdBegDiff = 5;
inline constexpr int ReceiveQty = 6;
inline constexpr int ReceiveSecQty = 7;
inline constexpr int Debit = 8;
inline constexpr int ReceiveDiff = 9;
inline constexpr int SendQty = 10;
inline constexpr int SendSecQty = 11;
inline constexpr int Credit = 12;
inline constexpr int SendDiff = 13;
inline constexpr int BegQty = 14;
inline constexpr int BegSecQty = 15;
inline constexpr int BegBal = 16;
inline constexpr int BegDiff = 17;
inline constexpr int StockInDate = 18;
inline constexpr int BillInterID = 19;
inline constexpr int Flag = 20;
inline constexpr int LoadedBatchNo = 21;
inline constexpr int KFDate = 22;
inline constexpr int KFPeriod = 23;
inline constexpr int SNListID = 24;
inline constexpr int Count = 25; // with the row-header column

inline constexpr int FirstFigure = YtdBegQty;
inline constexpr int LastFigure = BegDiff;
inline constexpr int FigureCount = LastFigure - FirstFigure + 1;

inline constexpr bool isFigure(int col) { return col >= FirstFigure && col <= LastFigure; }

// The design titles, indexed by column (column 0 has none).
QString title(int col);
} // namespace BatCol

// What column 20 holds for a line added or edited since loading.
inline const QString LineChangedMark = QStringLiteral("1");

// One balance group of a line: a quantity with its secondary quantity, amount and difference.
struct BatchGroup
{
    int quantity;
    int secQuantity;
    int amount;
    int difference;
};

// The four groups in their fixed order: year opening, received this year, sent this year,
// period opening.
inline constexpr std::array<BatchGroup, 4> BatchGroups{{
    {BatCol::YtdBegQty, BatCol::YtdBegSecQty, BatCol::YtdBegBal, BatCol::YtdBegDiff},
    {BatCol::ReceiveQty, BatCol::ReceiveSecQty, BatCol::Debit, BatCol::ReceiveDiff},
    {BatCol::SendQty, BatCol::SendSecQty, BatCol::Credit, BatCol::SendDiff},
    {BatCol::BegQty, BatCol::BegSecQty, BatCol::BegBal, BatCol::BegDiff},
}};
inline constexpr int YearOpeningGroup = 0;
inline constexpr int ReceivedGroup = 1;
inline constexpr int SentGroup = 2;
inline constexpr int PeriodOpeningGroup = 3;

// The group a figure column belongs to.
inline constexpr const BatchGroup &groupOf(int figureCol)
{
    return BatchGroups[size_t((figureCol - BatCol::FirstFigure) / 4)];
}

// The kind of a figure column within its group.
enum class FigureKind { Quantity, SecQuantity, Amount, Difference };
inline constexpr FigureKind kindOf(int figureCol)
{
    return FigureKind((figureCol - BatCol::FirstFigure) % 4);
}
inline constexpr bool isQuantityKind(int figureCol)
{
    return BatCol::isFigure(figureCol)
           && (kindOf(figureCol) == FigureKind::Quantity || kindOf(figureCol) == FigureKind::SecQuantity);
}
inline constexpr int columnOf(const BatchGroup &group, FigureKind kind)
{
    return group.quantity + int(kind);
}
