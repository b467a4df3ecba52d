#pragma once

#include "components_global.h"

#include <QString>
#include <QStringList>

// What the calculator's keys do, without a widget: the expression being typed, the last result,
// the error shown instead of one, the memory and the tape of recent calculations. The keypad and
// the keyboard both end here, so the dialog only shows display() and expressionLine().
class LUMOSUITECOMPONENTS_EXPORT CalcSession
{
public:
    static constexpr int TapeLength = 50;

    // '0'-'9' and '.': a digit, or the point of the number being typed (once).
    void inputDigit(QChar digit);
    // '+', '-', '×', '÷': after a result the calculation goes on from it; a second operator in a
    // row replaces the first (except a '-' that makes the next number negative).
    void inputOperator(QChar op);
    void openParenthesis();
    void closeParenthesis();
    void percent();
    // Changes the sign of the number at the end (or of the result shown).
    void toggleSign();
    // Backspace: the last character typed; after a result or an error it only clears the error.
    void backspace();
    // CE: the number being typed. C: everything but the memory.
    void clearEntry();
    void clearAll();
    // '=': evaluates; a success goes on the tape and is shown, a failure shows its reason.
    void evaluate();

    // MC, MR, M+, M-: M+ and M- take the value shown (evaluating what is typed, off the tape).
    void memoryClear() { m_memory = 0; }
    void memoryRecall();
    void memoryAdd() { addToMemory(1); }
    void memorySubtract() { addToMemory(-1); }
    bool hasMemory() const { return m_memory != 0; }
    double memory() const { return m_memory; }

    // The result to hand back: what is typed is evaluated first; false when it cannot be.
    bool finish();
    double result() const { return m_result; }

    // The big line: the error, the result just computed, or what is being typed ("0" for nothing).
    QString display() const;
    // The small line above it: the expression of the result shown ("12+3 =") or of the error
    // shown, else empty.
    QString expressionLine() const;
    const QString &error() const { return m_error; }
    // Most recent last, "expression = result" each.
    const QStringList &tape() const { return m_tape; }

private:
    // The index where the operand at the end of the expression starts (its sign not included);
    // the length of the expression when it ends in an operator or is empty.
    qsizetype lastOperandStart() const;
    QChar last() const;
    bool endsWithOperand() const;
    // After a result, typing a number starts afresh and anything else goes on from the result.
    void startFromResult(bool keepResult);
    bool append(const QString &text);
    void addToMemory(int sign);

    QString m_expression;
    QString m_shownExpression; // the expression of the result shown
    QString m_error;
    double m_result = 0;
    double m_memory = 0;
    bool m_showingResult = false;
    QStringList m_tape;
};
