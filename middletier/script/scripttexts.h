#pragma once

#include <QString>

// Every message of the script executor, the read-statement check and the filter parser. They
// reach the user through the data service's error, so they are written in Chinese.
namespace script::texts {

// The error text that names the statement: number, its first characters, the reason.
inline const QString statementError = QStringLiteral("SQL脚本第%1条语句[%2]出错：%3");
inline const QString scriptError = QStringLiteral("SQL脚本出错：%1");
inline const QString filterError = QStringLiteral("过滤或排序条件出错：%1");

// Tokens.
inline const QString commentRefused = QStringLiteral("不允许注释");
inline const QString semicolonRefused = QStringLiteral("不允许用分号“;”分隔语句");
inline const QString unterminatedString = QStringLiteral("文字%1缺少结束的单引号");
inline const QString badCharacter = QStringLiteral("不允许的字符“%1”");
inline const QString badNumber = QStringLiteral("数字“%1”必须是普通的十进制写法");
inline const QString controlCharacter = QStringLiteral("文字中不允许有控制字符(%1)");

// Grammar.
inline const QString expected = QStringLiteral("在“%1”处应为%2");
inline const QString endOfText = QStringLiteral("语句结尾");
inline const QString statementStart = QStringLiteral("INSERT、UPDATE或DELETE语句");
inline const QString tableName = QStringLiteral("表名");
inline const QString columnName = QStringLiteral("列名");
inline const QString fieldName = QStringLiteral("字段名");
inline const QString literal = QStringLiteral("常量(数字或单引号中的文字)");
inline const QString comparison = QStringLiteral("比较符");
inline const QString connectives = QStringLiteral("AND或OR");
inline const QString comma = QStringLiteral("“,”");
inline const QString quotedPunct = QStringLiteral("“%1”");
inline const QString nestingTooDeep = QStringLiteral("括号最多嵌套%1层");
inline const QString listTooLong = QStringLiteral("一个列表或条件最多%1项");
// Joining column names: within one key, and between the keys a condition may use instead.
inline const QString listSeparator = QStringLiteral("、");
inline const QString alternativeSeparator = QStringLiteral("或");

// The catalogue of what the library writes.
inline const QString unknownTable = QStringLiteral("不允许写入表%1");
inline const QString kindRefused = QStringLiteral("表%1不允许%2语句");
inline const QString subSelectRefused = QStringLiteral("不允许从表%1查询");
inline const QString subSelectColumn = QStringLiteral("子查询只能选择列%1");
inline const QString unknownColumn = QStringLiteral("表%1没有列%2");
inline const QString columnNotWritable = QStringLiteral("不允许修改表%1的列%2");
inline const QString duplicateColumn = QStringLiteral("列%1重复");
inline const QString valueCount = QStringLiteral("列数(%1)与值的个数(%2)不一致");
inline const QString anchorMissing = QStringLiteral("表%1的条件必须限定%2");
inline const QString needsInteger = QStringLiteral("列%1需要整数，不能写入%2");
inline const QString needsNumber = QStringLiteral("列%1需要数值，不能写入%2");
inline const QString needsDate = QStringLiteral("列%1需要yyyy-mm-dd格式的日期，不能写入%2");

// Execution.
inline const QString transactionRefused = QStringLiteral("无法开始事务：%1");
inline const QString commitFailed = QStringLiteral("提交事务失败：%1");
inline const QString deadlock = QStringLiteral(
    "保存时与其他用户同时进行的保存互相等待(死锁)，重试后仍然如此。本次保存已全部撤消，没有写入任何数据，请稍后重新保存。");

// Read statements.
inline const QString readRefused = QStringLiteral("不允许执行这条查询语句");

// Filters and sort lists.
inline const QString unknownField = QStringLiteral("没有可用于条件的字段%1");
inline const QString unknownSortField = QStringLiteral("没有可用于排序的字段%1");
inline const QString fieldNeedsNumber = QStringLiteral("字段%1的比较值%2不是数字");
inline const QString fieldNeedsDate = QStringLiteral("字段%1的比较值%2不是日期");
inline const QString likeNeedsText = QStringLiteral("LIKE的比较值必须是单引号中的文字");

} // namespace script::texts
