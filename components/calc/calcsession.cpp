#include "calcsession.h"

#include "calcevaluator.h"

namespace {

constexpr QChar Point = u'.';
constexpr QChar Minus = u'-';
constexpr QChar Plus = u'+';
constexpr QChar Times = u'×';
constexpr QChar Divide = u'÷';
constexpr QChar Open = u'(';
constexpr QChar Close = u')';
constexpr QChar Percent = u'%';

bool isOperator(QChar c)
{
    return c == Plus || c == Minus || c == Times || c == Divide;
}

bool isNumberChar(QChar c)
{
    return (c >= u'0' && c <= u'9') || c == Point;
}

// Parentheses opened and not yet closed.
int openParentheses(const QString &text)
{
    return int(text.count(Open) - text.count(Close));
}

QString closed(const QString &text)
{
    return text + QString(qMax(0, openParentheses(text)), Close);
}

} // namespace

QChar CalcSession::last() const
{
    return m_expression.isEmpty() ? QChar() : m_expression.back();
}

bool CalcSession::endsWithOperand() const
{
    const QChar c = last();
    return isNumberChar(c) || c == Close || c == Percent;
}

qsizetype CalcSession::lastOperandStart() const
{
    qsizetype pos = m_expression.size();
    if (pos > 0 && m_expression.at(pos - 1) == Percent)
        --pos;
    if (pos > 0 && m_expression.at(pos - 1) == Close) {
        int depth = 0;
        while (pos > 0) {
            const QChar c = m_expression.at(--pos);
            depth += c == Close ? 1 : c == Open ? -1 : 0;
            if (depth == 0)
                return pos;
        }
        return 0;
    }
    while (pos > 0 && isNumberChar(m_expression.at(pos - 1)))
        --pos;
    return endsWithOperand() ? pos : m_expression.size();
}

void CalcSession::startFromResult(bool keepResult)
{
    m_error.clear();
    if (!m_showingResult)
        return;
    m_showingResult = false;
    m_expression = keepResult ? CalcEvaluator::format(m_result) : QString();
}

bool CalcSession::append(const QString &text)
{
    if (m_expression.size() + text.size() > CalcEvaluator::MaxLength)
        return false;
    m_expression += text;
    return true;
}

void CalcSession::inputDigit(QChar digit)
{
    startFromResult(false);
    const QChar end = last();
    if (end == Close || end == Percent)
        return;
    const QString number = m_expression.mid(lastOperandStart());
    if (digit == Point) {
        if (!number.contains(Point))
            append(number.isEmpty() ? QStringLiteral("0.") : QString(Point));
        return;
    }
    // A leading zero gives way to the digit typed after it.
    if (number == QLatin1String("0"))
        m_expression.chop(1);
    append(QString(digit));
}

void CalcSession::inputOperator(QChar op)
{
    startFromResult(true);
    if (m_expression.isEmpty() && op != Minus)
        m_expression = QStringLiteral("0");
    if (op == Minus && (last() == Times || last() == Divide || last() == Open || m_expression.isEmpty())) {
        append(QString(op));
        return;
    }
    if (!endsWithOperand()) {
        while (isOperator(last()))
            m_expression.chop(1);
        if (m_expression.isEmpty() || last() == Open) {
            if (op == Minus)
                append(QString(op));
            return;
        }
    }
    append(QString(op));
}

void CalcSession::openParenthesis()
{
    startFromResult(false);
    append(endsWithOperand() ? QString(Times) + Open : QString(Open));
}

void CalcSession::closeParenthesis()
{
    startFromResult(true);
    if (endsWithOperand() && openParentheses(m_expression) > 0)
        append(QString(Close));
}

void CalcSession::percent()
{
    startFromResult(true);
    if (endsWithOperand() && last() != Percent)
        append(QString(Percent));
}

void CalcSession::toggleSign()
{
    startFromResult(true);
    const qsizetype start = lastOperandStart();
    if (start == m_expression.size())
        return;
    const QChar sign = start > 0 ? m_expression.at(start - 1) : QChar();
    const bool unary = start <= 1 || isOperator(m_expression.at(start - 2)) || m_expression.at(start - 2) == Open;
    if (sign == Minus && unary)
        m_expression.remove(start - 1, 1);
    else if (sign == Minus)
        m_expression[start - 1] = Plus; // a - b with b negated is a + b
    else if (sign == Plus)
        m_expression[start - 1] = Minus;
    else if (m_expression.size() < CalcEvaluator::MaxLength)
        m_expression.insert(start, Minus);
}

void CalcSession::backspace()
{
    if (!m_error.isEmpty()) {
        m_error.clear();
        return;
    }
    if (!m_showingResult)
        m_expression.chop(1);
}

void CalcSession::clearEntry()
{
    if (m_showingResult) {
        clearAll();
        return;
    }
    m_error.clear();
    m_expression.truncate(lastOperandStart());
}

void CalcSession::clearAll()
{
    m_expression.clear();
    m_shownExpression.clear();
    m_error.clear();
    m_result = 0;
    m_showingResult = false;
}

void CalcSession::evaluate()
{
    if (m_showingResult || m_expression.isEmpty())
        return;
    const QString expression = closed(m_expression);
    const CalcEvaluator::Result evaluated = CalcEvaluator::evaluate(expression);
    if (!evaluated.ok()) {
        m_error = evaluated.error;
        return;
    }
    m_error.clear();
    m_result = evaluated.value;
    m_shownExpression = expression;
    m_expression = expression;
    m_showingResult = true;
    m_tape.append(expression + QStringLiteral(" = ") + CalcEvaluator::format(m_result));
    if (m_tape.size() > TapeLength)
        m_tape.removeFirst();
}

void CalcSession::memoryRecall()
{
    startFromResult(false);
    if (endsWithOperand())
        m_expression.truncate(lastOperandStart());
    append(CalcEvaluator::format(m_memory));
}

void CalcSession::addToMemory(int sign)
{
    double value = m_showingResult ? m_result : 0;
    if (!m_showingResult && !m_expression.isEmpty()) {
        const CalcEvaluator::Result evaluated = CalcEvaluator::evaluate(closed(m_expression));
        if (!evaluated.ok()) {
            m_error = evaluated.error;
            return;
        }
        value = evaluated.value;
    }
    // Rounded as a result is, so that sums in memory carry no binary noise either.
    m_memory = CalcEvaluator::format(m_memory + sign * value).toDouble();
}

bool CalcSession::finish()
{
    if (m_showingResult)
        return true;
    if (m_expression.isEmpty()) {
        m_error.clear();
        m_result = 0; // what the display shows
        return true;
    }
    evaluate();
    return m_error.isEmpty();
}

QString CalcSession::display() const
{
    if (!m_error.isEmpty())
        return m_error;
    if (m_showingResult)
        return CalcEvaluator::format(m_result);
    return m_expression.isEmpty() ? QStringLiteral("0") : m_expression;
}

QString CalcSession::expressionLine() const
{
    if (!m_error.isEmpty())
        return m_expression;
    return m_showingResult ? m_shownExpression + QStringLiteral(" =") : QString();
}
