#include "batch/batchservices.h"

#include "frame/messages.h"
#include "frame/sysparams.h"

#include "frame/clients/appconnectionclient.h"
#include "frame/clients/initialdataclient.h"

#include "frame/automation/recordset.h"
#include "frame/automation/progids.h"

#include <QStringList>

namespace {

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
    const auto rs = AppConnectionClient().Execute(coefficientSql(itemId, unitId, secUnitId));
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
    return InitialDataClient(ProgId::MICInitialData)
        .FetchYtdBatManDetail(query.period, query.stockId, query.spId, query.itemId, query.auxPropId, query.unitId,
                              query.batchManaged, query.shelfLifeManaged, query.fieldCompose);
}

void updateINIData(const QString &script)
{
    InitialDataClient(ProgId::MICInitialData).UpdateINIData(script);
}

} // namespace BatchServices
