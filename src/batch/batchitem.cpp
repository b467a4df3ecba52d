#include "batch/batchitem.h"

#include "batch/batchtexts.h"
#include "batch/batchvalues.h"

#include "frame/logincontext.h"
#include "frame/valuationmethods.h"

#include "frame/automation/dictionary.h"

namespace {

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
} // namespace Key

} // namespace

BatchItem BatchItem::fromItemKey(const Dictionary &key)
{
    BatchItem item;
    item.id = key.Item(Key::ID).toInt();
    item.shortNumber = key.Item(Key::ShortNum).toString();
    item.number = key.Item(Key::Num).toString();
    item.name = key.Item(Key::Name).toString();
    item.model = key.Item(Key::Model).toString();
    item.batchManaged = BatchValues::flag(key.Item(Key::FBM));
    item.shelfLifeManaged = BatchValues::flag(key.Item(Key::FKF));
    item.track = key.Item(Key::Track).toInt();
    item.planPrice = key.Item(Key::PlanPrice).toDouble();
    item.unitId = key.Item(Key::UnitID).toInt();
    item.qtyDecimal = key.Item(Key::QtyDecimal).toInt();
    item.priceDecimal = key.Item(Key::PriceDecimal).toInt();
    item.kfPeriod = key.Item(Key::KFPeriod).toInt();
    item.secUnitId = key.Item(Key::SecUnitID).toInt();
    item.secCoefficient = key.Item(Key::SecCoefficient).toDouble();
    item.auxPropId = key.Item(Key::AuxPropID).toInt();
    return item;
}

QString BatchItem::title() const
{
    if (model.trimmed().isEmpty())
        return name;
    return name + BatchMsg::ModelSeparator + model;
}

QString BatchItem::modeCaption(bool quantitiesOnly) const
{
    if (!batchManaged)
        return ResString(quantitiesOnly ? BatchMsg::ModeQty : BatchMsg::ModeAmount);
    if (quantitiesOnly)
        return ResString(BatchMsg::ModeBatchQty);
    return ResString(plannedCost() ? BatchMsg::ModeBatchPlanned : BatchMsg::ModeBatchAmount);
}

bool BatchItem::plannedCost() const
{
    return track == Valuation::PlannedCost;
}

bool BatchItem::apportionApplies(bool shareBalOption, bool keepsAmounts) const
{
    return shareBalOption && keepsAmounts && batchManaged && Valuation::isAverage(track);
}

bool BatchItem::refusesRepeatedBatchOnEntry() const
{
    return batchManaged && !shelfLifeManaged;
}
