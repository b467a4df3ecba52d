#pragma once

#include <QString>

// The texts the suite's look-up dialogs show, once.
namespace ComponentText {

inline const QString ItemLookUpCaption = QStringLiteral("物料");
inline const QString SearchLabel = QStringLiteral("查找(&S)：");
inline const QString SearchHint = QStringLiteral("代码、名称或规格型号的一部分");
inline const QString OkButton = QStringLiteral("确定");
inline const QString CancelButton = QStringLiteral("取消");
inline const QString FoundCount = QStringLiteral("已列出 %1 个物料");
inline const QString FoundMore = QStringLiteral("已列出 %1 个物料，向下翻可看更多");

} // namespace ComponentText
