#pragma once

#include "frame/automation/lumoerror.h"

#include <QString>

// Error numbers and user texts of the middle tier, in one place. Every service member raises
// its errors as LumoError with one of these numbers; the texts are what the user reads in the
// controls' error box.
namespace MtError {

constexpr int Base = LumoError::AppBase + 300;

constexpr int NoAcctDb = Base + 1;
constexpr int AcctDbNotFound = Base + 2;
constexpr int AcctDbOpenFailed = Base + 3;
constexpr int NotAnAccountSet = Base + 4;
constexpr int SchemaTooNew = Base + 5;
constexpr int BadAcctDb = Base + 6;
constexpr int AcctDbExists = Base + 7;
constexpr int QueryFailed = Base + 10;
constexpr int BadTypeList = Base + 20;
constexpr int ScriptFailed = Base + 30;
constexpr int StatementRefused = Base + 31;
constexpr int FilterRefused = Base + 32;
constexpr int NotLoggedIn = Base + 40;
constexpr int UnknownCurrency = Base + 50;
constexpr int DemoNotEmpty = Base + 90;
constexpr int BadAdministrator = Base + 91;

inline const QString NoAcctDbText = QStringLiteral("登录信息中没有账套数据库(AcctDB)，请重新登录！");
inline const QString AcctDbNotFoundText = QStringLiteral("账套数据库不存在：%1");
inline const QString AcctDbOpenFailedText = QStringLiteral("无法打开账套数据库[%1]：%2");
inline const QString NotAnAccountSetText = QStringLiteral("数据库[%1]不是账套数据库。");
inline const QString SchemaTooNewText =
    QStringLiteral("账套数据库的版本(%1)高于本程序支持的版本(%2)，请升级程序后再使用。");
inline const QString BadAcctDbText = QStringLiteral("账套数据库的连接信息无效：%1");
inline const QString AcctDbExistsText = QStringLiteral("账套数据库已经存在：%1");
inline const QString QueryFailedText = QStringLiteral("数据库操作失败：%1");
inline const QString BadTypeListText = QStringLiteral("仓库类型列表无效：%1");
inline const QString StatementRefusedText = QStringLiteral("不允许执行的语句：%1");
inline const QString NotLoggedInText = QStringLiteral("当前进程没有登录信息(PropsString)，请先登录账套！");
inline const QString UnknownCurrencyText = QStringLiteral("币别不存在：%1");
inline const QString DemoNotEmptyText = QStringLiteral("账套中已经有仓库数据，演示数据只能写入新账套：%1");
inline const QString BadAdministratorText = QStringLiteral("管理员的用户名不能为空，也不能含有控制字符。");

} // namespace MtError
