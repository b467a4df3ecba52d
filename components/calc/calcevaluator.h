#pragma once

#include "components_global.h"

#include <QString>

// The pocket calculator's arithmetic: evaluates the expression the keypad builds. Blanks only
// separate.
//
//   expression := term { ('+' | '-') term }
//   term       := unary { ('*' | '/') unary }
//   unary      := ('+' | '-') unary | postfix
//   postfix    := primary [ '%' ]
//   primary    := number | '(' expression [ ')' ]
//   number     := digits [ '.' [ digits ] ] | '.' digits
//
// '×' and '÷' stand for '*' and '/', '−' for '-'. Parentheses still open at the end are closed
// there, as a pocket calculator does. A percentage is a hundredth ("8%" is 0.08), except as the
// right operand of '+' or '-', where it is that share of the left operand ("200+10%" is 220), so
// a mark-up or a discount is typed as it is said.
//
// Expressions longer than MaxLength characters or with parentheses nested deeper than MaxDepth
// are refused before they are read, so no input can exhaust the stack. Results are rounded to
// Significant significant digits and at most Decimals decimals, which drops binary noise
// (0.1+0.2 gives 0.3); a result whose magnitude reaches Limit is out of range.
class LUMOSUITECOMPONENTS_EXPORT CalcEvaluator
{
public:
    static constexpr int MaxLength = 256;
    static constexpr int MaxDepth = 32;
    static constexpr int Significant = 15;
    static constexpr int Decimals = 10;
    static constexpr double Limit = 1e15;

    struct Result
    {
        double value = 0;
        QString error; // empty when the expression was evaluated

        bool ok() const { return error.isEmpty(); }
    };

    // The value of `expression`, rounded as above, or the reason it has none (a CalcText text).
    static Result evaluate(const QString &expression);

    // A value as the display shows it: plain decimal notation, no trailing zeros, never "-0".
    static QString format(double value);
};
