#include "findmatcher.h"

#include "dialogs/dialogtexts.h"

#include "frame/logincontext.h"
#include "grid/celltext.h"

#include <QDate>

namespace {

template<typename T>
bool compared(int op, const T &left, const T &right)
{
    switch (op) {
    case FfsOperator::Equal: return left == right;
    case FfsOperator::NotEqual: return left != right;
    case FfsOperator::Less: return left < right;
    case FfsOperator::Greater: return left > right;
    default: return false;
    }
}

QDate dateOf(const QVariant &value)
{
    return value.typeId() == QMetaType::QDate ? value.toDate() : CellText::parseDate(value.toString());
}

} // namespace

FindMatcher::FindMatcher(const QVector<FfsCondition> &lines, bool fuzzy, bool caseSensitive)
    : m_fuzzy(fuzzy)
    , m_caseSensitive(caseSensitive)
{
    for (const FfsCondition &line : lines) {
        if (line.isActive())
            m_lines.append(line);
    }
}

bool FindMatcher::matches(const FieldValue &row) const
{
    if (m_lines.isEmpty())
        return false;
    for (const FfsCondition &line : m_lines) {
        if (!lineMatches(line, row(line.field)))
            return false;
    }
    return true;
}

bool FindMatcher::lineMatches(const FfsCondition &line, const QVariant &value) const
{
    const QString wanted = line.value.trimmed();
    switch (line.type) {
    case FfsValueType::Number:
        return compared(line.op, value.toDouble(), wanted.toDouble());
    case FfsValueType::Date: {
        const QDate date = dateOf(value);
        return date.isValid() && compared(line.op, date, CellText::parseDate(wanted));
    }
    case FfsValueType::Direction: {
        const int direction = wanted == ResString(DialogMsg::Debit) ? 1 : -1;
        return compared(line.op, value.toInt(), direction);
    }
    case FfsValueType::Text:
        break;
    }
    const Qt::CaseSensitivity cs = m_caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const QString text = value.toString();
    switch (line.op) {
    case FfsOperator::Contains:
        return text.contains(wanted, cs);
    case FfsOperator::Equal:
        return m_fuzzy ? text.contains(wanted, cs) : text.compare(wanted, cs) == 0;
    case FfsOperator::NotEqual:
        return m_fuzzy ? !text.contains(wanted, cs) : text.compare(wanted, cs) != 0;
    default:
        return compared(line.op, text.compare(wanted, cs), 0);
    }
}
