#include "sheet/balancecheck.h"
#include "frame/valuationmethods.h"

#include <QTest>

namespace {

const QString CrLf = QStringLiteral("\r\n");

constexpr int OrdinaryStock = 501;
constexpr int AgencyStock = BalanceCheck::AgencyStockType;

// One group typed under the account set's rules, and the refusal expected; empty: the group passes.
struct Case
{
    double quantity, amount, difference;
    int stockType;
    bool underStock;
    int auditChoice;
    bool allocate;
    int track;
    QString message;
    int decimals = -1; // of quantities and amounts as the grid shows them
};

} // namespace

Q_DECLARE_METATYPE(Case)

class TestBalanceCheck : public QObject
{
    Q_OBJECT

private slots:
    void group_data()
    {
        QTest::addColumn<Case>("c");
        const QString negative =
            QStringLiteral("录入的数据[数量<0]！\r\n但账套不允许负结存,因此数量不能<0！\r\n数据非法！请重新录入！");
        const QString negativePrice = QStringLiteral("录入的数据[数量>0，金额<0]！\r\n单价将出现负数，数据非法！请重新录入！");
        const QString positiveValue = QStringLiteral("录入的数据[数量<0，金额>0]！\r\n单价将出现负数，数据非法！请重新录入！");
        const QString noAmount =
            QStringLiteral("录入的数据[金额=0]！\r\n但账套实行数量金额核算,因此金额不能等于0！\r\n数据非法！请重新录入！");
        const QString allocation = QStringLiteral("分摊的数据[数量=0，金额<>0]！\r\n单价将不一致，数据非法！请重新录入！");

        constexpr int Wa = Valuation::WeightedAverage;
        constexpr int Ma = Valuation::MovingAverage;
        constexpr int Ord = OrdinaryStock;
        const std::pair<const char *, Case> cases[] = {
            {"negative stock refused", {-5, -100, 0, Ord, false, 0, false, 0, negative}},
            {"negative stock allowed", {-5, -100, 0, Ord, true, 0, false, 0, {}}},
            // Without negative stock the sign of the quantity is refused before the price rules look.
            {"negative quantity, positive value, no negative stock", {-1, 5, 0, Ord, false, 0, false, 0, negative}},
            {"negative quantity, positive value", {-1, 5, 0, Ord, true, 0, false, 0, positiveValue}},
            {"positive quantity, negative amount", {1, -1, 0, Ord, true, 0, false, 0, negativePrice}},
            // The value is amount plus difference: a difference larger than the amount turns the price.
            {"difference turns the value negative", {2, 5, -10, Ord, true, 0, false, 0, negativePrice}},
            {"difference alone gives the value", {2, 0, 3, Ord, true, 1, false, 0, {}}},
            {"quantity without amount, amounts kept", {3, 0, 0, Ord, true, 1, false, 0, noAmount}},
            {"amount and difference cancel, amounts kept", {3, 5, -5, Ord, true, 1, false, 0, noAmount}},
            {"quantity without amount, quantities only", {3, 0, 0, Ord, true, 0, false, 0, {}}},
            {"quantity without amount, agency warehouse", {3, 0, 0, AgencyStock, true, 1, false, 0, {}}},
            {"value without quantity, entry grid", {0, 10, 0, Ord, true, 1, false, Wa, {}}},
            {"value without quantity, allocated weighted average", {0, 10, 0, Ord, true, 1, true, Wa, allocation}},
            {"value without quantity, allocated moving average", {0, 10, 0, Ord, true, 1, true, Ma, allocation}},
            {"difference without quantity, allocated moving average", {0, 0, -4, Ord, true, 1, true, Ma, allocation}},
            {"value without quantity, allocated FIFO", {0, 10, 0, Ord, true, 1, true, Valuation::Fifo, {}}},
            {"value without quantity, allocated unknown method", {0, 10, 0, Ord, true, 1, true, 12345, {}}},
            {"allocated average with quantity", {2, 10, 0, Ord, true, 1, true, Wa, {}}},
            // Judged as the grid shows the figures: what shows as 0.00 is no amount.
            {"amount below its decimals", {5, 0.000001, 0, Ord, true, 1, false, 0, noAmount, 2}},
            {"amount and difference below their decimals", {5, 0.004, 0.004, Ord, true, 1, false, 0, noAmount, 2}},
            {"half of the last decimal shows", {5, 0.005, 0, Ord, true, 1, false, 0, {}, 2}},
            {"negative quantity below its decimals", {-0.001, 10, 0, Ord, false, 1, false, 0, {}, 2}},
        };
        for (const auto &[name, c] : cases)
            QTest::newRow(name) << c;
    }

    void group()
    {
        QFETCH(Case, c);
        int emptyGroups = 0;
        const BalanceRules rules{c.stockType, c.underStock, c.auditChoice, c.decimals, c.decimals};
        const BalanceVerdict verdict =
            BalanceCheck::check(c.quantity, c.amount, c.difference, emptyGroups, c.allocate, c.track, rules);
        QCOMPARE(verdict.valid, c.message.isEmpty());
        QCOMPARE(verdict.lines.join(CrLf), c.message);
        QCOMPARE(emptyGroups, 0);
    }

    void emptyRowRefusedOnceOnFourthGroup_data()
    {
        QTest::addColumn<int>("stockType");
        QTest::addColumn<QString>("message");
        QTest::newRow("ordinary warehouse")
            << OrdinaryStock << QStringLiteral("录入的数据[数量=0，金额=0]！\r\n没有实际意义，数据非法！请重新录入！");
        QTest::newRow("agency warehouse")
            << AgencyStock << QStringLiteral("录入的数据[数量=0]！\r\n没有实际意义，数据非法！请重新录入！");
    }

    void emptyRowRefusedOnceOnFourthGroup()
    {
        QFETCH(int, stockType);
        QFETCH(QString, message);
        const BalanceRules rules{stockType, false, 1};

        int emptyGroups = 0;
        for (int group = 1; group <= 3; ++group) {
            QVERIFY(BalanceCheck::check(0, 0, 0, emptyGroups, false, 0, rules).valid);
            QCOMPARE(emptyGroups, group);
        }
        const BalanceVerdict fourth = BalanceCheck::check(0, 0, 0, emptyGroups, false, 0, rules);
        QVERIFY(!fourth.valid);
        QCOMPARE(fourth.lines.join(CrLf), message);

        // One filled group among empty ones keeps the row.
        int counter = 0;
        for (int group = 0; group < 3; ++group)
            QVERIFY(BalanceCheck::check(0, 0, 0, counter, false, 0, rules).valid);
        QVERIFY(BalanceCheck::check(1, 10, 0, counter, false, 0, rules).valid);
        QCOMPARE(counter, 3);
    }

};

QTEST_MAIN(TestBalanceCheck)
#include "tst_balancecheck.moc"
