#pragma once

#include "components_global.h"

#include "calcsession.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QListWidget;

// The pocket calculator's window: display, keypad, memory keys and a tape of recent lines. Every
// key also works from the keyboard: digits, ". + - * / ( ) %", Enter or "=" evaluates, Backspace
// takes back a character, Delete clears, F9 changes the sign, Ctrl+L/R/P/Q are MC/MR/M+/M-.
// "确定" closes with the current result (evaluating what is typed); Esc and "取消" close without.
class LUMOSUITECOMPONENTS_EXPORT CalcDialog : public QDialog
{
    Q_OBJECT

public:
    enum class Key {
        Digit0, Digit1, Digit2, Digit3, Digit4, Digit5, Digit6, Digit7, Digit8, Digit9, Point,
        Plus, Minus, Times, Divide, Open, Close, Percent, Sign, Equals,
        Clear, ClearEntry, Backspace, MemoryClear, MemoryRecall, MemoryAdd, MemorySubtract
    };
    Q_ENUM(Key)

    explicit CalcDialog(QWidget *parent = nullptr);

    // The result the dialog was accepted with.
    double result() const { return m_session.result(); }

    void press(Key key);
    // "确定": accepts when what is shown has a value.
    void acceptResult();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *buildKeypad();
    void refresh();

    CalcSession m_session;
    QLineEdit *m_expressionLine = nullptr;
    QLineEdit *m_display = nullptr;
    QLabel *m_memoryMark = nullptr;
    QListWidget *m_tape = nullptr;
};
