#include "batch/batchlayout.h"

#include <QStringList>

namespace BatCol {

QString title(int col)
{
    static const QStringList titles{
        QString(),
        QStringLiteral("批号"),
        QStringLiteral("年初数量"),
        QStringLiteral("年初数量(辅助)"),
        QStringLiteral("年初金额"),
        QStringLiteral("年初差异"),
        QStringLiteral("本年累计收入数量"),
        QStringLiteral("本年累计收入数量(辅助)"),
        QStringLiteral("本年累计收入金额"),
        QStringLiteral("本年累计收入差异"),
        QStringLiteral("本年累计发出数量"),
        QStringLiteral("本年累计发出数量(辅助)"),
        QStringLiteral("本年累计发出金额"),
        QStringLiteral("本年累计发出差异"),
        QStringLiteral("期初数量"),
        QStringLiteral("期初数量(辅助)"),
        QStringLiteral("期初金额"),
        QStringLiteral("期初差异"),
        QStringLiteral("入库日期"),
        QStringLiteral("顺序号"),
        QStringLiteral("标志位"),
        QStringLiteral("原批号"),
        QStringLiteral("生产/采购日期"),
        QStringLiteral("保质期(天)"),
        QStringLiteral("FSNListID"),
    };
    return col >= 0 && col < titles.size() ? titles[col] : QString();
}

} // namespace BatCol
