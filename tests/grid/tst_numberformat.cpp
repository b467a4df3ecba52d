#include "grid/numberformat.h"

#include <QTest>

class TestNumberFormat : public QObject
{
    Q_OBJECT
private slots:
    void format_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<bool>("separator");
        QTest::addColumn<QString>("expected");

        // Binary noise must not decide the rounding: 2.675 is 2.67499999... as a double.
        QTest::newRow("2.675 half up") << 2.675 << 2 << true << "2.68";
        QTest::newRow("1.005 half up") << 1.005 << 2 << true << "1.01";
        QTest::newRow("0.125 half up") << 0.125 << 2 << true << "0.13";
        QTest::newRow("negative half away") << -2.5 << 0 << true << "-3";
        QTest::newRow("negative 2.675") << -2.675 << 2 << true << "-2.68";
        QTest::newRow("below half down") << 2.674 << 2 << true << "2.67";
        QTest::newRow("carry into thousands") << 999.995 << 2 << true << "1,000.00";
        QTest::newRow("carry into new digit") << 9.96 << 1 << false << "10.0";
        QTest::newRow("rounds to zero, no sign") << -0.001 << 2 << true << "0.00";
        QTest::newRow("zero without decimals") << 0.0 << 0 << true << "0";
        QTest::newRow("pads decimals") << 12.0 << 3 << true << "12.000";
        QTest::newRow("groups of three") << 1234567.891 << 2 << true << "1,234,567.89";
        QTest::newRow("exactly three digits") << 100.0 << 0 << true << "100";
        QTest::newRow("exactly four digits") << 1000.0 << 0 << true << "1,000";
        QTest::newRow("six digits") << 100000.0 << 0 << true << "100,000";
        QTest::newRow("negative grouped") << -999.5 << 0 << true << "-1,000";
        QTest::newRow("no separator") << 1234.5 << 2 << false << "1234.50";
        QTest::newRow("free decimals") << 1234.5 << -1 << true << "1,234.5";
        QTest::newRow("free decimals integer") << 1234.0 << -1 << true << "1,234";
        QTest::newRow("upper limit") << 999999999999.99 << 2 << true << "999,999,999,999.99";
        QTest::newRow("lower limit") << -999999999999.99 << 2 << true << "-999,999,999,999.99";
        QTest::newRow("tiny value") << 0.000001 << 4 << true << "0.0000";
    }

    void format()
    {
        QFETCH(double, value);
        QFETCH(int, decimals);
        QFETCH(bool, separator);
        QFETCH(QString, expected);
        QCOMPARE(NumberFormat::format(value, decimals, separator), expected);
    }

    void pattern_data()
    {
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("shown");

        QTest::newRow("none") << 0 << "#,###0" << 1234.5 << "1,235";
        QTest::newRow("two") << 2 << "#,###0.00" << 2.675 << "2.68";
        QTest::newRow("four") << 4 << "#,###0.0000" << 1234.56785 << "1,234.5679";
    }

    void pattern()
    {
        QFETCH(int, decimals);
        QFETCH(QString, pattern);
        QFETCH(double, value);
        QFETCH(QString, shown);

        QCOMPARE(NumberFormat::pattern(decimals), pattern);
        QCOMPARE(NumberFormat::patternDecimals(pattern), decimals);
        QVERIFY(NumberFormat::patternHasSeparator(pattern));
        QCOMPARE(NumberFormat::formatPattern(value, pattern), shown);
    }

    void roundHalfAway_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<double>("expected");

        QTest::newRow("2.675") << 2.675 << 2 << 2.68;
        QTest::newRow("-1.005") << -1.005 << 2 << -1.01;
        // One third of 100 over three batches: the share the batch apportioning hands out.
        QTest::newRow("third") << 100.0 / 3 << 2 << 33.33;
        QTest::newRow("no decimals") << 0.5 << 0 << 1.0;
    }

    void roundHalfAway()
    {
        QFETCH(double, value);
        QFETCH(int, decimals);
        QFETCH(double, expected);
        QCOMPARE(NumberFormat::roundHalfAway(value, decimals), expected);
    }

    void parse_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<double>("value");

        QTest::newRow("plain") << "1234.5" << true << 1234.5;
        QTest::newRow("as displayed") << "1,234,567.89" << true << 1234567.89;
        QTest::newRow("blanks around") << "  -12 " << true << -12.0;
        QTest::newRow("leading point") << "+.5" << true << 0.5;
        QTest::newRow("trailing point") << "7." << true << 7.0;
        QTest::newRow("letters") << "abc" << false << 0.0;
        QTest::newRow("exponent") << "1e5" << false << 0.0;
        QTest::newRow("two points") << "1.2.3" << false << 0.0;
        QTest::newRow("sign only") << "-" << false << 0.0;
        QTest::newRow("empty") << "" << false << 0.0;
        QTest::newRow("inner blank") << "12 34" << false << 0.0;
    }

    void parse()
    {
        QFETCH(QString, text);
        QFETCH(bool, ok);
        QFETCH(double, value);

        bool parsed = !ok;
        const double result = NumberFormat::parse(text, &parsed);
        QCOMPARE(parsed, ok);
        if (ok)
            QCOMPARE(result, value);
    }

    void plainText_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("expected");

        QTest::newRow("negative zero") << -0.0 << "0";
        QTest::newRow("tenth") << 0.1 << "0.1";
        QTest::newRow("no exponent") << 1e12 << "1000000000000";
        QTest::newRow("negative") << -1234.5 << "-1234.5";
    }

    void plainText()
    {
        QFETCH(double, value);
        QFETCH(QString, expected);
        QCOMPARE(NumberFormat::plain(value), expected);
    }
};

QTEST_MAIN(TestNumberFormat)
#include "tst_numberformat.moc"
