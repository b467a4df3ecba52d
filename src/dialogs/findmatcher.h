#pragma once

#include "dialogs/ffsconditions.h"
#include "frame/lumoicinitial_global.h"

#include <QVariant>

#include <functional>

// The find of the find/filter/sort dialog, applied to one row: every line that takes part must
// hold. A text line with "等于" finds the value anywhere in the field when the search is fuzzy
// (optBlur) and only the whole field when it is exact (optMatch); "包含" always finds it anywhere.
// Numbers and dates compare as such; case counts only when the user asked for it.
class LUMOICINITIAL_EXPORT FindMatcher
{
public:
    // A row's value of a field (by the field name of the lines): a number, a date or a text.
    using FieldValue = std::function<QVariant(const QString &field)>;

    FindMatcher() = default;
    FindMatcher(const QVector<FfsCondition> &lines, bool fuzzy, bool caseSensitive);

    // Whether any line takes part; a matcher without one finds nothing.
    bool isEmpty() const { return m_lines.isEmpty(); }
    bool matches(const FieldValue &row) const;

private:
    bool lineMatches(const FfsCondition &line, const QVariant &value) const;

    QVector<FfsCondition> m_lines;
    bool m_fuzzy = true;
    bool m_caseSensitive = false;
};
