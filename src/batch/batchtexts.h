#pragma once

#include <QString>
#include <QStringList>

// The texts of the batch dialog, each in one place. Every one reaches the user through ResString.
namespace BatchMsg {

inline const QString WindowTitle = QStringLiteral("批次/保质期明细");

// Mode captions by item and accounting.
inline const QString ModeBatchQty = QStringLiteral("批号/数量");
inline const QString ModeBatchAmount = QStringLiteral("批号/数量/金额");
inline const QString ModeBatchPlanned = QStringLiteral("批号/数量/金额/材料成本差异");
inline const QString ModeQty = QStringLiteral("数量");
inline const QString ModeAmount = QStringLiteral("数量/金额");

inline const QString TotalsLabel = QStringLiteral("合计");

// The words of a line-balance mark: which line, and per unbalanced kind the four figures that
// must agree. Kind names in the order of FigureKind.
inline const QString LineUnbalanced = QStringLiteral("第%1行不平衡：%2");
inline const QString KindUnbalanced = QStringLiteral("%1 年初 %2 ≠ 期初 %3 + 本年发出 %4 − 本年收入 %5");
inline const QStringList KindNames{QStringLiteral("数量"), QStringLiteral("辅助数量"), QStringLiteral("金额"),
                                   QStringLiteral("差异")};
inline const QString ApportionLabel = QStringLiteral("分摊总额");

// Batch number typed into a line.
inline const QString BatchEmpty = QStringLiteral("批号不能为空，请输入批号！");
inline const QString BatchExists = QStringLiteral("当前批号已存在，请重新输入！");

// Checks before save, in their order.
inline const QStringList NotApportioned{QStringLiteral("加权平均法、移动平均法的物料"),
                                        QStringLiteral("采用批次管理时，金额需要分摊来确定单价！"),
                                        QStringLiteral("系统检测到金额未分摊，请先分摊金额！")};
inline const QString BatchRequired = QStringLiteral("该物料实行批次管理，批号不能为空，请输入批号！");
inline const QString KFDateRequired = QStringLiteral("该物料实行保质期管理，生产日期不能为空，请输入生产日期！");
inline const QString KFDateAfterStockIn = QStringLiteral("该物料实行保质期管理，生产日期不能大于入库日期！");
inline const QString KFPeriodRequired = QStringLiteral("该物料实行保质期管理，保质期(天)不能为空，请输入保质期(天)！");
inline const QString StockInRequired = QStringLiteral("入库日期不能为空，请输入入库日期！");
inline const QString DuplicateBatchAndDate = QStringLiteral("批次+生产/采购日期不能重复!");
inline const QString DuplicateBatch = QStringLiteral("批次不能重复!");
inline const QString DuplicateDate = QStringLiteral("生产/采购日期不能重复!");

// Procedures named by the error box when a service call fails.
inline const QString ProcFill = QStringLiteral("FillBatManDetailByRs");
inline const QString ProcAmountScale = QStringLiteral("GetAmountScale");
inline const QString ProcCoefficients = QStringLiteral("GetUnitCoefficient");
inline const QString ProcSave = QStringLiteral("SaveBatManDetail");

} // namespace BatchMsg

// The toolbar's button keys and their labels.
namespace BatchKey {
inline const QString AddNew = QStringLiteral("AddNew");
inline const QString ShareBal = QStringLiteral("ShareBal");
inline const QString Balance = QStringLiteral("Balance");
inline const QString Delete = QStringLiteral("Delete");
inline const QString Save = QStringLiteral("Save");
inline const QString Exit = QStringLiteral("Exit");

inline const QString AddNewLabel = QStringLiteral("新增");
inline const QString ShareBalLabel = QStringLiteral("分摊");
inline const QString BalanceLabel = QStringLiteral("平衡检查");
inline const QString DeleteLabel = QStringLiteral("删除");
inline const QString SaveLabel = QStringLiteral("保存");
inline const QString ExitLabel = QStringLiteral("退出");
} // namespace BatchKey
