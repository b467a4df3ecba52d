#pragma once

#include "frame/lumoicinitial_global.h"

#include <QString>
#include <QStringList>
#include <QVector>

// Which field table the find/filter/sort dialog offers: whether the rows are accounts or items,
// and whether the opening control is in entry or in reconciliation view (CurrentMode).
enum class FfsMode { EntryAccount = 0, EntryItem = 1, CheckAccount = 2, CheckItem = 3 };
// What OK does (CurrentAction); also the tab shown.
enum class FfsAction { Find = 0, Filter = 1, Sort = 2 };
// How a line's value is written into an expression.
enum class FfsValueType { Number, Text, Date, Direction };

namespace FfsOperator {
inline constexpr int None = 0;
inline constexpr int Equal = 1;
inline constexpr int NotEqual = 2;
inline constexpr int Less = 3;
inline constexpr int Greater = 4;
inline constexpr int Contains = 5;
} // namespace FfsOperator

namespace FfsDirection {
inline constexpr int None = 0;
inline constexpr int Ascending = 1;
inline constexpr int Descending = 2;
} // namespace FfsDirection

// One line of the condition grid: one offered field with what the user chose for it.
struct FfsCondition
{
    QString display;
    QString field;
    FfsValueType type = FfsValueType::Text;
    QStringList choices; // the value list; empty where the value is typed
    int op = FfsOperator::None;
    QString value;
    int direction = FfsDirection::None;

    // Whether the line takes part in a filter or find: an operator and a value.
    bool isActive() const;
};

namespace FfsConditions {

// The longest value a line takes; a longer one is refused rather than cut.
inline constexpr int MaxValueLength = 255;

// The lines offered in `mode`, in table order, nothing chosen. The item code is FShortNumber
// when the account set uses short numbers.
LUMOICINITIAL_EXPORT QVector<FfsCondition> table(FfsMode mode, bool useShortNumber);

// Why a line cannot be turned into an expression (a number that is not one, a date out of
// bounds, a value not in its list, an over-long value); empty when it can.
LUMOICINITIAL_EXPORT QString refusal(const FfsCondition &line);

// The filter expression of the lines: clauses joined by " AND ", the final "AND " cut so that the
// text ends with one blank; empty when no line takes part. Lines must have passed refusal().
LUMOICINITIAL_EXPORT QString filterExpression(const QVector<FfsCondition> &lines);
// The sort expression: "field ASC ," / "field DESC ," per chosen line, the final comma cut.
LUMOICINITIAL_EXPORT QString sortExpression(const QVector<FfsCondition> &lines);

} // namespace FfsConditions
