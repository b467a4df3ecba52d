#include "valuationnames.h"

#include <QStringList>

namespace {

struct Method
{
    int code;
    const char *name;
};

constexpr Method methods[] = {
    {76, "加权平均法"},
    {77, "移动平均法"},
    {78, "先进先出法"},
    {79, "后进先出法"},
    {80, "分批认定法-批内移动平均"},
    {81, "计划成本法"},
    {20308, "分批认定法-批内先进先出"},
};

} // namespace

namespace ValuationNames {

QString caseExpression(const QString &column)
{
    QStringList branches;
    for (const Method &method : methods)
        branches.append(QStringLiteral("WHEN %1 THEN '%2'").arg(method.code).arg(QString::fromUtf8(method.name)));
    return QStringLiteral("CASE %1 %2 ELSE '' END").arg(column, branches.join(QLatin1Char(' ')));
}

} // namespace ValuationNames
