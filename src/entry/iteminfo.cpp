#include "iteminfo.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/recordset.h"

ItemInfo ItemInfo::fromRecord(const Recordset &rs, int row)
{
    const auto v = [&rs, row](const char *field) { return rs.value(row, QLatin1String(field)); };
    ItemInfo info;
    info.id = v("FItemID").toInt();
    info.shortNumber = v("FShortNumber").toString();
    info.number = v("FNumber").toString();
    info.name = v("FItemName").toString();
    info.model = v("FModel").toString();
    info.batchManaged = v("FBM").toInt() != 0;
    info.shelfLifeManaged = v("FKF").toInt() != 0;
    info.track = v("FTrack").toInt();
    info.planPrice = v("FPlanPrice").toDouble();
    info.unitId = v("FUnitID").toInt();
    info.qtyDecimal = v("FQtyDecimal").toInt();
    info.priceDecimal = v("FPriceDecimal").toInt();
    info.kfPeriod = v("FKFPeriod").toInt();
    info.secUnitId = v("FSecUnitID").toInt();
    info.secCoefficient = v("FSecCoefficient").toDouble();
    info.auxPropId = v("FAuxPropID").toInt();
    info.auxClassId = v("FAuxClassID").toInt();
    info.auxClassName = v("FAuxClassName").toString();
    return info;
}

std::unique_ptr<Dictionary> ItemInfo::toItemKey() const
{
    auto key = std::make_unique<Dictionary>();
    key->Add(QStringLiteral("ID"), id);
    key->Add(QStringLiteral("ShortNum"), shortNumber);
    key->Add(QStringLiteral("Num"), number);
    key->Add(QStringLiteral("Name"), name);
    key->Add(QStringLiteral("Model"), model);
    key->Add(QStringLiteral("FBM"), batchManaged);
    key->Add(QStringLiteral("FKF"), shelfLifeManaged);
    key->Add(QStringLiteral("Track"), track);
    key->Add(QStringLiteral("PlanPrice"), planPrice);
    key->Add(QStringLiteral("UnitID"), unitId);
    key->Add(QStringLiteral("QtyDecimal"), qtyDecimal);
    key->Add(QStringLiteral("PriceDecimal"), priceDecimal);
    key->Add(QStringLiteral("KFPeriod"), kfPeriod);
    key->Add(QStringLiteral("SecUnitID"), secUnitId);
    key->Add(QStringLiteral("SecCoefficient"), secCoefficient);
    key->Add(QStringLiteral("AuxPropID"), auxPropId);
    key->Add(QStringLiteral("AuxClassID"), auxClassId);
    return key;
}
