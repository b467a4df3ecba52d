#include "erpclasscondition.h"
#include "frame/automation/progids.h"

#include "dataerrors.h"

#include <QRegularExpression>

namespace {

// The whole text: field, then a list, or one comparison with one whole number.
const QRegularExpression Shape(QStringLiteral(R"(^\s*(?:x2\s*\.\s*)?FErpClsID\s*(?:(in)\s*\(([\d\s,]+)\)|(=|<>)\s*(\d+))\s*$)"),
                               QRegularExpression::CaseInsensitiveOption);
const QRegularExpression ListItem(QStringLiteral(R"(^\s*\d{1,9}\s*$)"));

[[noreturn]] void refuse(const QString &text)
{
    throw LumoError(DataError::BadErpClassCondition, DataError::BadErpClassConditionText.arg(text),
                    ProgId::GLData);
}

} // namespace

namespace ErpClassCondition {

script::BoundSql parse(const QString &text, const QString &column)
{
    if (text.trimmed().isEmpty())
        return {};
    const QRegularExpressionMatch match = Shape.match(text);
    if (!match.hasMatch())
        refuse(text);
    script::BoundSql condition;
    if (match.capturedLength(1) > 0) {
        QStringList marks;
        for (const QString &item : match.captured(2).split(QLatin1Char(','))) {
            if (!ListItem.match(item).hasMatch())
                refuse(text);
            marks.append(QStringLiteral("?"));
            condition.values.append(item.trimmed().toInt());
        }
        condition.sql = QStringLiteral("%1 IN (%2)").arg(column, marks.join(QLatin1Char(',')));
        return condition;
    }
    if (match.capturedLength(4) > 9)
        refuse(text);
    condition.sql = QStringLiteral("%1%2?").arg(column, match.captured(3));
    condition.values.append(match.captured(4).toInt());
    return condition;
}

} // namespace ErpClassCondition
