#pragma once

#include <QString>

// The calculator's texts, each in one place.
namespace CalcText {

// What the display shows instead of a result.
inline const QString DivideByZero = QStringLiteral("除数不能为零");
inline const QString Malformed = QStringLiteral("表达式错误");
inline const QString TooLong = QStringLiteral("表达式过长");
inline const QString TooDeep = QStringLiteral("括号层数过多");
inline const QString OutOfRange = QStringLiteral("结果超出范围");

// The dialog.
inline const QString Title = QStringLiteral("计算器");
inline const QString Tape = QStringLiteral("计算记录");
inline const QString Ok = QStringLiteral("确定");
inline const QString Cancel = QStringLiteral("取消");
inline const QString MemoryMark = QStringLiteral("M");
inline const QString OkTip = QStringLiteral("带着当前结果关闭");

} // namespace CalcText
