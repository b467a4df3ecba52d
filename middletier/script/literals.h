#pragma once

#include "token.h"

#include <QDate>
#include <QString>

#include <optional>

// Reading the literals of statements and filters as typed values.
namespace script::literals {

// "12", "-3", "0.25", ".5", "-.5"; no exponent, no sign but a leading '-', no blanks.
bool isPlainDecimal(const QString &text);

// A number token, or a quoted plain decimal ('10'), as an integer: "12" and "12.00" are 12,
// "12.5" is not an integer.
std::optional<qlonglong> integerValue(const Token &token);
// A number token, or a quoted plain decimal, as a double.
std::optional<double> realValue(const Token &token);
// An integer when the number is whole, a double otherwise.
std::optional<QVariant> numberValue(const Token &token);
// A date written "yyyy-mm-dd".
std::optional<QDate> isoDate(const QString &text);

// The literal as the user wrote it, for messages.
QString written(const Token &token);

} // namespace script::literals
