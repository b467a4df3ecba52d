#include "sheet/changebook.h"

#include "frame/icinitstruct.h"
#include "frame/messages.h"
#include "frame/prompter.h"

#include <QTest>

#include <memory>

namespace {

std::unique_ptr<ICInitStruct> record(int itemId, int auxPropId, double begBal)
{
    auto r = std::make_unique<ICInitStruct>();
    r->StockID = 12; r->Period = 3; r->ItemID = itemId; r->AuxPropID = auxPropId; r->BegBal = begBal;
    return r;
}

// The changed rows in order, each as its key and opening amount.
QStringList changedRows(const ChangeBook &book)
{
    QStringList rows;
    for (const ICInitStruct *r : book.changedRows())
        rows.append(r->composedKey() + QLatin1Char('=') + QString::number(r->BegBal));
    return rows;
}

} // namespace

class TestChangeBook : public QObject
{
    Q_OBJECT

private slots:
    void changedRowsKeyedByComposedKey()
    {
        ChangeBook book;
        book.putChanged(record(30, 0, 1));
        book.putChanged(record(10, 0, 2));
        book.putChanged(record(30, 5, 3));
        // The same row checked again replaces its record and keeps its place in the order.
        book.putChanged(record(30, 0, 4));

        QCOMPARE(changedRows(book), QStringList({"12|0|3|30|0=4", "12|0|3|10|0=2", "12|0|3|30|5=3"}));
        QCOMPARE(book.changed(QStringLiteral("12|0|3|30|5"))->BegBal, 3.0);
        QCOMPARE(book.changed(QStringLiteral("12|0|3|99|0")), nullptr);

        // Cleared keys are free again.
        book.clear();
        QCOMPARE(book.changed(QStringLiteral("12|0|3|30|0")), nullptr);
        book.putChanged(record(30, 0, 5));
        QCOMPARE(changedRows(book), QStringList{"12|0|3|30|0=5"});
        QCOMPARE(book.changed(QStringLiteral("12|0|3|30|0"))->BegBal, 5.0);
    }

    void deletedRowsKeptOnce()
    {
        ChangeBook book;
        book.addDeleted(QStringLiteral("30|0"));
        book.addDeleted(QStringLiteral("10|2"));
        book.addDeleted(QStringLiteral("30|0"));
        QCOMPARE(book.deletedRows(), (QStringList{QStringLiteral("30|0"), QStringLiteral("10|2")}));
    }

    void unitChangeRemembersLoadedUnit()
    {
        ChangeBook book;
        const QString key = QStringLiteral("12|0|3|30|0");
        book.noteUnitChange(key, 7, 8);
        book.noteUnitChange(key, 8, 9);
        QVERIFY(book.unitChanged(key));
        QCOMPARE(book.loadedUnit(key), 7);
        QVERIFY(!book.isEmpty());
        // Back to the unit it was loaded with: nothing left to move.
        book.noteUnitChange(key, 9, 7);
        QVERIFY(!book.unitChanged(key));
        QCOMPARE(book.loadedUnit(key), 0);
        QVERIFY(book.isEmpty());
    }

    void askToSave_data()
    {
        QTest::addColumn<bool>("saveEnabled");
        QTest::addColumn<bool>("hasChanges");
        QTest::addColumn<bool>("answerYes");
        QTest::addColumn<bool>("save");
        QTest::addColumn<bool>("asked");
        QTest::addColumn<bool>("kept");

        QTest::newRow("Yes saves") << true << true << true << true << true << true;
        QTest::newRow("No drops the changes") << true << true << false << false << true << false;
        QTest::newRow("disabled button drops without asking") << false << true << true << false << false << false;
        QTest::newRow("disabled button, nothing changed") << false << false << true << false << false << false;
        QTest::newRow("Yes with nothing changed still saves") << true << false << true << true << true << false;
    }

    void askToSave()
    {
        QFETCH(bool, saveEnabled);
        QFETCH(bool, hasChanges);
        QFETCH(bool, answerYes);
        QFETCH(bool, save);
        QFETCH(bool, asked);
        QFETCH(bool, kept);

        ScriptedPrompter prompter;
        const ScopedPrompter scope(&prompter);
        prompter.queueAnswer(answerYes ? Prompter::Answer::Yes : Prompter::Answer::No);

        ChangeBook book;
        book.setDirty(true);
        if (hasChanges) {
            book.putChanged(record(30, 0, 1));
            book.addDeleted(QStringLiteral("10|0"));
        }

        QCOMPARE(::askToSave(book, saveEnabled), save);
        QCOMPARE(prompter.messages().size(), asked ? 1 : 0);
        if (asked) {
            const Prompter::Message &question = prompter.messages().constFirst();
            QCOMPARE(QVariantList({question.caption, question.text, int(question.buttons), int(question.icon)}),
                     QVariantList({QStringLiteral("澄枫提示"), QStringLiteral("数据已经改变，是否需要保存？"),
                                   int(Prompter::Buttons::YesNo), int(Prompter::Icon::Question)}));
        }
        QCOMPARE(!book.isEmpty(), kept);
        // The flag goes with the changes: kept for the save, cleared when they are dropped.
        QCOMPARE(book.isDirty(), save);
        QCOMPARE(changedRows(book), kept ? QStringList{"12|0|3|30|0=1"} : QStringList());
    }
};

QTEST_MAIN(TestChangeBook)
#include "tst_changebook.moc"
