#include "literals.h"

#include <QRegularExpression>
#include <QVariant>

namespace script::literals {

namespace {

// The numeric text of a literal: a number token as written, a string when it holds a plain
// decimal (the suite's database converted '10' to 10 in a numeric comparison).
std::optional<QString> numericText(const Token &token)
{
    if (token.kind == Token::Kind::Number)
        return token.text;
    if (token.kind == Token::Kind::String && isPlainDecimal(token.text.trimmed()))
        return token.text.trimmed();
    return std::nullopt;
}

} // namespace

bool isPlainDecimal(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("^-?(\\d+(\\.\\d*)?|\\.\\d+)$"));
    return pattern.match(text).hasMatch();
}

std::optional<qlonglong> integerValue(const Token &token)
{
    const std::optional<QString> text = numericText(token);
    if (!text)
        return std::nullopt;
    const qsizetype dot = text->indexOf(QLatin1Char('.'));
    if (dot >= 0) {
        for (qsizetype i = dot + 1; i < text->size(); ++i) {
            if (text->at(i) != QLatin1Char('0'))
                return std::nullopt;
        }
    }
    QString whole = dot >= 0 ? text->left(dot) : *text;
    if (whole.isEmpty() || whole == QLatin1String("-"))
        whole += QLatin1Char('0');
    bool ok = false;
    const qlonglong value = whole.toLongLong(&ok);
    if (!ok)
        return std::nullopt;
    return value;
}

std::optional<double> realValue(const Token &token)
{
    const std::optional<QString> text = numericText(token);
    if (!text)
        return std::nullopt;
    bool ok = false;
    const double value = text->toDouble(&ok);
    if (!ok)
        return std::nullopt;
    return value;
}

std::optional<QVariant> numberValue(const Token &token)
{
    if (const std::optional<qlonglong> whole = integerValue(token))
        return QVariant(*whole);
    if (const std::optional<double> real = realValue(token))
        return QVariant(*real);
    return std::nullopt;
}

std::optional<QDate> isoDate(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("^\\d{4}-\\d{2}-\\d{2}$"));
    if (!pattern.match(text).hasMatch())
        return std::nullopt;
    const QDate date = QDate::fromString(text, Qt::ISODate);
    if (!date.isValid())
        return std::nullopt;
    return date;
}

QString written(const Token &token)
{
    if (token.kind == Token::Kind::String)
        return QLatin1Char('\'') + token.text + QLatin1Char('\'');
    return token.text;
}

} // namespace script::literals
