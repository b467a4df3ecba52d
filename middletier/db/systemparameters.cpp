#include "systemparameters.h"

namespace {

using Kind = SystemParameterDecl::Kind;

QList<SystemParameterDecl> declare()
{
    const QString ic = SystemParameters::InventoryCategory;
    const QString gl = SystemParameters::LedgerCategory;
    return {
        {ic, QStringLiteral("CurrentYear"), Kind::Integer, QStringLiteral("%Y"), QStringLiteral("存货当前会计年度")},
        {ic, QStringLiteral("CurrentPeriod"), Kind::Integer, QStringLiteral("1"), QStringLiteral("存货当前会计期间")},
        {ic, QStringLiteral("StartYear"), Kind::Integer, QStringLiteral("%Y"), QStringLiteral("存货启用年度")},
        {ic, QStringLiteral("StartPeriod"), Kind::Integer, QStringLiteral("1"), QStringLiteral("存货启用期间")},
        {ic, QStringLiteral("CPStartDate"), Kind::Text, QStringLiteral("0101%Y"),
         QStringLiteral("当前期间开始日期(mmddyyyy)")},
        {ic, QStringLiteral("QtyDecimal"), Kind::Integer, QStringLiteral("2"), QStringLiteral("数量小数位数")},
        {ic, QStringLiteral("PriceDecimal"), Kind::Integer, QStringLiteral("2"), QStringLiteral("单价小数位数")},
        {ic, QStringLiteral("AuditChoice"), Kind::Integer, QStringLiteral("1"),
         QStringLiteral("核算方式：0 数量核算，1 数量金额核算")},
        {ic, QStringLiteral("ShareBal"), Kind::Boolean, QStringLiteral("1"), QStringLiteral("批次金额分摊")},
        {ic, QStringLiteral("UnderStock"), Kind::Boolean, QStringLiteral("0"), QStringLiteral("允许负结存")},
        {ic, QStringLiteral("ICClosed"), Kind::Boolean, QStringLiteral("0"), QStringLiteral("存货初始化已结束")},
        {ic, QStringLiteral("INIBillInterID"), Kind::Integer, QStringLiteral("0"), QStringLiteral("初始数据内码")},
        {ic, QStringLiteral("UseShortNumber"), Kind::Boolean, QStringLiteral("0"), QStringLiteral("使用物料短代码")},
        {ic, QStringLiteral("CostDiffAccountID"), Kind::Integer, QStringLiteral("0"),
         QStringLiteral("材料成本差异科目")},
        {ic, QStringLiteral("ShowFilterFormByInit"), Kind::Boolean, QStringLiteral("0"),
         QStringLiteral("进入仓库前显示过滤窗口"), 2},
        {gl, QStringLiteral("GLClosed"), Kind::Boolean, QStringLiteral("0"), QStringLiteral("总账系统已启用")},
        {gl, QStringLiteral("GLCurrentPeriod"), Kind::Integer, QStringLiteral("1"), QStringLiteral("总账当前期间")},
        {gl, QStringLiteral("GLInitClosed"), Kind::Boolean, QStringLiteral("0"), QStringLiteral("总账初始化已结束")},
    };
}

} // namespace

QString SystemParameterDecl::defaultFor(const QDate &today) const
{
    QString value = defaultValue;
    return value.replace(QLatin1String("%Y"), QString::number(today.year()));
}

QVariant SystemParameterDecl::typed(const QString &stored) const
{
    const QString text = stored.trimmed();
    switch (kind) {
    case Kind::Integer:
        return text.toInt();
    case Kind::Boolean:
        if (text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
            return 1;
        return text.toDouble() != 0 ? 1 : 0;
    case Kind::Text:
        return stored;
    }
    return stored;
}

const QList<SystemParameterDecl> &SystemParameters::all()
{
    static const QList<SystemParameterDecl> declared = declare();
    return declared;
}

const SystemParameterDecl *SystemParameters::find(const QString &key)
{
    for (const SystemParameterDecl &p : all()) {
        if (p.key.compare(key, Qt::CaseInsensitive) == 0)
            return &p;
    }
    return nullptr;
}
