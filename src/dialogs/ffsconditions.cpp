#include "ffsconditions.h"

#include "dialogs/dialogtexts.h"

#include "frame/logincontext.h"
#include "grid/celltext.h"

#include <QDate>
#include <QtNumeric>

namespace {

using T = FfsValueType;

// The expression text of each operator code; 0 writes nothing.
const QStringList OperatorTexts{QString(), QStringLiteral("="), QStringLiteral("<>"), QStringLiteral("<"),
                                QStringLiteral(">"), QStringLiteral(" LIKE ")};
const QStringList DirectionTexts{QString(), QStringLiteral(" ASC "), QStringLiteral(" DESC ")};
const QString And = QStringLiteral(" AND ");
// The stored direction values of 借方 and 贷方.
const QString DebitValue = QStringLiteral("1");
const QString CreditValue = QStringLiteral("-1");
const QDate FirstDate(1900, 1, 1);
const QDate LastDate(2100, 12, 31);

const QStringList &valuationChoices(bool withPlannedCost)
{
    static const QStringList entry{QStringLiteral("加权平均法"), QStringLiteral("移动平均法"),
                                   QStringLiteral("先进先出法"), QStringLiteral("后进先出法"),
                                   QStringLiteral("分批认定法")};
    static const QStringList check = entry + QStringList{QStringLiteral("计划成本法")};
    return withPlannedCost ? check : entry;
}

FfsCondition line(const char *display, const QString &field, FfsValueType type, const QStringList &choices = {})
{
    FfsCondition condition;
    condition.display = ResString(QString::fromUtf8(display));
    condition.field = field;
    condition.type = type;
    condition.choices = choices;
    return condition;
}

QVector<FfsCondition> accountLines(bool entry)
{
    const QStringList directions{ResString(DialogMsg::Debit), ResString(DialogMsg::Credit)};
    QVector<FfsCondition> lines{line("科目代码", QStringLiteral("FNumber"), T::Text),
                                line("科目名称", QStringLiteral("FName"), T::Text),
                                line("借贷方向", QStringLiteral("FDC"), T::Direction, directions)};
    if (entry) {
        lines << line("年初金额", QStringLiteral("FSumYtdBegBal"), T::Number)
              << line("本期累计收入金额", QStringLiteral("FSumYtdDebit"), T::Number)
              << line("本期累计发出金额", QStringLiteral("FSumYtdCredit"), T::Number)
              << line("期初金额", QStringLiteral("FSumBegBal"), T::Number);
    } else {
        lines << line("仓存结存金额", QStringLiteral("FSumBegBal"), T::Number)
              << line("总账结存金额", QStringLiteral("FGLSumEndBal"), T::Number)
              << line("差异额", QStringLiteral("FICGLDiff"), T::Number);
    }
    return lines;
}

QVector<FfsCondition> itemLines(bool entry, bool useShortNumber)
{
    QVector<FfsCondition> lines{
        line("物料代码", useShortNumber ? QStringLiteral("FShortNumber") : QStringLiteral("FNumber"), T::Text),
        line("物料名称", QStringLiteral("FItemName"), T::Text), line("规格型号", QStringLiteral("FModel"), T::Text),
        line("单    位", QStringLiteral("FUnitName"), T::Text),
        line("计价方法", QStringLiteral("FTrackName"), T::Text, valuationChoices(!entry))};
    if (!entry) {
        lines << line("结存数量", QStringLiteral("FInitBegQty"), T::Number)
              << line("结存金额", QStringLiteral("FInitBegBal"), T::Number);
        return lines;
    }
    static const char *const figures[][2] = {
        {"年初数量", "FInitYtdBegQty"},        {"年初金额", "FInitYtdBegBal"},
        {"年初差异", "FInitYtdBegDiff"},       {"本年累计收入数量", "FInitYtdReceive"},
        {"本年累计收入金额", "FInitYtdDebit"}, {"本年累计收入差异", "FInitYtdReceiveDiff"},
        {"本年累计发出数量", "FInitYtdSend"},  {"本年累计发出金额", "FInitYtdCredit"},
        {"本年累计发出差异", "FInitYtdSendDiff"}, {"期初数量", "FInitBegQty"},
        {"期初金额", "FInitBegBal"},           {"期初差异", "FInitBegDiff"}};
    for (const auto &figure : figures)
        lines << line(figure[0], QString::fromLatin1(figure[1]), T::Number);
    lines << line("生产日期", QStringLiteral("FKFDate"), T::Date)
          << line("保质期(天)", QStringLiteral("FKFPeriod"), T::Number);
    return lines;
}

// A quote inside a text is doubled, so that the text stays one literal however it reads.
QString quoted(const QString &text)
{
    QString inner = text;
    inner.replace(QLatin1Char('\''), QStringLiteral("''"));
    return QLatin1Char('\'') + inner + QLatin1Char('\'');
}

QDate dateOf(const QString &value)
{
    return CellText::parseDate(value);
}

// The value as the expression writes it, by the field's type.
QString prepared(const FfsCondition &line, const QString &value)
{
    switch (line.type) {
    case T::Number:
        return QString::number(value.toDouble(), 'g', 15);
    case T::Date:
        return quoted(dateOf(value).toString(QStringLiteral("yyyy-MM-dd")));
    case T::Direction:
        return value == ResString(DialogMsg::Debit) ? DebitValue : CreditValue;
    case T::Text:
        break;
    }
    return quoted(value);
}

} // namespace

bool FfsCondition::isActive() const
{
    return op != FfsOperator::None && !value.trimmed().isEmpty();
}

namespace FfsConditions {

QVector<FfsCondition> table(FfsMode mode, bool useShortNumber)
{
    switch (mode) {
    case FfsMode::EntryAccount: return accountLines(true);
    case FfsMode::EntryItem: return itemLines(true, useShortNumber);
    case FfsMode::CheckAccount: return accountLines(false);
    case FfsMode::CheckItem: return itemLines(false, useShortNumber);
    }
    return {};
}

QString refusal(const FfsCondition &line)
{
    if (!line.isActive())
        return {};
    const QString value = line.value.trimmed();
    if (value.size() > MaxValueLength)
        return ResString(DialogMsg::ValueTooLong.arg(line.display).arg(MaxValueLength));
    if (!line.choices.isEmpty() && !line.choices.contains(value))
        return ResString(DialogMsg::NeedsListValue.arg(line.display, value));
    bool isNumber = false;
    value.toDouble(&isNumber);
    switch (line.type) {
    case T::Number:
        if (!isNumber || !qIsFinite(value.toDouble()))
            return ResString(DialogMsg::NeedsNumber.arg(line.display, value));
        break;
    case T::Date: {
        const QDate date = dateOf(value);
        if (!date.isValid() || date < FirstDate || date > LastDate)
            return ResString(DialogMsg::NeedsDate.arg(line.display, value));
        break;
    }
    case T::Direction: case T::Text:
        break;
    }
    // "包含" searches text; a number or a direction has none to search in.
    if (line.op == FfsOperator::Contains && (line.type == T::Number || line.type == T::Direction))
        return ResString(DialogMsg::LikeNeedsText.arg(line.display));
    return {};
}

QString filterExpression(const QVector<FfsCondition> &lines)
{
    QString expression;
    for (const FfsCondition &line : lines) {
        if (!line.isActive())
            continue;
        const QString value = line.value.trimmed();
        if (line.op == FfsOperator::Contains) {
            QString inner = value;
            inner.replace(QLatin1Char('\''), QStringLiteral("''"));
            expression += line.field + OperatorTexts.at(line.op) + QStringLiteral("'%") + inner + QStringLiteral("%'")
                          + And;
        } else {
            expression += line.field + OperatorTexts.at(line.op) + prepared(line, value) + And;
        }
    }
    // Cuts "AND " of the last clause and keeps its leading blank.
    if (!expression.isEmpty())
        expression.chop(4);
    return expression;
}

QString sortExpression(const QVector<FfsCondition> &lines)
{
    QString expression;
    for (const FfsCondition &line : lines) {
        if (line.direction != FfsDirection::None)
            expression += line.field + DirectionTexts.at(line.direction) + QLatin1Char(',');
    }
    expression.chop(1);
    return expression;
}

} // namespace FfsConditions
