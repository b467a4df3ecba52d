#include "batchfakes.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/recordset.h"

namespace {

const QString ScaleSqlHead = QStringLiteral("SELECT FScale FROM t_Currency");

class FakeShareProps : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE QVariant GetProperty(int, const QString &key)
    {
        return key == QLatin1String("PropsString") ? QVariant(BatchWorld::instance().propsString) : QVariant();
    }
};

class FakeData : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE QObject *FetchYtdBatManDetail(const QString &props, int period, int stockId, int spId, int itemId,
                                              int auxPropId, int unitId, bool batchManaged, bool shelfLifeManaged,
                                              const QString &fieldCompose)
    {
        BatchWorld &world = BatchWorld::instance();
        world.detailCalls.append(
            {props, period, stockId, spId, itemId, auxPropId, unitId, batchManaged, shelfLifeManaged, fieldCompose});
        if (world.failDetail)
            throw LumoError(LumoError::AppBase + 1, DetailFailure, QStringLiteral("FakeData"));
        auto *rs = new Recordset(world.detailFields);
        for (const QVariantList &row : world.detailRows)
            rs->appendRow(QVector<QVariant>(row.begin(), row.end()));
        return rs;
    }

    Q_INVOKABLE void UpdateINIData(const QString &props, const QString &script)
    {
        BatchWorld &world = BatchWorld::instance();
        world.updateProps.append(props);
        if (world.failUpdate)
            throw LumoError(LumoError::AppBase + 2, UpdateFailure, QStringLiteral("FakeData"));
        world.scripts.append(script);
    }
};

class FakeConnection : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE QObject *Execute(const QString &sql)
    {
        BatchWorld &world = BatchWorld::instance();
        world.executed.append(sql);
        if (sql.startsWith(ScaleSqlHead)) {
            auto *rs = new Recordset({QStringLiteral("FScale")});
            rs->appendRow({world.scale});
            return rs;
        }
        auto *rs = new Recordset({QStringLiteral("FUnit"), QStringLiteral("FSecUnit")});
        rs->appendRow({world.unitCoefficient, world.secCoefficient});
        return rs;
    }
};

} // namespace

BatchWorld &BatchWorld::instance()
{
    static BatchWorld world;
    return world;
}

void BatchWorld::reset()
{
    *this = BatchWorld{};
    detailFields = detailFieldNames();
}

QStringList detailFieldNames()
{
    return {QStringLiteral("FQtyDecimal"),       QStringLiteral("FLock"),           QStringLiteral("FBatchNo"),
            QStringLiteral("FBillInterID"),      QStringLiteral("FYtdAuxBegQty"),   QStringLiteral("FYtdAuxUnitBegQty"),
            QStringLiteral("FYtdBegBal"),        QStringLiteral("FYtdBegDiff"),     QStringLiteral("FYtdAuxReceive"),
            QStringLiteral("FYtdAuxUnitReceive"), QStringLiteral("FYtdDebit"),      QStringLiteral("FYtdReceiveDiff"),
            QStringLiteral("FYtdAuxSend"),       QStringLiteral("FYtdAuxUnitSend"), QStringLiteral("FYtdCredit"),
            QStringLiteral("FYtdSendDiff"),      QStringLiteral("FAuxBegQty"),      QStringLiteral("FAuxUnitBegQty"),
            QStringLiteral("FBegBal"),           QStringLiteral("FBegDiff"),        QStringLiteral("FSecUnitID"),
            QStringLiteral("FStockInDate"),      QStringLiteral("FKFDate"),         QStringLiteral("FKFPeriod"),
            QStringLiteral("FSNListID")};
}

void registerBatchFakes()
{
    auto &registry = ComponentRegistry::instance();
    registry.registerClass(QStringLiteral("LumoPropsMgr.ShareProps"), [] { return new FakeShareProps; });
    registry.registerClass(QStringLiteral("LumoMICInitial.Data"), [] { return new FakeData; });
    registry.registerClass(QStringLiteral("LumoConnection.AppConnection"), [] { return new FakeConnection; });
}

#include "batchfakes.moc"
