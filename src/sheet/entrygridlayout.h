#pragma once

#include "frame/lumoicinitial_global.h"

#include <QString>

class SpreadGrid;

// The columns of the entry grid, by their published numbers.
namespace EntryCol {
inline constexpr int Mark = 1;
inline constexpr int ItemID = 2;
inline constexpr int Number = 3;
inline constexpr int Name = 4;
inline constexpr int Model = 5;
inline constexpr int Unit = 6;
inline constexpr int SecCoefficient = 7;
inline constexpr int SecUnit = 8;
inline constexpr int Track = 9;
inline constexpr int AuxProp = 10;
inline constexpr int Batch = 11;
inline constexpr int YtdBegQty = 12;
inline constexpr int YtdBegAuxQty = 13;
inline constexpr int YtdBegBal = 14;
inline constexpr int YtdBegDiff = 15;
inline constexpr int ReceiveQty = 16;
inline constexpr int ReceiveAuxQty = 17;
inline constexpr int Debit = 18;
inline constexpr int ReceiveDiff = 19;
inline constexpr int SendQty = 20;
inline constexpr int SendAuxQty = 21;
inline constexpr int Credit = 22;
inline constexpr int SendDiff = 23;
inline constexpr int BegQty = 24;
inline constexpr int BegAuxQty = 25;
inline constexpr int BegBal = 26;
inline constexpr int BegDiff = 27;
inline constexpr int StockInDate = 28;
inline constexpr int KFDate = 29;
inline constexpr int KFPeriod = 30;
inline constexpr int UnitID = 31;
inline constexpr int Flag = 32;
inline constexpr int AuxPropID = 33;
inline constexpr int AuxClassID = 34;
inline constexpr int SecUnitID = 35;
inline constexpr int FieldCompose = 36;
// Columns including the row header column 0.
inline constexpr int Count = 37;
} // namespace EntryCol

namespace EntryGridLayout {

// Header text of a column for the industry type (1 retitles column 10 and drops column 30's).
LUMOICINITIAL_EXPORT QString headerText(int col, int industryType);
// Clears the grid, writes the header row, sets the cell types of the date, rate and secondary
// quantity columns, hides the key and hidden-when-built columns and applies the grid colours.
LUMOICINITIAL_EXPORT void build(SpreadGrid &grid, int industryType);
// Heads columns 2 to 5 for item rows ("FItemID", "物料代码", ...) or account rows ("FAccountID",
// "科目代码", "科目名称", "借贷方向").
LUMOICINITIAL_EXPORT void setItemHeaders(SpreadGrid &grid, bool itemRows);
// Shows the amount columns of the four groups, or hides them where the account set keeps
// quantities alone ("AuditChoice" 0).
LUMOICINITIAL_EXPORT void showAmounts(SpreadGrid &grid, bool keepsAmounts);
// Puts every column back to its default width.
LUMOICINITIAL_EXPORT void restoreWidths(SpreadGrid &grid);
// The widths of columns 1 to the last as "w1,w2,...", as the user left them, to be remembered.
LUMOICINITIAL_EXPORT QString widthsText(const SpreadGrid &grid);
// Sets the widths remembered by widthsText; a text that does not fit the columns (another
// version's layout, a hand-edited file) changes nothing.
LUMOICINITIAL_EXPORT void applyWidths(SpreadGrid &grid, const QString &text);

} // namespace EntryGridLayout
