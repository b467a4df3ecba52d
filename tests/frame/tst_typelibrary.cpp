#include "fakeservices.h"

#include "frame/icinitstruct.h"
#include "frame/typelibrary.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

class TestTypeLibrary : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerFakeServices(); }

    // Hosts bind to these numbers and names: every published row must exist on the class with its
    // kind, type and parameter names.
    void everyRowMatchesTheMetaObject()
    {
        const QRegularExpression guid(QStringLiteral("^\\{[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}\\}$"));
        QSet<QString> ids;
        for (const TypeLibraryClass &cls : icInitialTypeLibrary()) {
            for (const char *id : {cls.classId, cls.interfaceId}) {
                QVERIFY2(guid.match(QLatin1String(id)).hasMatch(), id);
                QVERIFY2(!ids.contains(QLatin1String(id)), id);
                ids.insert(QLatin1String(id));
            }
            const std::unique_ptr<QObject> object = CreateObject(QLatin1String(cls.progId));
            const QMetaObject *mo = object->metaObject();
            QCOMPARE(QByteArray(mo->className()), QByteArray(cls.className));

            QSet<quint32> memberIds;
            for (const TypeLibraryMember &m : cls.members) {
                QVERIFY2(!memberIds.contains(m.id), m.name);
                memberIds.insert(m.id);
                const QByteArray context = QByteArray(cls.className) + "." + m.name;
                if (m.kind == MemberKind::Method) {
                    QMetaMethod found;
                    const QList<QByteArray> wanted = QByteArray(m.parameters).isEmpty()
                                                         ? QList<QByteArray>{}
                                                         : QByteArray(m.parameters).split(',');
                    for (int i = 0; i < mo->methodCount(); ++i) {
                        const QMetaMethod candidate = mo->method(i);
                        if (candidate.name() == m.name && candidate.parameterCount() == wanted.size())
                            found = candidate;
                    }
                    if (m.pending) {
                        QVERIFY2(!found.isValid(), context + " is marked pending but exists; drop the mark");
                        continue;
                    }
                    QVERIFY2(found.isValid(), context);
                    QCOMPARE(found.parameterNames().join(','), wanted.join(','));
                    QCOMPARE(QByteArray(found.typeName()), QByteArray(m.type));
                    QVERIFY2(found.access() == QMetaMethod::Public, context);
                } else {
                    const QMetaProperty property = mo->property(mo->indexOfProperty(m.name));
                    QVERIFY2(property.isValid(), context);
                    QCOMPARE(QByteArray(property.typeName()), QByteArray(m.type));
                    const bool writable = m.kind != MemberKind::PropertyGet;
                    QCOMPARE(property.isWritable(), writable);
                }
            }
            for (const TypeLibraryEvent &event : cls.events) {
                const int index = mo->indexOfSignal(QByteArray(event.name) + "(QString&,QString&)");
                QVERIFY2(index >= 0, event.name);
                QCOMPARE(mo->method(index).parameterNames().join(','), QByteArray(event.parameters));
            }
            QCOMPARE(QByteArray(cls.eventInterfaceId).isEmpty(), cls.events.isEmpty());
        }
    }

    void structFieldsCountUpFromTheFirstId()
    {
        const TypeLibraryClass *structClass = nullptr;
        for (const TypeLibraryClass &cls : icInitialTypeLibrary()) {
            if (QByteArray(cls.className) == "ICInitStruct")
                structClass = &cls;
        }
        QVERIFY(structClass);
        const auto &members = structClass->members;
        QCOMPARE((std::tuple{members.size(), members.first().id, QByteArray(members.last().name), members.last().id}),
                 (std::tuple{qsizetype(32), 0x40030000u, QByteArray("BatchManager"), 0x4003001Fu}));
    }

    void dispatchByMemberIdOnTheStructAndTheControl()
    {
        ICInitStruct record;
        Dispatch::invoke(&record, 0x40030005u, {QStringLiteral("B-01")}); // BatchNo
        Dispatch::invoke(&record, 0x40030001u, {12});                     // StockID
        QCOMPARE(record.BatchNo, QStringLiteral("B-01"));
        QCOMPARE(Dispatch::invoke(&record, 0x40030001u).toInt(), 12);
        QCOMPARE(Dispatch::invoke(&record, QStringLiteral("StockID")).toInt(), 12);
        record.SPID = 3;
        record.Period = 1;
        record.ItemID = 3057;
        QCOMPARE(record.composedKey(), QStringLiteral("12|3|1|3057|0"));

        const std::unique_ptr<QObject> control = CreateObject(QStringLiteral("LumoICInitialCtl.ICInitCtl"));
        Dispatch::invoke(control.get(), 0x4003001Fu, {250});
        QCOMPARE(Dispatch::invoke(control.get(), QStringLiteral("mlngPerPageSize")).toInt(), 250);
        QVERIFY(Dispatch::invoke(control.get(), 0x6803000Cu).value<QObject *>());
        // hwnd is read-only.
        QVERIFY_THROWS_EXCEPTION(LumoError, Dispatch::invoke(control.get(), 0x6803000Bu, {1}));
    }
};

QTEST_MAIN(TestTypeLibrary)
#include "tst_typelibrary.moc"
