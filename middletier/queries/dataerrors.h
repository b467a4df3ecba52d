#pragma once

#include "mterrors.h"

#include <QString>

// Error numbers and user texts of the initial-data members, the ledger look-up data and the
// log-in, in one place. They follow the numbers of mterrors.h.
namespace DataError {

constexpr int BadPage = MtError::Base + 100;
constexpr int BadPlaceItemKey = MtError::Base + 101;
constexpr int BadErpClassCondition = MtError::Base + 102;
constexpr int BadFieldListKind = MtError::Base + 103;
constexpr int UnknownAccount = MtError::Base + 110;
constexpr int UnknownUser = MtError::Base + 120;
constexpr int ForbiddenUser = MtError::Base + 121;

inline const QString BadPageText = QStringLiteral("分页参数无效：每页行数%1，页码%2（都必须大于0）");
inline const QString BadPlaceItemKeyText =
    QStringLiteral("物料键无效：%1（应为“仓库|仓位|期间|物料”四个整数，用“|”分隔）");
inline const QString BadErpClassConditionText =
    QStringLiteral("物料属性条件无效：%1（只允许 FErpClsID in (...)、FErpClsID=n 或 FErpClsID<>n）");
inline const QString BadFieldListKindText = QStringLiteral("字段列表类型无效：%1（应为FVisForQuest或FVisForOrder）");
inline const QString UnknownAccountText = QStringLiteral("科目[%1|%2]不存在或代码已改变，请刷新科目后重新传递！");
inline const QString UnknownUserText = QStringLiteral("账套[%1]中没有用户[%2]，请检查用户名！");
inline const QString ForbiddenUserText = QStringLiteral("用户[%1]已被禁用，请与系统管理员联系！");

} // namespace DataError
