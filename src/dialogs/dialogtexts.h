#pragma once

#include <QString>
#include <QStringList>

// The texts of the find/filter/sort dialog and of the row-colour dialog, each in one place.
// Every one reaches the user through ResString.
namespace DialogMsg {

inline const QString OkButton = QStringLiteral("确定(&Y)");
inline const QString CancelButton = QStringLiteral("取消(&C)");

// Find, filter and sort.
inline const QString FindTab = QStringLiteral("搜索");
inline const QString FilterTab = QStringLiteral("过滤(&F)");
inline const QString SortTab = QStringLiteral("排序(&S)");
// The window title by action (find, filter, sort).
inline const QStringList ActionTitles{QStringLiteral("搜索"), QStringLiteral("过滤"), QStringLiteral("排序")};
inline const QString MatchFrame = QStringLiteral("匹配选项(&M):");
inline const QString MatchBlur = QStringLiteral("模糊搜索(&B)");
inline const QString MatchExact = QStringLiteral("匹配搜索(&A)");
inline const QString CaseFrame = QStringLiteral("是否区分大小写(&D):");
inline const QString CaseYes = QStringLiteral("是(&Y)");
inline const QString CaseNo = QStringLiteral("否(&N)");
inline const QString FieldHeader = QStringLiteral("过滤目标");
inline const QString OperatorHeader = QStringLiteral("过滤条件");
inline const QString ValueHeader = QStringLiteral("过滤内容");
inline const QString SortFieldHeader = QStringLiteral("排序目标");
inline const QString DirectionHeader = QStringLiteral("排序方式");
// Operator list texts by code 0..5, sort directions by code 0..2.
inline const QStringList Operators{QStringLiteral("(无)"), QStringLiteral("等于"), QStringLiteral("不等于"),
                                   QStringLiteral("小于"), QStringLiteral("大于"), QStringLiteral("包含")};
inline const QStringList Directions{QStringLiteral("(无)"), QStringLiteral("升序"), QStringLiteral("降序")};
inline const QString Debit = QStringLiteral("借方");
inline const QString Credit = QStringLiteral("贷方");
// A value the field cannot hold: the line's display name and the value.
inline const QString NeedsNumber = QStringLiteral("“%1”的过滤内容“%2”不是数字，请重新输入！");
inline const QString NeedsDate = QStringLiteral("“%1”的过滤内容“%2”不是1900-01-01至2100-12-31之间的日期，请重新输入！");
inline const QString NeedsListValue = QStringLiteral("“%1”的过滤内容只能从列表中选择，“%2”不在其中！");
inline const QString ValueTooLong = QStringLiteral("“%1”的过滤内容超过%2个字符，请重新输入！");
inline const QString LikeNeedsText = QStringLiteral("“%1”不能用“包含”比较，请选择其他条件！");

// Row colours.
inline const QString ColorTitle = QStringLiteral("颜色管理");
inline const QString LockButton = QStringLiteral("表格锁定的颜色");
inline const QString BatManButton = QStringLiteral("批次顺序号颜色");
inline const QString SumButton = QStringLiteral("合计栏显示颜色");
inline const QString FindButton = QStringLiteral("搜索显示的颜色");
inline const QString BalAdjButton = QStringLiteral("金额调整的颜色");
inline const QString SystemColors = QStringLiteral("恢复系统默认颜色(&S)");

} // namespace DialogMsg
