#include "batch/batchservices.h"

#include "frame/logincontext.h"
#include "frame/messages.h"
#include "frame/sysparams.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/recordset.h"
#include "frame/automation/progids.h"

#include <QStringList>

namespace {

const QString ExecuteMember = QStringLiteral("Execute");
const QString FetchDetailMember = QStringLiteral("FetchYtdBatManDetail");
const QString UpdateMember = QStringLiteral("UpdateINIData");
const QString NoDetail = QStringLiteral("数据服务没有返回批次明细");
constexpr int NoDetailError = LumoError::AppBase + 42;

// Pieces of the coefficient statement; %1 item, %2 entry unit, %3 secondary unit.
const QStringList CoefficientPieces{
    QStringLiteral("select isnull((SELECT t2.FCoefficient AS FCoefficient"),
    QStringLiteral(" FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID"),
    QStringLiteral(" WHERE t1.FItemID = %1 AND t2.FMeasureUnitID=%2),0),"),
    QStringLiteral(" isnull((SELECT ISNULL(t2.FCoefficient,0) AS FCoefficient"),
    QStringLiteral(" FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID"),
    QStringLiteral(" WHERE t1.FItemID = %1 AND t2.fmeasureunitid= %3),0)"),
};

} // namespace

namespace BatchServices {

QString coefficientSql(qint32 itemId, qint32 unitId, qint32 secUnitId)
{
    return CoefficientPieces.join(Msg::LineBreak).arg(itemId).arg(unitId).arg(secUnitId);
}

UnitCoefficients fetchCoefficients(qint32 itemId, qint32 unitId, qint32 secUnitId)
{
    const std::unique_ptr<QObject> connection = CreateObject(ProgId::AppConnection);
    const auto rs = takeObject<Recordset>(
        Dispatch::call(connection.get(), ExecuteMember, {coefficientSql(itemId, unitId, secUnitId)}));
    if (!rs || rs->atEnd())
        return {};
    return {rs->Fields(0).toDouble(), rs->Fields(1).toDouble()};
}

int fetchAmountScale()
{
    return FetchAmountScale();
}

std::unique_ptr<Recordset> fetchDetail(const DetailQuery &query)
{
    const std::unique_ptr<QObject> data = CreateObject(ProgId::MICInitialData);
    auto rs = takeObject<Recordset>(Dispatch::call(
        data.get(), FetchDetailMember,
        {GetPropsString(), query.period, query.stockId, query.spId, query.itemId, query.auxPropId, query.unitId,
         query.batchManaged, query.shelfLifeManaged, query.fieldCompose}));
    if (!rs)
        throw LumoError(NoDetailError, NoDetail, FetchDetailMember);
    return rs;
}

void updateINIData(const QString &script)
{
    const std::unique_ptr<QObject> data = CreateObject(ProgId::MICInitialData);
    Dispatch::call(data.get(), UpdateMember, {GetPropsString(), script});
}

} // namespace BatchServices
