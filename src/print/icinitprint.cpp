#include "icinitprint.h"

#include "frame/automation/dispatch.h"

ICInitPrint::ICInitPrint(QObject *parent)
    : QObject(parent)
{
}

QString ICInitPrint::FetchPRowData(int nRow) const
{
    QString text;
    if (!m_spread)
        return text;
    QObject *grid = m_spread;
    const int cols = Dispatch::getProperty(grid, QStringLiteral("Cols")).toInt();
    for (int col = 1; col < cols; ++col) {
        if (Dispatch::call(grid, QStringLiteral("colHidden"), {col}).toBool())
            continue;
        text += Dispatch::call(grid, QStringLiteral("TextMatrix"), {nRow, col}).toString() + QLatin1Char('|');
    }
    return text;
}
