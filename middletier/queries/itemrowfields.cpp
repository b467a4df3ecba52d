#include "itemrowfields.h"

#include "valuationnames.h"

#include <utility>

namespace {

using script::FieldKind;

// The twelve figures of ICInvInitial and their names in the item row, in grid order.
const QList<std::pair<QString, QString>> &figures()
{
    static const QList<std::pair<QString, QString>> pairs{
        {QStringLiteral("FInitYtdBegQty"), QStringLiteral("FYtdAuxBegQty")},
        {QStringLiteral("FInitYtdBegBal"), QStringLiteral("FYtdBegBal")},
        {QStringLiteral("FInitYtdBegDiff"), QStringLiteral("FYtdBegDiff")},
        {QStringLiteral("FInitYtdReceive"), QStringLiteral("FYtdAuxReceive")},
        {QStringLiteral("FInitYtdDebit"), QStringLiteral("FYtdDebit")},
        {QStringLiteral("FInitYtdReceiveDiff"), QStringLiteral("FYtdReceiveDiff")},
        {QStringLiteral("FInitYtdSend"), QStringLiteral("FYtdAuxSend")},
        {QStringLiteral("FInitYtdCredit"), QStringLiteral("FYtdCredit")},
        {QStringLiteral("FInitYtdSendDiff"), QStringLiteral("FYtdSendDiff")},
        {QStringLiteral("FInitBegQty"), QStringLiteral("FAuxBegQty")},
        {QStringLiteral("FInitBegBal"), QStringLiteral("FBegBal")},
        {QStringLiteral("FInitBegDiff"), QStringLiteral("FBegDiff")},
    };
    return pairs;
}

const QStringList &secondaryQuantities()
{
    static const QStringList names{QStringLiteral("FYtdAuxUnitBegQty"), QStringLiteral("FYtdAuxUnitReceive"),
                                   QStringLiteral("FYtdAuxUnitSend"), QStringLiteral("FAuxUnitBegQty")};
    return names;
}

QList<ItemRowFields::Field> declare()
{
    const auto item = [](const char *name, const char *display, const QString &column, FieldKind kind) {
        return ItemRowFields::Field{QString::fromLatin1(name), QString::fromUtf8(display), column, kind, true};
    };
    const auto group = [](const char *name, const char *display, const QString &column, FieldKind kind) {
        return ItemRowFields::Field{QString::fromLatin1(name), QString::fromUtf8(display), column, kind, false};
    };
    QList<ItemRowFields::Field> fields{
        item("FNumber", "物料代码", QStringLiteral("i.FNumber"), FieldKind::Text),
        item("FShortNumber", "物料短代码", QStringLiteral("i.FShortNumber"), FieldKind::Text),
        item("FItemName", "物料名称", QStringLiteral("i.FName"), FieldKind::Text),
        item("FModel", "规格型号", QStringLiteral("i.FModel"), FieldKind::Text),
        group("FUnitName", "单    位", QStringLiteral("coalesce(u.FName,'')"), FieldKind::Text),
        item("FTrackName", "计价方法", ValuationNames::caseExpression(QStringLiteral("i.FTrack")), FieldKind::Text),
        item("FAuxPropName", "辅助属性", QStringLiteral("coalesce(a.FName,'')"), FieldKind::Text),
        item("FAuxClassName", "辅助属性类别", QStringLiteral("coalesce(c.FName,'')"), FieldKind::Text),
    };
    static const char *const figureNames[] = {"年初数量", "年初金额", "年初差异", "本年累计收入数量",
                                              "本年累计收入金额", "本年累计收入差异", "本年累计发出数量",
                                              "本年累计发出金额", "本年累计发出差异", "期初数量",
                                              "期初金额", "期初差异"};
    for (qsizetype f = 0; f < figures().size(); ++f) {
        const QString name = figures().at(f).first;
        fields.append({name, QString::fromUtf8(figureNames[f]), QStringLiteral("g.") + name, FieldKind::Number, false});
    }
    static const char *const secondaryNames[] = {"年初数量(辅助)", "本年累计收入数量(辅助)",
                                                 "本年累计发出数量(辅助)", "期初数量(辅助)"};
    for (qsizetype q = 0; q < secondaryQuantities().size(); ++q) {
        const QString name = secondaryQuantities().at(q);
        fields.append({name, QString::fromUtf8(secondaryNames[q]), QStringLiteral("g.") + name, FieldKind::Number, false});
    }
    fields << group("FStockInDate", "入库日期", QStringLiteral("g.FStockInDate"), FieldKind::Date)
           << group("FKFDate", "生产日期", QStringLiteral("g.FKFDate"), FieldKind::Date)
           << item("FKFPeriod", "保质期(天)", QStringLiteral("i.FKFPeriod"), FieldKind::Number)
           << item("FPlanPrice", "计划单价", QStringLiteral("i.FPlanPrice"), FieldKind::Number);
    return fields;
}

} // namespace

namespace ItemRowFields {

const QList<Field> &fields()
{
    static const QList<Field> declared = declare();
    return declared;
}

script::FilterFields filterFields(bool itemLevelOnly)
{
    script::FilterFields result;
    for (const Field &field : fields()) {
        if (field.itemLevel || !itemLevelOnly)
            result.add(field.name, field.column, field.kind);
    }
    return result;
}

QString rowColumn(const Field &field)
{
    const QString group = QStringLiteral("g.");
    if (!field.column.startsWith(group))
        return field.column;
    for (const auto &[name, column] : figures()) {
        if (name == field.name)
            return QStringLiteral("v.") + column;
    }
    return QStringLiteral("v.") + field.column.mid(group.size());
}

const QStringList &rowFields()
{
    static const QStringList names = [] {
        QStringList list{QStringLiteral("FItemID"),   QStringLiteral("FNumber"),       QStringLiteral("FShortNumber"),
                         QStringLiteral("FItemName"), QStringLiteral("FModel"),        QStringLiteral("FUnitName"),
                         QStringLiteral("FUnitID"),   QStringLiteral("FSecCoefficient"), QStringLiteral("FSecUnitID"),
                         QStringLiteral("FSecUnit"),  QStringLiteral("FTrack"),        QStringLiteral("FTrackName"),
                         QStringLiteral("FAuxPropID"), QStringLiteral("FAuxPropName"), QStringLiteral("FAuxClassID"),
                         QStringLiteral("FAuxClassName")};
        list << figureFields() << secondaryQuantities();
        list << QStringLiteral("FStockInDate") << QStringLiteral("FFieldCompose") << QStringLiteral("FSNListID")
             << QStringLiteral("FBM") << QStringLiteral("FKF") << QStringLiteral("FQtyDecimal")
             << QStringLiteral("FPriceDecimal") << QStringLiteral("FPlanPrice") << QStringLiteral("FKFPeriod");
        return list;
    }();
    return names;
}

QString rowSelectList()
{
    QStringList columns{QStringLiteral("g.FItemID"),
                        QStringLiteral("i.FNumber"),
                        QStringLiteral("i.FShortNumber"),
                        QStringLiteral("i.FName"),
                        QStringLiteral("i.FModel"),
                        QStringLiteral("coalesce(u.FName,'')"),
                        QStringLiteral("g.FUnitID"),
                        QStringLiteral("g.FSecCoefficient"),
                        QStringLiteral("g.FSecUnitID"),
                        QStringLiteral("coalesce(su.FName,'')"),
                        QStringLiteral("i.FTrack"),
                        ValuationNames::caseExpression(QStringLiteral("i.FTrack")),
                        QStringLiteral("g.FAuxPropID"),
                        QStringLiteral("coalesce(a.FName,'')"),
                        QStringLiteral("i.FAuxClassID"),
                        QStringLiteral("coalesce(c.FName,'')")};
    for (const QString &name : figureFields())
        columns.append(QStringLiteral("g.") + name);
    for (const QString &name : secondaryQuantities())
        columns.append(QStringLiteral("g.") + name);
    columns << QStringLiteral("g.FStockInDate") << QStringLiteral("g.FFieldCompose") << QStringLiteral("g.FSNListID")
            << QStringLiteral("i.FBatchManager") << QStringLiteral("i.FISKFPeriod") << QStringLiteral("i.FQtyDecimal")
            << QStringLiteral("i.FPriceDecimal") << QStringLiteral("i.FPlanPrice") << QStringLiteral("i.FKFPeriod");
    return columns.join(QStringLiteral(", "));
}

QString groupAggregates()
{
    QStringList columns{QStringLiteral("max(v.FUnitID) AS FUnitID"), QStringLiteral("max(v.FSecUnitID) AS FSecUnitID"),
                        QStringLiteral("max(v.FSecCoefficient) AS FSecCoefficient"),
                        QStringLiteral("coalesce(min(NULLIF(v.FStockInDate,'')),'') AS FStockInDate"),
                        QStringLiteral("coalesce(max(NULLIF(v.FKFDate,'')),'') AS FKFDate"),
                        QStringLiteral("max(v.FFieldCompose) AS FFieldCompose"),
                        QStringLiteral("max(v.FSNListID) AS FSNListID")};
    for (const auto &[name, column] : figures())
        columns.append(QStringLiteral("coalesce(sum(v.%1),0) AS %2").arg(column, name));
    for (const QString &name : secondaryQuantities())
        columns.append(QStringLiteral("coalesce(sum(v.%1),0) AS %1").arg(name));
    return columns.join(QStringLiteral(", "));
}

QString rowJoins()
{
    return QStringLiteral("JOIN t_ICItem i ON i.FItemID=g.FItemID "
                          "LEFT JOIN t_MeasureUnit u ON u.FMeasureUnitID=g.FUnitID "
                          "LEFT JOIN t_MeasureUnit su ON su.FMeasureUnitID=g.FSecUnitID "
                          "LEFT JOIN t_AuxItem a ON a.FAuxPropID=g.FAuxPropID "
                          "LEFT JOIN t_AuxClass c ON c.FItemClassID=i.FAuxClassID");
}

const QStringList &figureFields()
{
    static const QStringList names = [] {
        QStringList list;
        for (const auto &figure : figures())
            list.append(figure.first);
        return list;
    }();
    return names;
}

QString sumsOverGroups()
{
    QStringList sums;
    for (const QString &name : figureFields())
        sums.append(QStringLiteral("coalesce(sum(g.%1),0)").arg(name));
    return sums.join(QStringLiteral(", "));
}

QString sumsOverRows()
{
    QStringList sums;
    for (const auto &figure : figures())
        sums.append(QStringLiteral("coalesce(sum(v.%1),0)").arg(figure.second));
    return sums.join(QStringLiteral(", "));
}

} // namespace ItemRowFields
