#pragma once

#include <QString>

// The texts the grid shows of its own, each in one place.
namespace GridText {

// The grid's context menu.
inline const QString Copy = QStringLiteral("复制");
inline const QString Paste = QStringLiteral("粘贴");
inline const QString Delete = QStringLiteral("删除");
inline const QString Undo = QStringLiteral("撤销");
inline const QString Redo = QStringLiteral("重做");

// A pasted value a cell refused: its column's title, its row's number and the value.
inline QString pasteRefused(const QString &columnTitle, int row, const QString &value)
{
    return QStringLiteral("第%2行“%1”不能取粘贴的值“%3”，该行没有粘贴。").arg(columnTitle).arg(row).arg(value);
}

} // namespace GridText
