#include "fakeservices.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/progids.h"
#include "frame/automation/recordset.h"

namespace {

class FakeShareProps : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE QVariant GetProperty(int, const QString &key)
    {
        return key == QLatin1String("PropsString") ? QVariant(FakeWorld::instance().propsString) : QVariant();
    }
};

class FakeData : public QObject
{
    Q_OBJECT
public:
    FakeData() { ++FakeWorld::instance().dataObjectsCreated; }
    Q_INVOKABLE QObject *FetchSysParameter(const QString &)
    {
        auto *params = new Dictionary;
        const QVariantMap &values = FakeWorld::instance().sysParams;
        for (auto it = values.begin(); it != values.end(); ++it)
            params->Add(it.key(), it.value());
        return params;
    }
    Q_INVOKABLE QObject *FetchStocks(const QString &, const QString &types)
    {
        FakeWorld::instance().stockTypeArguments.append(types);
        return FakeWorld::instance().stockRecords();
    }
    // A place without balances: no rows, no pages.
    Q_INVOKABLE QObject *FetchYtdInitialData(const QString &, int, int, int, int, int, const QString &,
                                             const QString &, const QString &, const QString &, bool)
    {
        auto *page = new Dictionary;
        page->Add(QStringLiteral("Rows"), QVariant::fromValue<QObject *>(new Recordset({QStringLiteral("FItemID")})));
        page->Add(QStringLiteral("Totals"), QVariant::fromValue<QObject *>(new Recordset({QStringLiteral("FInitBegQty")})));
        page->Add(QStringLiteral("TotalPages"), 0);
        page->Add(QStringLiteral("RecordCount"), 0);
        return page;
    }
    Q_INVOKABLE QObject *FetchMeasureUnits(const QString &)
    {
        auto *rs = new Recordset(QStringLiteral("FMeasureUnitID FUnitGroupID FNumber FName").split(u' '));
        rs->appendRow({1, 1, QStringLiteral("PCS"), QStringLiteral("个")});
        return rs;
    }
};

class FakeConnection : public QObject
{
    Q_OBJECT
public:
    // Only the amount scale is asked for: two decimals.
    Q_INVOKABLE QObject *Execute(const QString &)
    {
        auto *rs = new Recordset({QStringLiteral("FScale")});
        rs->appendRow({2});
        return rs;
    }
};

class FakeGLData : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE bool AccessCheck(int type, int id, int right)
    {
        if (type < 0)
            throw LumoError(LumoError::AppBase, QStringLiteral("access service failed"));
        return FakeWorld::instance().rights.contains(QStringLiteral("%1/%2/%3").arg(type).arg(id).arg(right));
    }
};

class FakeMutex : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE int TaskExec(const QString &, int, const QString &, const QString &, short, short, short)
    {
        ++FakeWorld::instance().taskExecCalls;
        return FakeWorld::instance().taskHandle;
    }
    Q_INVOKABLE bool CommitTask(const QString &, int handle)
    {
        ++FakeWorld::instance().commitCalls;
        FakeWorld::instance().committed.append(handle);
        return true;
    }
    Q_INVOKABLE QObject *Tasks(const QString &)
    {
        auto *rs = new Recordset(QStringLiteral("FTaskID FUserID FUserName FComputerName FProcessID").split(u' '));
        for (const QVariantList &row : FakeWorld::instance().tasks)
            rs->appendRow(QVector<QVariant>(row.begin(), row.end()));
        return rs;
    }
};

class FakeLog : public QObject
{
    Q_OBJECT
public:
    FakeLog() { ++FakeWorld::instance().logObjectsCreated; }
    Q_INVOKABLE bool IsEnabled() { return FakeWorld::instance().logEnabled; }
    Q_INVOKABLE int LogStart(const QString &text)
    {
        FakeWorld::instance().logLines.append(QStringLiteral("start ") + text);
        return int(FakeWorld::instance().logLines.size());
    }
    Q_INVOKABLE void LogEnd(int handle, int value)
    {
        FakeWorld::instance().logLines.append(QStringLiteral("end %1 %2").arg(handle).arg(value));
        // A log service that fails inside must not disturb the caller's error.
        throw LumoError(LumoError::AppBase + 99, QStringLiteral("log write failed"));
    }
};

class FakeFormResources : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE void SetFrmFont(QObject *, const QString &) {}
    Q_INVOKABLE QObject *GetZ9FontProps(const QString &)
    {
        auto *props = new Dictionary;
        props->Add(QStringLiteral("Name"), QStringLiteral("宋体"));
        props->Add(QStringLiteral("Charset"), 134);
        return props;
    }
};

class FakeCalc : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double Value READ Value)
public:
    Q_INVOKABLE bool Show() { return FakeWorld::instance().calcResult.has_value(); }
    double Value() const { return FakeWorld::instance().calcResult.value_or(0); }
};

} // namespace

FakeWorld &FakeWorld::instance()
{
    static FakeWorld world;
    return world;
}

Recordset *FakeWorld::stockRecords() const
{
    auto *rs = new Recordset(QStringLiteral("FItemID FParentID FSPID FName FNumber FShortNumber FIsStockMgr FTypeID").split(u' '));
    for (const QVariantList &row : stocks)
        rs->appendRow(QVector<QVariant>(row.begin(), row.end()));
    return rs;
}

void FakeWorld::reset()
{
    *this = FakeWorld{};
    sysParams = {{QStringLiteral("CurrentPeriod"), 1}, {QStringLiteral("QtyDecimal"), 2},
                 {QStringLiteral("ICClosed"), 0}, {QStringLiteral("AuditChoice"), 1}};
}

void registerFakeServices()
{
    auto &registry = ComponentRegistry::instance();
    registry.registerClass(ProgId::ShareProps, [] { return new FakeShareProps; });
    registry.registerClass(ProgId::MICInitialData, [] { return new FakeData; });
    registry.registerClass(ProgId::MICInitialDataAdj, [] { return new FakeData; });
    registry.registerClass(ProgId::AppConnection, [] { return new FakeConnection; });
    registry.registerClass(ProgId::GLData, [] { return new FakeGLData; });
    registry.registerClass(ProgId::NetControlMutex, [] { return new FakeMutex; });
    registry.registerClass(ProgId::LogMsgLog, [] { return new FakeLog; });
    registry.registerClass(ProgId::FrmResLoader, [] { return new FakeFormResources; });
    registerFakeCalculator();
}

void registerFakeCalculator()
{
    ComponentRegistry::instance().registerClass(ProgId::Calc, [] { return new FakeCalc; });
}

std::optional<LumoError> raisedBy(const std::function<void()> &action)
{
    try {
        action();
    } catch (const LumoError &error) {
        return error;
    }
    return std::nullopt;
}

#include "fakeservices.moc"
