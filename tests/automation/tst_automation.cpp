#include "fakeservices.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/propertystring.h"
#include "frame/automation/recordset.h"
#include "frame/automation/typelibraryregistry.h"

#include <QTest>

namespace {

// A small class with the kinds of members the published classes have.
class Sample : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int Count READ count WRITE setCount)
    Q_PROPERTY(QString Name READ name)

public:
    int count() const { return m_count; }
    void setCount(int count) { m_count = count; }
    QString name() const { return QStringLiteral("sample"); }

    Q_INVOKABLE double Scale(double value, int times = 2) const { return value * times; }
    Q_INVOKABLE QString Join(const QString &a, const QVariant &b) const { return a + b.toString(); }
    Q_INVOKABLE QObject *MakeRecords() const
    {
        auto *rs = new Recordset({QStringLiteral("FID")});
        rs->appendRow({42});
        return rs;
    }
    Q_INVOKABLE void Fail() const { throw LumoError(LumoError::AppBase + 7, QStringLiteral("失败了"), QStringLiteral("Sample")); }
    // Published members take up to fourteen arguments.
    Q_INVOKABLE QString Fourteen(int a, int b, int c, int d, int e, int f, int g, int h, int i, int j, int k, int l,
                                 int m, const QString &n) const
    {
        return QString::number(a + b + c + d + e + f + g + h + i + j + k + l + m) + n;
    }
    Q_INVOKABLE int Count2(QObject *dictionary) const { return Dispatch::getProperty(dictionary, QStringLiteral("Count")).toInt(); }

private:
    int m_count = 0;
};

const bool sampleRegistered = [] {
    ComponentRegistry::instance().registerClass(QStringLiteral("Test.Sample"), [] { return new Sample; });
    TypeLibraryRegistry::instance().registerLibrary(
        QStringLiteral("TestLibrary"),
        {{"Sample", "Test.Sample", "{1}", "{2}", "",
          {{0x40030000, "Count", MemberKind::PropertyGetLet, "int", ""},
           {0x60030001, "Scale", MemberKind::Method, "double", "value,times"},
           {0x68030002, "Name", MemberKind::PropertyGet, "QString", ""}},
          {}}});
    return true;
}();

} // namespace

class TestAutomation : public QObject
{
    Q_OBJECT

private slots:
    void registryCreatesByProgIdWithoutRegardToCase()
    {
        const auto object = CreateObject(QStringLiteral("test.SAMPLE"));
        QVERIFY(qobject_cast<Sample *>(object.get()));
        QVERIFY(ComponentRegistry::instance().isRegistered(QStringLiteral("Pelm.Dictionary")));
        // An unknown ProgID names itself in the error.
        const auto error = raisedBy([] { CreateObject(QStringLiteral("No.SuchThing")); });
        QCOMPARE(error ? error->number() : 0, LumoError::CannotCreateObject);
        QVERIFY(error->description().contains(QLatin1String("No.SuchThing")));
    }

    void dictionaryKeepsOrderAndCompareMode()
    {
        Dictionary d;
        d.Add(QStringLiteral("Filter"), 1);
        d.Add(QStringLiteral("Sort"), 2);
        d.setItem(QStringLiteral("FILTER"), 3);
        QCOMPARE(d.Count(), 2);
        QCOMPARE(d.Keys(), QStringList({QStringLiteral("Filter"), QStringLiteral("Sort")}));
        QCOMPARE(d.Item(QStringLiteral("filter")).toInt(), 3);
        QVERIFY(!d.Item(QStringLiteral("missing")).isValid());
        QVERIFY_THROWS_EXCEPTION(LumoError, d.Add(QStringLiteral("sort"), 9));
        d.Remove(QStringLiteral("SORT"));
        QCOMPARE(d.Items(), QVariantList({3}));
        QVERIFY_THROWS_EXCEPTION(LumoError, d.Remove(QStringLiteral("Sort")));

        // Binary compare keeps case apart; the mode cannot change once the dictionary holds keys.
        Dictionary binary;
        binary.setCompareMode(Dictionary::BinaryCompare);
        binary.Add(QStringLiteral("a"), 1);
        binary.Add(QStringLiteral("A"), 2);
        QCOMPARE(binary.Count(), 2);
        QVERIFY_THROWS_EXCEPTION(LumoError, binary.setCompareMode(Dictionary::TextCompare));
    }

    void recordsetWalksAndSorts()
    {
        Recordset rs({QStringLiteral("FNumber"), QStringLiteral("FQty")});
        QVERIFY(rs.atEnd() && rs.atStart());
        rs.appendRow({QStringLiteral("1.02"), 5});
        rs.appendRow({QStringLiteral("1.01"), QVariant()});
        rs.appendRow({QStringLiteral("1.03"), 2.5});
        rs.setSort(QStringLiteral("fnumber"));
        QStringList order;
        for (rs.MoveFirst(); !rs.atEnd(); rs.MoveNext())
            order.append(rs.Fields(QStringLiteral("FNUMBER")).toString());
        QCOMPARE(order, QStringList({QStringLiteral("1.01"), QStringLiteral("1.02"), QStringLiteral("1.03")}));
        rs.setSort(QStringLiteral("FQty DESC"));
        QCOMPARE(rs.Fields(1).toDouble(), 5.0);
        rs.MoveLast();
        QVERIFY(rs.Fields(1).isNull()); // nulls stay explicit and sort first
        QVERIFY_THROWS_EXCEPTION(LumoError, rs.Fields(QStringLiteral("FNoSuchField")));
        rs.MoveNext();
        QVERIFY(rs.atEnd());
        QVERIFY_THROWS_EXCEPTION(LumoError, rs.Fields(0));
        QVERIFY_THROWS_EXCEPTION(LumoError, rs.setSort(QStringLiteral("FQty SIDEWAYS")));
    }

    void dispatchByNameConvertsArguments()
    {
        Sample sample;
        QCOMPARE(Dispatch::call(&sample, QStringLiteral("Scale"), {QStringLiteral("1.5"), 4}).toDouble(), 6.0);
        QCOMPARE(Dispatch::call(&sample, QStringLiteral("Scale"), {3}).toDouble(), 6.0); // the default argument
        QCOMPARE(Dispatch::call(&sample, QStringLiteral("Join"), {QStringLiteral("a"), 7}).toString(), QStringLiteral("a7"));
        Dispatch::call(&sample, QStringLiteral("Count"), {5});
        QCOMPARE(Dispatch::call(&sample, QStringLiteral("Count")).toInt(), 5);
        Dictionary d;
        d.Add(QStringLiteral("x"), 1);
        QCOMPARE(Dispatch::call(&sample, QStringLiteral("Count2"), {QVariant::fromValue<QObject *>(&d)}).toInt(), 1);
        const QVariantList many{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, QStringLiteral("!")};
        QCOMPARE(Dispatch::call(&sample, QStringLiteral("Fourteen"), many).toString(), QStringLiteral("91!"));
    }

    void dispatchRaisesForUnknownMembersAndPassesErrors()
    {
        Sample sample;
        const auto unknown = raisedBy([&] { Dispatch::call(&sample, QStringLiteral("NoSuchMember")); });
        QCOMPARE(unknown ? unknown->number() : 0, LumoError::MemberNotFound);
        // The member's own error reaches the caller.
        const auto own = raisedBy([&] { Dispatch::call(&sample, QStringLiteral("Fail")); });
        QVERIFY(own);
        QCOMPARE((std::pair{own->number(), own->source()}), (std::pair{LumoError::AppBase + 7, QStringLiteral("Sample")}));
        QVERIFY_THROWS_EXCEPTION(LumoError, Dispatch::call(&sample, QStringLiteral("Scale"), {1, 2, 3}));
        QVERIFY_THROWS_EXCEPTION(LumoError, Dispatch::call(&sample, QStringLiteral("Scale"), {QStringLiteral("abc")}));
        QVERIFY_THROWS_EXCEPTION(LumoError, Dispatch::call(nullptr, QStringLiteral("Scale")));
        QVERIFY_THROWS_EXCEPTION(LumoError, Dispatch::setProperty(&sample, QStringLiteral("Name"), QStringLiteral("x")));
    }

    void dispatchByMemberId()
    {
        Sample sample;
        Dispatch::invoke(&sample, 0x40030000u, {9});
        QCOMPARE(Dispatch::invoke(&sample, 0x40030000u).toInt(), 9);
        QCOMPARE(Dispatch::invoke(&sample, 0x60030001u, {2.0, 3}).toDouble(), 6.0);
        QCOMPARE(Dispatch::invoke(&sample, 0x68030002u).toString(), QStringLiteral("sample"));
        QVERIFY_THROWS_EXCEPTION(LumoError, Dispatch::invoke(&sample, 0x60039999u));
    }

    void returnedObjectsAreTakenByTheCaller()
    {
        Sample sample;
        auto rs = takeObject<Recordset>(Dispatch::call(&sample, QStringLiteral("MakeRecords")));
        QVERIFY(rs);
        QCOMPARE(rs->Fields(QStringLiteral("fid")).toInt(), 42);
        // A variant holding another class gives nothing and leaves the object alone.
        Dictionary owned;
        QVERIFY(!takeObject<Recordset>(QVariant::fromValue<QObject *>(&owned)));
    }

    void propertyStrings_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("entries"); // key=value as split

        QTest::newRow("braces and trailing junk") << QStringLiteral("a=1;b={x;y=z}junk;c=3")
                                                  << QStringList{"a=1", "b=x;y=z", "c=3"};
        QTest::newRow("no final separator") << QStringLiteral("a=1") << QStringList{"a=1"};
        QTest::newRow("empty") << QString() << QStringList{};
        QTest::newRow("lone separator") << QStringLiteral(";") << QStringList{};
        QTest::newRow("blanks trimmed") << QStringLiteral(" UserName = Operator1 ; UserID= 16 ;")
                                        << QStringList{"UserName=Operator1", "UserID=16"};
        QTest::newRow("published example") << QStringLiteral("UserName=Operator1;UserID=16;Note={a=1;b=2};")
                                           << QStringList{"UserName=Operator1", "UserID=16", "Note=a=1;b=2"};
        QTest::newRow("braced value trimmed") << QStringLiteral("k={  spaced  };") << QStringList{"k=spaced"};
    }

    void propertyStrings()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, entries);
        QStringList parsed;
        for (const auto &entry : splitPropertyString(text))
            parsed.append(entry.first + QLatin1Char('=') + entry.second);
        QCOMPARE(parsed, entries);
    }

    // A written value reads back whole, and nothing in it can end the entry early to plant a key;
    // what the format cannot carry is refused rather than cut.
    void propertyEntriesRoundTrip_data()
    {
        QTest::addColumn<QString>("value");
        for (const char *value : {"plain", "/data/a;b}c.db", "x};AcctDB={/evil", "}}", "{", "a}", "=;", "批号 A"})
            QTest::newRow(value) << QString::fromUtf8(value);
    }

    void propertyEntriesRoundTrip()
    {
        QFETCH(QString, value);
        const QString user = QStringLiteral("UserName");
        const QString acctDb = QStringLiteral("AcctDB");
        QCOMPARE(splitPropertyString(propertyEntry(user, value) + propertyEntry(acctDb, acctDb)),
                 (QList<QPair<QString, QString>>{{user, value}, {acctDb, acctDb}}));
        QVERIFY_THROWS_EXCEPTION(LumoError, propertyEntry(user, value + u' '));
        QVERIFY_THROWS_EXCEPTION(LumoError, propertyEntry(value + u'=', acctDb));
    }

    void takeTokenSplitsOnce()
    {
        QString rest = QStringLiteral("a=b=c");
        QCOMPARE(TakeToken(rest, QStringLiteral("=")), QStringLiteral("a"));
        QCOMPARE(rest, QStringLiteral("b=c"));
        QCOMPARE(TakeToken(rest, QStringLiteral(";")), QStringLiteral("b=c"));
        QVERIFY(rest.isEmpty());
        QVERIFY(TakeToken(rest, QStringLiteral(";")).isEmpty());
        QCOMPARE(propertyValue(QStringLiteral("UserID=16;acctdb={postgresql://u@h:5/db?x=1};"), QStringLiteral("AcctDB")),
                 QStringLiteral("postgresql://u@h:5/db?x=1"));
    }
};

QTEST_GUILESS_MAIN(TestAutomation)
#include "tst_automation.moc"
