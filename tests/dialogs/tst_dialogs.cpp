// The find/filter/sort dialog's expressions and refusals, its find, and the colours the colour
// dialog stores, without a database.

#include "privatesettings.h"

#include "dialogs/colorsession.h"
#include "dialogs/frmcolormanager.h"
#include "dialogs/ffssession.h"
#include "frame/settingsstore.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// A line chosen on the entry view's item table: display name, operator or direction, value.
struct Chosen
{
    QString display;
    int choice;
    QString value;
};
using Lines = QList<Chosen>;

FfsSession sessionWith(FfsAction action, const Lines &chosen, FfsMode mode = FfsMode::EntryItem)
{
    FfsSession session;
    session.mode = mode;
    session.action = action;
    session.open();
    for (const Chosen &c : chosen) {
        for (FfsCondition &line : session.lines()) {
            if (line.display != c.display)
                continue;
            (action == FfsAction::Sort ? line.direction : line.op) = c.choice;
            line.value = c.value;
        }
    }
    return session;
}

} // namespace

Q_DECLARE_METATYPE(Lines)
Q_DECLARE_METATYPE(Chosen)

class TestDialogs : public QObject
{
    Q_OBJECT

private slots:
    void expressions_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("action");
        QTest::addColumn<Lines>("lines");
        QTest::addColumn<QString>("expression");
        const int item = int(FfsMode::EntryItem);
        const int account = int(FfsMode::EntryAccount);
        const int filter = int(FfsAction::Filter);
        const int sort = int(FfsAction::Sort);
        QTest::newRow("published example, ends with a blank")
            << item << filter << Lines{{u"物料名称"_s, 5, u"钢"_s}, {u"期初数量"_s, 4, u" 100 "_s}}
            << u"FItemName LIKE '%钢%' AND FInitBegQty>100 "_s;
        QTest::newRow("all lines (无)") << item << filter << Lines{{u"物料名称"_s, 0, u"钢"_s}} << QString();
        QTest::newRow("no value") << item << filter << Lines{{u"物料名称"_s, 1, u"  "_s}} << QString();
        QTest::newRow("credit direction") << account << filter << Lines{{u"借贷方向"_s, 1, u"贷方"_s}} << u"FDC=-1 "_s;
        QTest::newRow("date as yyyy-mm-dd")
            << item << filter << Lines{{u"生产日期"_s, 3, u"20260301"_s}} << u"FKFDate<'2026-03-01' "_s;
        QTest::newRow("a quote stays inside its literal")
            << item << filter << Lines{{u"物料名称"_s, 1, u"x' OR '1'='1"_s}} << u"FItemName='x'' OR ''1''=''1' "_s;
        QTest::newRow("sort example")
            << account << sort << Lines{{u"科目代码"_s, 1, {}}, {u"科目名称"_s, 2, {}}} << u"FNumber ASC ,FName DESC "_s;
        QTest::newRow("no sort") << item << sort << Lines{} << QString();
    }

    void expressions()
    {
        QFETCH(int, mode);
        QFETCH(int, action);
        QFETCH(Lines, lines);
        FfsSession session = sessionWith(FfsAction(action), lines, FfsMode(mode));
        const FfsSession::Outcome outcome = session.accept();
        QVERIFY2(outcome.accepted, qPrintable(outcome.message));
        QTEST(outcome.expression, "expression");
    }

    void shortNumbersFilterTheShortCode()
    {
        FfsSession session;
        session.useShortNumber = true;
        session.open();
        QCOMPARE(session.lines().first().field, u"FShortNumber"_s);
    }

    // Values the fields cannot hold are refused in the dialog with the line named; nothing is built.
    void refusals_data()
    {
        QTest::addColumn<Chosen>("line");
        QTest::newRow("statement after a number") << Chosen{u"期初数量"_s, 4, u"1 or 1=1"_s};
        QTest::newRow("number with a comment") << Chosen{u"期初数量"_s, 1, u"1 -- x"_s};
        QTest::newRow("not a number") << Chosen{u"期初数量"_s, 1, u"inf"_s};
        QTest::newRow("date before 1900") << Chosen{u"生产日期"_s, 1, u"1899-12-31"_s};
        QTest::newRow("not a date") << Chosen{u"生产日期"_s, 1, u"0; DROP TABLE t_ICItem"_s};
        QTest::newRow("not in the list") << Chosen{u"计价方法"_s, 1, u"' OR 1=1 --"_s};
        QTest::newRow("over-long text") << Chosen{u"物料名称"_s, 1, QString(FfsConditions::MaxValueLength + 1, u'x')};
        QTest::newRow("包含 on a number") << Chosen{u"期初数量"_s, 5, u"1"_s};
    }

    void refusals()
    {
        QFETCH(Chosen, line);
        FfsSession session = sessionWith(FfsAction::Filter, {line});
        const FfsSession::Outcome outcome = session.accept();
        QVERIFY(!outcome.accepted);
        QVERIFY(outcome.message.contains(line.display));
        QCOMPARE(session.lines().at(outcome.refusedLine).display, line.display);
    }

    void find_data()
    {
        QTest::addColumn<Chosen>("line");
        QTest::addColumn<bool>("fuzzy");
        QTest::addColumn<bool>("caseSensitive");
        QTest::addColumn<bool>("found"); // in the name "Steel Plate"
        QTest::newRow("包含, lower case") << Chosen{u"物料名称"_s, 5, u"steel"_s} << true << false << true;
        QTest::newRow("包含, case counts") << Chosen{u"物料名称"_s, 5, u"steel"_s} << true << true << false;
        QTest::newRow("等于, fuzzy") << Chosen{u"物料名称"_s, 1, u"PLATE"_s} << true << false << true;
        QTest::newRow("等于, exact") << Chosen{u"物料名称"_s, 1, u"PLATE"_s} << false << false << false;
        QTest::newRow("不等于, exact") << Chosen{u"物料名称"_s, 2, u"steel plate"_s} << false << false << false;
        QTest::newRow("number") << Chosen{u"期初数量"_s, 4, u"2.5"_s} << true << false << true;
        QTest::newRow("(无) finds nothing") << Chosen{u"物料名称"_s, 0, u"Steel"_s} << true << false << false;
    }

    void find()
    {
        QFETCH(Chosen, line);
        FfsSession session = sessionWith(FfsAction::Find, {line});
        QFETCH(bool, fuzzy);
        QFETCH(bool, caseSensitive);
        session.fuzzy = fuzzy;
        session.caseSensitive = caseSensitive;
        QVERIFY(session.accept().accepted);
        const auto row = [](const QString &field) {
            return field == u"FItemName"_s ? QVariant(u"Steel Plate"_s) : QVariant(3.0);
        };
        QTEST(session.matcher().matches(row), "found");
    }

    // First use: the samples show the design colours; the system defaults then OK store the table.
    void systemColoursAreStoredAsTheTable()
    {
        for (const ColorKind &kind : ColorSession::kinds())
            SettingsStore::setValue(kind.setting, 0x123456);
        frmColorManager dialog;
        dialog.prepare();
        QCOMPARE(dialog.session().color(0), QColor(0x56, 0x34, 0x12));
        dialog.findChild<QPushButton *>(u"cmdSystem"_s)->click();
        dialog.findChild<QPushButton *>(u"cmdOK"_s)->click();
        QVERIFY(dialog.OK());
        const QList<qint64> stored{SettingsStore::value(Setting::LockColor).toLongLong(),
                                   SettingsStore::value(Setting::BatManColor).toLongLong(),
                                   SettingsStore::value(Setting::SumColor).toLongLong(),
                                   SettingsStore::value(Setting::FindColor).toLongLong(),
                                   SettingsStore::value(Setting::BalAdjColor).toLongLong()};
        QCOMPARE(stored, (QList<qint64>{0xFEEDF8, 0xE2FEDE, 0xEFEEFF, 0xFEEADE, 0xFFFDCE}));
    }
};

int main(int argc, char **argv)
{
    const PrivateSettings settings;
    QApplication app(argc, argv);
    TestDialogs suite;
    return QTest::qExec(&suite, argc, argv);
}
#include "tst_dialogs.moc"
