#include "calcevaluator.h"

#include "calctexts.h"

#include <cmath>

namespace {

// The one way out of a failed evaluation; caught in evaluate().
struct Failure
{
    QString message;
};

[[noreturn]] void fail(const QString &message)
{
    throw Failure{message};
}

double rounded(double value)
{
    if (!std::isfinite(value) || std::abs(value) >= CalcEvaluator::Limit)
        fail(CalcText::OutOfRange);
    const double significant = QString::number(value, 'g', CalcEvaluator::Significant).toDouble();
    return QString::number(significant, 'f', CalcEvaluator::Decimals).toDouble();
}

// A recursive-descent reader over the expression with the operators made ASCII.
class Reader
{
public:
    explicit Reader(QString text)
        : m_text(std::move(text))
    {
    }

    double read()
    {
        const double value = expression();
        if (!atEnd())
            fail(CalcText::Malformed);
        return value;
    }

private:
    // A term's value, and whether it was a bare percentage (which '+' and '-' take as a share).
    struct Operand
    {
        double value;
        bool percent;
    };

    double expression()
    {
        double value = term().value;
        while (peek() == u'+' || peek() == u'-') {
            const bool add = take() == u'+';
            const Operand right = term();
            const double amount = right.percent ? value * right.value : right.value;
            value = add ? value + amount : value - amount;
        }
        return value;
    }

    Operand term()
    {
        Operand left = unary();
        while (peek() == u'*' || peek() == u'/') {
            const bool multiply = take() == u'*';
            const double right = unary().value;
            if (!multiply && right == 0)
                fail(CalcText::DivideByZero);
            left = {multiply ? left.value * right : left.value / right, false};
        }
        return left;
    }

    Operand unary()
    {
        if (peek() == u'-') {
            take();
            const Operand operand = unary();
            return {-operand.value, operand.percent};
        }
        if (peek() == u'+') {
            take();
            return unary();
        }
        const double value = primary();
        if (peek() == u'%') {
            take();
            return {value / 100, true};
        }
        return {value, false};
    }

    double primary()
    {
        if (peek() == u'(') {
            take();
            const double value = expression();
            if (peek() == u')')
                take();
            else if (!atEnd())
                fail(CalcText::Malformed);
            return value;
        }
        return number();
    }

    double number()
    {
        const qsizetype start = m_pos;
        bool point = false;
        while (!atEnd() && (m_text.at(m_pos).isDigit() || m_text.at(m_pos) == u'.')) {
            if (m_text.at(m_pos) == u'.') {
                if (point)
                    fail(CalcText::Malformed);
                point = true;
            }
            ++m_pos;
        }
        bool ok = false;
        const double value = m_text.mid(start, m_pos - start).toDouble(&ok);
        if (!ok)
            fail(CalcText::Malformed);
        return value;
    }

    bool atEnd() const { return m_pos >= m_text.size(); }
    QChar peek() const { return atEnd() ? QChar() : m_text.at(m_pos); }
    QChar take() { return m_text.at(m_pos++); }

    QString m_text;
    qsizetype m_pos = 0;
};

// The expression without blanks, its operators in ASCII.
QString normalized(const QString &expression)
{
    QString text;
    text.reserve(expression.size());
    for (const QChar c : expression) {
        if (c.isSpace())
            continue;
        if (c == u'×')
            text += u'*';
        else if (c == u'÷')
            text += u'/';
        else if (c == u'−')
            text += u'-';
        else if (c.isDigit() && c.unicode() > 0x7f)
            fail(CalcText::Malformed); // digits of other scripts are not numbers here
        else
            text += c;
    }
    return text;
}

} // namespace

CalcEvaluator::Result CalcEvaluator::evaluate(const QString &expression)
{
    try {
        if (expression.size() > MaxLength)
            fail(CalcText::TooLong);
        const QString text = normalized(expression);
        int depth = 0;
        for (const QChar c : text) {
            if (c == u'(' && ++depth > MaxDepth)
                fail(CalcText::TooDeep);
            if (c == u')')
                --depth;
        }
        return {rounded(Reader(text).read()), {}};
    } catch (const Failure &failure) {
        return {0, failure.message};
    }
}

QString CalcEvaluator::format(double value)
{
    QString text = QString::number(value, 'f', Decimals);
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}
