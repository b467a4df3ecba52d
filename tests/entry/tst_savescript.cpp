#include "sheet/entrysheet.h"
#include "sheet/sqltext.h"
#include "sheet/savescript.h"

#include "frame/icinitstruct.h"

#include "frame/automation/lumoerror.h"

#include "grid/numberformat.h"

#include <QTest>

#include <memory>

namespace {

const EntryPlace Place{12, 4, 501};
constexpr qint32 Period = 3;

// A loaded or new record of item 3057 with property 41; every figure its own value.
std::unique_ptr<ICInitStruct> record(const QString &loadedKey = {}, bool batchManaged = false)
{
    auto r = std::make_unique<ICInitStruct>();
    r->Period = 3; r->StockID = 12; r->ItemID = 3057; r->UnitID = 7;
    // The four groups: quantity, amount, difference; then the secondary quantities.
    r->YtdAuxBegQty = 10; r->YtdBegBal = 100.5; r->YtdBegDiff = 0;
    r->YtdAuxReceive = 2; r->YtdDebit = 20; r->YtdReceiveDiff = 0.25;
    r->YtdAuxSend = 1; r->YtdCredit = 10.05; r->YtdSendDiff = 0;
    r->AuxBegQty = 11; r->BegBal = 110.45; r->BegDiff = 0.25;
    r->AuxUnitBegQty = 5.5; r->YtdAuxUnitBegQty = 5; r->YtdAuxUnitSend = 0.5; r->YtdAuxUnitReceive = 1;
    r->StockInDate = QStringLiteral("2024-01-05"); r->SecUnitID = 9; r->AuxPropID = 41; r->SecCoefficient = 2;
    r->oFieldCompose = loadedKey; r->BatchManager = batchManaged;
    return r;
}

QString scriptOf(const ICInitStruct &r, const QStringList &deleted = {})
{
    return SaveScript::build({&r}, deleted, Place, Period);
}

} // namespace

class TestSaveScript : public QObject
{
    Q_OBJECT

private slots:
    void sqlNumber_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("integer without a point") << 5.0 << "5";
        QTest::newRow("zero") << 0.0 << "0";
        QTest::newRow("negative zero") << -0.0 << "0";
        QTest::newRow("tiny negative rounds to zero") << -1e-11 << "0";
        QTest::newRow("small without exponent") << 1e-7 << "0.0000001";
        QTest::newRow("large without exponent or separator") << 123456789012.34 << "123456789012.34";
        QTest::newRow("beyond the grid's limits") << 1e15 << "1000000000000000";
        QTest::newRow("binary noise") << 0.1 + 0.2 << "0.3";
        QTest::newRow("negative fraction") << -12.5 << "-12.5";
        QTest::newRow("ten decimals kept") << 0.1234567891 << "0.1234567891";
        QTest::newRow("eleventh decimal rounds up") << 0.12345678915 << "0.1234567892";
        // Half away from zero on the decimal text, on both sides of zero.
        QTest::newRow("half rounds up") << 5e-11 << "0.0000000001";
        QTest::newRow("negative half rounds down") << -5e-11 << "-0.0000000001";
        QTest::newRow("carry into the integer") << 9.99999999999 << "10";
    }

    void sqlNumber()
    {
        QFETCH(double, value);
        QFETCH(QString, text);
        QCOMPARE(SqlText::number(value), text);
    }

    void roundFigure_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("rounded"); // the result's shortest text: exact, not fuzzy
        QTest::newRow("noise") << 0.1 + 0.2 << "0.3";
        QTest::newRow("eleventh decimal") << 1.00000000005 << "1.0000000001";
        QTest::newRow("negative") << -2.00000000004 << "-2";
        QTest::newRow("money") << 2.675 << "2.675";
        QTest::newRow("large") << 123456789012.34 << "123456789012.34";
    }

    void roundFigure()
    {
        QFETCH(double, value);
        QFETCH(QString, rounded);
        QCOMPARE(NumberFormat::plain(SqlText::roundFigure(value)), rounded);
    }

    void insertForNewRow()
    {
        const auto r = record();
        r->SPID = 4;
        QCOMPARE(scriptOf(*r),
                 QStringLiteral("Insert into ICInvInitial(FBrNo,FPeriod,FStockID,FSPID,FItemID,FUnitID,FBatchNo, "
                                "FYtdAuxBegQty,FYtdBegBal,FYtdBegDiff, FYtdAuxReceive,FYtdDebit,FYtdReceiveDiff, "
                                "FYtdAuxSend,FYtdCredit,FYtdSendDiff, FAuxBegQty,FBegBal,FBegDiff, FAuxUnitBegQty,"
                                "FYtdAuxUnitBegQty,FYtdAuxUnitSend, FYtdAuxUnitReceive,FStockInDate,FSecUnitID,"
                                "FAuxPropID,FSecCoefficient,FFieldCompose) Values('0',3,12,4,3057,7,'',10,100.5,0,"
                                "2,20,0.25,1,10.05,0,11,110.45,0.25,5.5,5,0.5,1,'2024-01-05',9,41,2,'12|4|3|3057|41')"
                                "\r\n"));
    }

    void updateForLoadedRow_data()
    {
        QTest::addColumn<bool>("batchManaged");
        QTest::addColumn<QString>("statement");
        // The row was loaded as item 3000 without property and re-pointed: found by its old key,
        // moved to its new one.
        QTest::newRow("figures rewritten")
            << false
            << QStringLiteral(
                   "update icinvinitial set FItemID=3057, funitid=7 ,FStockInDate='2024-01-05',FYtdAuxBegQty=10,"
                   "FYtdBegBal=100.5,FYtdBegDiff=0,FYtdAuxReceive=2,FYtdDebit=20,FYtdReceiveDiff=0.25,FYtdAuxSend=1,"
                   "FYtdCredit=10.05,FYtdSendDiff=0,FAuxBegQty=11,FBegBal=110.45,FBegDiff=0.25,FAuxUnitBegQty=5.5,"
                   "FYtdAuxUnitBegQty=5,FYtdAuxUnitSend=0.5,FYtdAuxUnitReceive=1,FFieldCompose='12|0|3|3057|41' "
                   ",FAuxPropID=41 where FFieldCompose='12|0|3|3000|0'\r\n");
        // A batch item's figures live on its batch lines: only its identity is written.
        QTest::newRow("batch item keeps its figures")
            << true
            << QStringLiteral("update icinvinitial set FItemID=3057,funitid=7,FFieldCompose='12|0|3|3057|41',"
                              "FAuxPropID=41 where FFieldCompose='12|0|3|3000|0'\r\n");
    }

    void updateForLoadedRow()
    {
        QFETCH(bool, batchManaged);
        QFETCH(QString, statement);
        QCOMPARE(scriptOf(*record(QStringLiteral("12|0|3|3000|0"), batchManaged)), statement);
    }

    void deletesComeFirst()
    {
        const auto added = record();
        const auto loaded = record(QStringLiteral("12|0|3|3057|41"), true);
        loaded->AuxPropID = 42;
        const QStringList deleted{QStringLiteral("3057|41"), QStringLiteral("88|0")};
        const QString script = SaveScript::build({added.get(), loaded.get()}, deleted, Place, Period);

        QVERIFY(script.endsWith(QStringLiteral("\r\n")));
        const QStringList lines = script.chopped(2).split(QStringLiteral("\r\n"));
        QCOMPARE(lines.size(), 10);
        const auto deletes = [](const char *item) {
            const QString where = QStringLiteral("FStockID=12 And FSPID=4 And FPeriod=3 And ") + QLatin1String(item);
            const QString serials =
                QStringLiteral(" Where FSNListID In (Select Distinct FSNListID From ICInvinitial Where %1)").arg(where);
            return QStringList{"Delete ICSerial" + serials, "Delete ICSerialFlow" + serials,
                               "Delete ICSerial_F1" + serials, "Delete from ICInvInitial Where " + where};
        };
        // Serial numbers first: their sub-select needs the balance rows still there.
        QCOMPARE(lines.mid(0, 8),
                 deletes("FItemID = 3057 And FAuxPropID = 41") + deletes("FItemID = 88 And FAuxPropID = 0"));
        QVERIFY(lines.at(8).startsWith(QStringLiteral("Insert into ICInvInitial(")));
        QCOMPARE(lines.at(9), QStringLiteral("update icinvinitial set FItemID=3057,funitid=7,"
                                             "FFieldCompose='12|0|3|3057|42',FAuxPropID=42 "
                                             "where FFieldCompose='12|0|3|3057|41'"));
    }

    void textsHaveQuotesDoubled()
    {
        const auto r = record(QStringLiteral("1|0|3|5' or '1'='1"), true);
        QCOMPARE(scriptOf(*r), QStringLiteral("update icinvinitial set FItemID=3057,funitid=7,"
                                              "FFieldCompose='12|0|3|3057|41',FAuxPropID=41 "
                                              "where FFieldCompose='1|0|3|5'' or ''1''=''1'\r\n"));
        const auto dated = record();
        dated->StockInDate = QStringLiteral("2024'01");
        QVERIFY(scriptOf(*dated).contains(QStringLiteral(",'2024''01',9,41,")));
    }

    void malformedDeletedRowThrows_data()
    {
        QTest::addColumn<QString>("deleted");
        QTest::newRow("no property") << "3057";
        QTest::newRow("empty") << "";
        QTest::newRow("text") << "abc|1";
        QTest::newRow("three parts") << "1|2|3";
    }

    void malformedDeletedRowThrows()
    {
        QFETCH(QString, deleted);
        QVERIFY_THROWS_EXCEPTION(LumoError, SaveScript::build({}, {deleted}, Place, Period));
        QCOMPARE(SaveScript::build({}, {}, Place, Period), QString());
    }

    void systemProfileUpdate()
    {
        QCOMPARE(SaveScript::systemProfileUpdate(1024),
                 QStringLiteral("Update t_SystemProfile Set FValue='1024' Where FCategory='IC' And "
                                "FKey='INIBillInterID'\r\n"));
    }
};

QTEST_MAIN(TestSaveScript)
#include "tst_savescript.moc"
