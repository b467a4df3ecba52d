#include "grid/numberformat.h"

#include <QTest>

class TestNumberFormat : public QObject
{
    Q_OBJECT
private slots:
    void format()
    {
        const struct { double value; int decimals; bool separator; const char *shown; } cases[] = {
            // Binary noise must not decide the rounding: 2.675 is 2.67499999... as a double.
            {2.675, 2, true, "2.68"},
            {-2.675, 2, true, "-2.68"},
            {2.674, 2, true, "2.67"},
            {999.995, 2, true, "1,000.00"}, // the carry crosses the point and adds a group
            {9.96, 1, false, "10.0"},       // the carry adds a digit
            {-0.001, 2, true, "0.00"},      // rounds to zero: no sign
            {12.0, 3, true, "12.000"},
            {1234567.891, 2, true, "1,234,567.89"},
            {100000.0, 0, true, "100,000"}, // a whole number of groups: no leading separator
            {-999.5, 0, true, "-1,000"},
            {1234.5, 2, false, "1234.50"},
            {1234.5, -1, true, "1,234.5"}, // free decimals
            {1234.0, -1, true, "1,234"},
            {999999999999.99, 2, true, "999,999,999,999.99"},
            {0.000001, 4, true, "0.0000"}, // never in exponent form
        };
        for (const auto &c : cases)
            QCOMPARE(NumberFormat::format(c.value, c.decimals, c.separator), QLatin1String(c.shown));
    }

    void pattern()
    {
        const struct { int decimals; const char *pattern; double value; const char *shown; } cases[] = {
            {0, "#,###0", 1234.5, "1,235"},
            {2, "#,###0.00", 2.675, "2.68"},
            {4, "#,###0.0000", 1234.56785, "1,234.5679"},
        };
        for (const auto &c : cases) {
            const QString pattern = QLatin1String(c.pattern);
            QCOMPARE(NumberFormat::pattern(c.decimals), pattern);
            QCOMPARE(NumberFormat::patternDecimals(pattern), c.decimals);
            QVERIFY(NumberFormat::patternHasSeparator(pattern));
            QCOMPARE(NumberFormat::formatPattern(c.value, pattern), QLatin1String(c.shown));
        }
    }

    void roundHalfAway()
    {
        QCOMPARE(NumberFormat::roundHalfAway(-1.005, 2), -1.01);
        QCOMPARE(NumberFormat::roundHalfAway(0.5, 0), 1.0);
        // One third of 100 over three batches: the share the batch apportioning hands out.
        QCOMPARE(NumberFormat::roundHalfAway(100.0 / 3, 2), 33.33);
    }

    void parse()
    {
        const struct { const char *text; bool ok; double value; } cases[] = {
            {"1,234,567.89", true, 1234567.89}, {"  -12 ", true, -12.0}, {"+.5", true, 0.5},
            {"7.", true, 7.0},                  {"abc", false, 0},       {"1e5", false, 0},
            {"1.2.3", false, 0},                {"-", false, 0},         {"", false, 0},
            {"12 34", false, 0},
        };
        for (const auto &c : cases) {
            bool parsed = !c.ok;
            const double value = NumberFormat::parse(QLatin1String(c.text), &parsed);
            QVERIFY2(parsed == c.ok, c.text);
            if (c.ok)
                QCOMPARE(value, c.value);
        }
    }

    void plainText()
    {
        for (const auto &[value, text] :
             {std::pair{-0.0, "0"}, {0.1, "0.1"}, {1e12, "1000000000000"}, {-1234.5, "-1234.5"}})
            QCOMPARE(NumberFormat::plain(value), QLatin1String(text));
    }
};

QTEST_MAIN(TestNumberFormat)
#include "tst_numberformat.moc"
