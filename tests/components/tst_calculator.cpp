#include "calc/calcdialog.h"
#include "calc/calcevaluator.h"
#include "calc/calctexts.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/progids.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

// Types a key script into the calculator: ASCII goes as typed ("\r" Enter, "\b" Backspace,
// "\x1b" Esc), "~" is F9 (the sign), "D" Delete and P/Q/R/L are Ctrl+P/Q/R/L (M+, M-, MR, MC).
void type(QWidget *calculator, const QString &script)
{
    for (const QChar c : script) {
        if (c == u'~')
            QTest::keyClick(calculator, Qt::Key_F9);
        else if (c == u'D')
            QTest::keyClick(calculator, Qt::Key_Delete);
        else if (QStringLiteral("PQRL").contains(c))
            QTest::keyClick(calculator, c.toLatin1(), Qt::ControlModifier);
        else
            QTest::keyClick(calculator, c.toLatin1());
    }
}

} // namespace

class TestCalculator : public QObject
{
    Q_OBJECT

private slots:
    void evaluate_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QString>("shown"); // the result as displayed, or the error text

        const auto row = [](const char *name, const QString &expression, const QString &shown) {
            QTest::newRow(name) << expression << shown;
        };
        row("precedence", "2+3×4", "14");
        row("parentheses", "(2+3)*4", "20");
        row("left to right", "10-4-3", "3");
        row("division", "7÷2", "3.5");
        row("no binary noise", "0.1+0.2", "0.3");
        row("ten decimals", "2/3", "0.6666666667");
        row("unary minus", "2×-3--(-1)", "-7");
        row("percent alone", "8%", "0.08");
        row("mark-up", "200+10%", "220");
        row("discount", "200-10%", "180");
        row("percent of a product", "50×10%", "5");
        row("open parentheses close at the end", "(1+2)×(3+4", "21");
        row("blanks separate", " 1 + 2 ", "3");
        row("point first", ".5+5.", "5.5");
        row("division by zero", "5÷0", CalcText::DivideByZero);
        row("division by a zero expression", "5/(2-2)", CalcText::DivideByZero);
        row("two operators", "2+×3", CalcText::Malformed);
        row("two points", "1.2.3", CalcText::Malformed);
        row("stray parenthesis", "1+2)", CalcText::Malformed);
        row("exponent", "1e5", CalcText::Malformed);
        row("nothing", "", CalcText::Malformed);
        row("letters", "abc", CalcText::Malformed);
        row("out of range", "99999999×99999999", CalcText::OutOfRange);
        row("too long", QString(CalcEvaluator::MaxLength + 1, u'1'), CalcText::TooLong);
        row("too deep", QString(CalcEvaluator::MaxDepth + 1, u'(') + u'1', CalcText::TooDeep);
        row("long chain of signs", QString(CalcEvaluator::MaxLength - 1, u'-') + u'1', "-1");
    }

    void evaluate()
    {
        QFETCH(QString, expression);
        QFETCH(QString, shown);
        const CalcEvaluator::Result result = CalcEvaluator::evaluate(expression);
        QCOMPARE(result.ok() ? CalcEvaluator::format(result.value) : result.error, shown);
    }

    void keys_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("display");
        QTest::addColumn<QString>("tape"); // its last line

        QTest::newRow("enter evaluates") << "12+3\r" << "15" << "12+3 = 15";
        QTest::newRow("equals evaluates") << "(1+2*3=" << "7" << "(1+2×3) = 7";
        QTest::newRow("error shown") << "5/0\r" << CalcText::DivideByZero << "";
        QTest::newRow("error corrected") << "5/0\r\b\b2\r" << "2.5" << "5÷2 = 2.5";
        QTest::newRow("sign after minus") << "12-3~\r" << "15" << "12+3 = 15";
        QTest::newRow("sign after times") << "2*3~\r" << "-6" << "2×-3 = -6";
        QTest::newRow("sign of the result") << "4\r~" << "-4" << "4 = 4";
        QTest::newRow("operator replaced") << "2+*3\r" << "6" << "2×3 = 6";
        QTest::newRow("one point a number") << "1.5.2\r" << "1.52" << "1.52 = 1.52";
        QTest::newRow("leading zero") << "007+.5\r" << "7.5" << "7+0.5 = 7.5";
        QTest::newRow("going on from a result") << "9\r+1\r" << "10" << "9+1 = 10";
        QTest::newRow("a number after a result") << "9\r1\r" << "1" << "1 = 1";
        QTest::newRow("delete clears") << "1+2D5" << "5" << "";
        QTest::newRow("memory") << "7\rP3+R\r" << "10" << "3+7 = 10";
        QTest::newRow("memory minus and clear") << "7\rPQ1+R\rL2+R\r" << "2" << "2+0 = 2";
    }

    void keys()
    {
        QFETCH(QString, script);
        QFETCH(QString, display);
        QFETCH(QString, tape);
        CalcDialog dialog;
        type(&dialog, script);
        QCOMPARE(dialog.findChild<QLineEdit *>(QStringLiteral("txtDisplay"))->text(), display);
        const auto *tapeList = dialog.findChild<QListWidget *>(QStringLiteral("lstTape"));
        QCOMPARE(tapeList->count() ? tapeList->item(tapeList->count() - 1)->text() : QString(), tape);
    }

    // The component by its ProgID: Show tells whether the user closed it with a result, Value gives it.
    void componentShowAndValue_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<bool>("closedWithResult");
        QTest::addColumn<double>("value");

        QTest::newRow("typed and confirmed") << "6*7" << true << 42.0;
        QTest::newRow("evaluated and confirmed") << "1/3\r" << true << 0.3333333333;
        QTest::newRow("escape") << "6*7\x1b" << false << 0.0;
        QTest::newRow("an error is not a result") << "5/0" << false << 0.0; // OK stays open; Esc closes
    }

    void componentShowAndValue()
    {
        QFETCH(QString, script);
        QFETCH(bool, closedWithResult);
        QFETCH(double, value);
        const std::unique_ptr<QObject> calc = CreateObject(ProgId::Calc);
        QTimer::singleShot(0, this, [script] {
            QWidget *dialog = QApplication::activeModalWidget();
            QVERIFY(dialog);
            type(dialog, script);
            if (dialog->isVisible())
                dialog->findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
            if (dialog->isVisible())
                type(dialog, QStringLiteral("\x1b"));
        });
        QCOMPARE(Dispatch::call(calc.get(), QStringLiteral("Show")).toBool(), closedWithResult);
        QCOMPARE(Dispatch::call(calc.get(), QStringLiteral("Value")).toDouble(), value);
    }
};

QTEST_MAIN(TestCalculator)
#include "tst_calculator.moc"
