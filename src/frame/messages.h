#pragma once

#include <QString>

// The user-visible texts of the frame, each in one place. Every one reaches the user through
// ResString.
namespace Msg {

inline const QString Caption = QStringLiteral("澄枫提示");
// The caption of the calculator's question, the one message box that does not use Caption.
inline const QString SystemCaption = QStringLiteral("系统提示");
inline const QString LineBreak = QStringLiteral("\r\n");
inline const QString ErrorReason = QStringLiteral("错误原因：");
inline const QString ErrorSource = QStringLiteral("错误来源：");
inline const QString NoAccess = QStringLiteral("没有权限,请与系统管理员联系");
// A refused task, with who holds it when that can be told.
inline const QString TaskConflict =
    QStringLiteral("当前使用的功能与当前或其他用户有冲突,可能无法使用! 请等对方退出该功能后再试。");
inline const QString TaskHeldBy = QStringLiteral(
    "当前使用的功能正由用户%1在计算机%2上使用,可能无法使用! 请等该用户退出该功能后再试。");
inline const QString TaskConflictSource = QStringLiteral("MNetControl.ExecFunc");
inline const QString Ready = QStringLiteral("就绪");
inline const QString Saving = QStringLiteral("请稍候，系统正在保存数据.......");
inline const QString AskSave = QStringLiteral("数据已经改变，是否需要保存？");
// At a warehouse with stock places, in the status bar's second panel.
inline const QString EnterAtStockPlaces = QStringLiteral("该仓库设有仓位，请在其仓位下录入初始数据");
// What a save wrote, in the status bar's second panel.
inline const QString SavedRows = QStringLiteral("已保存%1行");
inline const QString DeletedRows = QStringLiteral("，删除%1行");

// What find, filter and sort left in the grid, in the status bar's second panel.
inline const QString FilteredRows = QStringLiteral("过滤结果：共%1行");
inline const QString FoundRows = QStringLiteral("搜索结果：本页%1行符合条件");
inline const QString NoMoreFound = QStringLiteral("搜索结果：没有更多符合条件的行");

// "系统在调用函数LoadingStocks()时发生错误": the text every procedure's handler shows.
inline QString procedureFailed(const QString &procedure)
{
    return QStringLiteral("系统在调用函数%1()时发生错误").arg(procedure);
}

// The calculator's result and the column of the current cell.
inline QString askWriteBack(const QString &columnTitle)
{
    return QStringLiteral("是否回填计算结果到 [") + columnTitle + QStringLiteral("] 列。");
}
inline QString writeBackRefused(const QString &value, const QString &columnTitle)
{
    return QStringLiteral("计算结果 %1 不能回填到 [%2] 列。").arg(value, columnTitle);
}
inline QString writeBackOutOfRange(const QString &value, const QString &columnTitle)
{
    return QStringLiteral("计算结果 %1 超出 [%2] 列的取值范围，不能回填。").arg(value, columnTitle);
}

// Titles of the entry control by product and mode.
inline const QString TitleEntryStock = QStringLiteral("存货初始数据录入");
inline const QString TitleCheckStock = QStringLiteral("存货初始数据对账");
inline const QString TitleEntryBusiness = QStringLiteral("业务初始数据录入");
inline const QString TitleCheckBusiness = QStringLiteral("业务初始数据对账");
inline const QString ModeEntry = QStringLiteral("录入");
inline const QString ModeCheck = QStringLiteral("对账");
inline const QString SelectorStock = QStringLiteral("仓    库:");
inline const QString SelectorAccount = QStringLiteral("科    目:");

// The warehouse and account trees.
inline const QString AllStocks = QStringLiteral("全部仓库");
inline const QString AllStocksEntry = QStringLiteral("-----.全部仓库.------");
inline const QString AllAccounts = QStringLiteral("全部科目");
inline const QString AllAccountsEntry = QStringLiteral("-----.全部科目.------");
inline const QString StockPlaceSuffix = QStringLiteral("[仓位]");
inline const QString FetchTime = QStringLiteral("取数时间：");
inline const QString BuildTableTime = QStringLiteral("组织数据结构的时间：");
inline const QString BuildTreeTime = QStringLiteral("建树时间：");

} // namespace Msg
