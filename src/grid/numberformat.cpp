#include "grid/numberformat.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace NumberFormat {
namespace {

constexpr QChar GroupSeparator = u',';
constexpr QChar DecimalPoint = u'.';
constexpr int GroupSize = 3;

// Shortest fixed-notation text of a finite double: "2.675", "-1234", "0.0001".
QString shortestFixed(double value)
{
    // Enough for the integer digits of any double plus the shortest fraction of a tiny one.
    std::array<char, 400> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed);
    return QString::fromLatin1(buffer.data(), int(result.ptr - buffer.data()));
}

// Adds one unit in the last place of a string of decimal digits; returns true on overflow
// ("999" becomes "000" and the caller prepends a "1").
bool incrementDigits(QString &digits)
{
    for (qsizetype i = digits.size() - 1; i >= 0; --i) {
        if (digits[i] != u'9') {
            digits[i] = QChar(digits[i].unicode() + 1);
            return false;
        }
        digits[i] = u'0';
    }
    return true;
}

QString grouped(const QString &integerDigits)
{
    QString out;
    out.reserve(integerDigits.size() + integerDigits.size() / GroupSize);
    const qsizetype lead = integerDigits.size() % GroupSize;
    for (qsizetype i = 0; i < integerDigits.size(); ++i) {
        if (i > 0 && (i - lead) % GroupSize == 0)
            out += GroupSeparator;
        out += integerDigits[i];
    }
    return out;
}

} // namespace

QString pattern(int decimals)
{
    QString out = QStringLiteral("#,###0");
    if (decimals > 0)
        out += DecimalPoint + QString(decimals, u'0');
    return out;
}

int patternDecimals(const QString &pattern)
{
    const qsizetype point = pattern.indexOf(DecimalPoint);
    if (point < 0)
        return 0;
    return int(pattern.mid(point + 1).count(u'0'));
}

bool patternHasSeparator(const QString &pattern)
{
    return pattern.contains(GroupSeparator);
}

QString format(double value, int decimals, bool separator)
{
    if (!std::isfinite(value))
        return QString::number(value);

    QString text = shortestFixed(std::fabs(value));
    const qsizetype point = text.indexOf(DecimalPoint);
    QString integerDigits = point < 0 ? text : text.left(point);
    QString fraction = point < 0 ? QString() : text.mid(point + 1);

    if (decimals >= 0) {
        if (fraction.size() > decimals) {
            const bool roundUp = fraction[decimals] >= u'5';
            fraction.truncate(decimals);
            if (roundUp) {
                QString digits = integerDigits + fraction;
                if (incrementDigits(digits))
                    digits.prepend(u'1');
                integerDigits = digits.left(digits.size() - decimals);
                fraction = digits.right(decimals);
            }
        } else {
            fraction += QString(decimals - fraction.size(), u'0');
        }
    }

    const auto isZero = [](QChar digit) { return digit == u'0'; };
    const bool allZero = std::all_of(integerDigits.cbegin(), integerDigits.cend(), isZero)
                         && std::all_of(fraction.cbegin(), fraction.cend(), isZero);
    QString out = separator ? grouped(integerDigits) : integerDigits;
    if (!fraction.isEmpty())
        out += DecimalPoint + fraction;
    if (value < 0 && !allZero)
        out.prepend(u'-');
    return out;
}

QString formatPattern(double value, const QString &pattern)
{
    return format(value, patternDecimals(pattern), patternHasSeparator(pattern));
}

double roundHalfAway(double value, int decimals)
{
    // format() writes plain digits, so the typed-text checks of parse() are not needed here.
    bool ok = false;
    const double rounded = format(value, decimals, false).toDouble(&ok);
    return ok ? rounded : value;
}

double parse(const QString &text, bool *ok)
{
    static const QRegularExpression plainNumber(QStringLiteral("^[+-]?(\\d+\\.?\\d*|\\.\\d+)$"));
    QString digits = text.trimmed();
    digits.remove(GroupSeparator);
    if (!plainNumber.match(digits).hasMatch()) {
        *ok = false;
        return 0;
    }
    return digits.toDouble(ok);
}

QString plain(double value)
{
    if (value == 0) // also -0.0, which would print as "-0"
        return QStringLiteral("0");
    return std::isfinite(value) ? shortestFixed(value) : QString::number(value);
}

} // namespace NumberFormat
