#include "iteminfo.h"

#include "sheet/recordvalues.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/recordset.h"
#include "frame/valuationmethods.h"

namespace {

const QString ModelSeparator = QStringLiteral("/");

namespace Key {
const QString ID = QStringLiteral("ID");
const QString ShortNum = QStringLiteral("ShortNum");
const QString Num = QStringLiteral("Num");
const QString Name = QStringLiteral("Name");
const QString Model = QStringLiteral("Model");
const QString FBM = QStringLiteral("FBM");
const QString FKF = QStringLiteral("FKF");
const QString Track = QStringLiteral("Track");
const QString PlanPrice = QStringLiteral("PlanPrice");
const QString UnitID = QStringLiteral("UnitID");
const QString QtyDecimal = QStringLiteral("QtyDecimal");
const QString PriceDecimal = QStringLiteral("PriceDecimal");
const QString KFPeriod = QStringLiteral("KFPeriod");
const QString SecUnitID = QStringLiteral("SecUnitID");
const QString SecCoefficient = QStringLiteral("SecCoefficient");
const QString AuxPropID = QStringLiteral("AuxPropID");
const QString AuxClassID = QStringLiteral("AuxClassID");
} // namespace Key

// The fields the initial data and the item look-up name differently.
struct ItemFieldNames
{
    const char *name;
    const char *batchManaged;
    const char *shelfLifeManaged;
};

ItemInfo readRecord(const Recordset &rs, int row, const ItemFieldNames &names)
{
    const auto v = [&rs, row](const char *field) { return rs.value(row, QLatin1String(field)); };
    ItemInfo info;
    info.id = v("FItemID").toInt();
    info.shortNumber = v("FShortNumber").toString();
    info.number = v("FNumber").toString();
    info.name = v(names.name).toString();
    info.model = v("FModel").toString();
    info.batchManaged = v(names.batchManaged).toInt() != 0;
    info.shelfLifeManaged = v(names.shelfLifeManaged).toInt() != 0;
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

} // namespace

QString ItemInfo::title() const
{
    if (model.trimmed().isEmpty())
        return name;
    return name + ModelSeparator + model;
}

bool ItemInfo::plannedCost() const
{
    return track == Valuation::PlannedCost;
}

bool ItemInfo::apportionApplies(bool shareBalOption, bool keepsAmounts) const
{
    return shareBalOption && keepsAmounts && batchManaged && Valuation::isAverage(track);
}

bool ItemInfo::refusesRepeatedBatchOnEntry() const
{
    return batchManaged && !shelfLifeManaged;
}

ItemInfo ItemInfo::fromRecord(const Recordset &rs, int row)
{
    return readRecord(rs, row, {"FItemName", "FBM", "FKF"});
}

ItemInfo ItemInfo::fromItemRecord(const Recordset &rs, int row)
{
    return readRecord(rs, row, {"FName", "FBatchManager", "FISKFPeriod"});
}

ItemInfo ItemInfo::fromItemKey(const Dictionary &key)
{
    ItemInfo item;
    item.id = key.Item(Key::ID).toInt();
    item.shortNumber = key.Item(Key::ShortNum).toString();
    item.number = key.Item(Key::Num).toString();
    item.name = key.Item(Key::Name).toString();
    item.model = key.Item(Key::Model).toString();
    item.batchManaged = RecordValues::flag(key.Item(Key::FBM));
    item.shelfLifeManaged = RecordValues::flag(key.Item(Key::FKF));
    item.track = key.Item(Key::Track).toInt();
    item.planPrice = key.Item(Key::PlanPrice).toDouble();
    item.unitId = key.Item(Key::UnitID).toInt();
    item.qtyDecimal = key.Item(Key::QtyDecimal).toInt();
    item.priceDecimal = key.Item(Key::PriceDecimal).toInt();
    item.kfPeriod = key.Item(Key::KFPeriod).toInt();
    item.secUnitId = key.Item(Key::SecUnitID).toInt();
    item.secCoefficient = key.Item(Key::SecCoefficient).toDouble();
    item.auxPropId = key.Item(Key::AuxPropID).toInt();
    item.auxClassId = key.Item(Key::AuxClassID).toInt();
    return item;
}

std::unique_ptr<Dictionary> ItemInfo::toItemKey() const
{
    auto key = std::make_unique<Dictionary>();
    key->Add(Key::ID, id);
    key->Add(Key::ShortNum, shortNumber);
    key->Add(Key::Num, number);
    key->Add(Key::Name, name);
    key->Add(Key::Model, model);
    key->Add(Key::FBM, batchManaged);
    key->Add(Key::FKF, shelfLifeManaged);
    key->Add(Key::Track, track);
    key->Add(Key::PlanPrice, planPrice);
    key->Add(Key::UnitID, unitId);
    key->Add(Key::QtyDecimal, qtyDecimal);
    key->Add(Key::PriceDecimal, priceDecimal);
    key->Add(Key::KFPeriod, kfPeriod);
    key->Add(Key::SecUnitID, secUnitId);
    key->Add(Key::SecCoefficient, secCoefficient);
    key->Add(Key::AuxPropID, auxPropId);
    key->Add(Key::AuxClassID, auxClassId);
    return key;
}
