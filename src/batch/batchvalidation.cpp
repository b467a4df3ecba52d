#include "batch/batchvalidation.h"

#include "sheet/iteminfo.h"
#include "batch/batchline.h"
#include "batch/batchtexts.h"

#include "frame/logincontext.h"
#include "frame/messages.h"

#include "grid/gridtypes.h"

namespace {

// Dates are compared as the text "yyyy-mm-dd"; an empty date is the empty text.
QString dateText(const QDate &date)
{
    return date.isValid() ? date.toString(QString::fromLatin1(Grid::DateFormat)) : QString();
}

BatchRefusal refusal(const BatchLine &line, int col, const QString &message)
{
    return {line.row, col, ResString(message)};
}

std::optional<BatchRefusal> checkLine(const BatchLine &line, const ItemInfo &item, const BatchRules &rules)
{
    if (item.batchManaged && line.batchNo.trimmed().isEmpty())
        return refusal(line, BatCol::BatchNo, BatchMsg::BatchRequired);

    int emptyGroups = 0;
    for (const BatchGroup &group : BatchGroups) {
        const BalanceVerdict verdict = BalanceCheck::check(line.figure(group.quantity), line.figure(group.amount),
                                                           line.figure(group.difference), emptyGroups, rules.allocate,
                                                           item.track, rules.balance);
        if (!verdict.valid)
            return BatchRefusal{line.row, group.quantity, verdict.message()};
    }

    if (item.shelfLifeManaged) {
        if (!line.kfDate.isValid())
            return refusal(line, BatCol::KFDate, BatchMsg::KFDateRequired);
        if (dateText(line.kfDate) > dateText(line.stockInDate))
            return refusal(line, BatCol::KFDate, BatchMsg::KFDateAfterStockIn);
        if (!line.kfPeriod)
            return refusal(line, BatCol::KFPeriod, BatchMsg::KFPeriodRequired);
    }
    if (!line.stockInDate.isValid())
        return refusal(line, BatCol::StockInDate, BatchMsg::StockInRequired);
    return std::nullopt;
}

} // namespace

namespace BatchValidation {

BalanceVerdict checkGroup(const BatchLine &line, const BatchGroup &group, const ItemInfo &item,
                          const BatchRules &rules)
{
    // One group alone never makes a row of four empty groups.
    int emptyGroups = 0;
    return BalanceCheck::check(line.figure(group.quantity), line.figure(group.amount), line.figure(group.difference),
                               emptyGroups, rules.allocate, item.track, rules.balance);
}

std::optional<QString> checkTypedBatch(const ItemInfo &item, const QString &typed, const QString &loaded,
                                       const QStringList &otherLines)
{
    const QString batch = typed.trimmed();
    if (batch.isEmpty())
        return ResString(BatchMsg::BatchEmpty);
    if (batch == loaded.trimmed() || !item.refusesRepeatedBatchOnEntry())
        return std::nullopt;
    for (const QString &other : otherLines) {
        if (other.trimmed() == batch)
            return ResString(BatchMsg::BatchExists);
    }
    return std::nullopt;
}

std::optional<BatchRefusal> checkBeforeSave(const ItemInfo &item, const BatchRules &rules,
                                            const ApportionState &apportion, const QList<BatchLine> &lines)
{
    if (apportion.offered && !apportion.apportioned && apportion.changed) {
        QStringList texts;
        for (const QString &text : BatchMsg::NotApportioned)
            texts.append(ResString(text));
        return BatchRefusal{-1, -1, texts.join(Msg::LineBreak)};
    }
    for (const BatchLine &line : lines) {
        if (!line.changed)
            continue;
        if (std::optional<BatchRefusal> refused = checkLine(line, item, rules))
            return refused;
    }
    return findRepeat(item, lines);
}

std::optional<BatchRefusal> findRepeat(const ItemInfo &item, const QList<BatchLine> &lines)
{
    if (!item.batchManaged && !item.shelfLifeManaged)
        return std::nullopt;
    const auto sameKey = [&item](const BatchLine &a, const BatchLine &b) {
        const bool sameBatch = a.batchNo.trimmed() == b.batchNo.trimmed();
        const bool sameDate = dateText(a.kfDate) == dateText(b.kfDate);
        if (item.batchManaged && item.shelfLifeManaged)
            return sameBatch && sameDate;
        return item.batchManaged ? sameBatch : sameDate;
    };
    const QString &message = item.batchManaged && item.shelfLifeManaged ? BatchMsg::DuplicateBatchAndDate
                             : item.batchManaged                         ? BatchMsg::DuplicateBatch
                                                                         : BatchMsg::DuplicateDate;
    const int col = item.batchManaged ? BatCol::BatchNo : BatCol::KFDate;
    for (qsizetype j = 1; j < lines.size(); ++j) {
        for (qsizetype i = 0; i < j; ++i) {
            if (sameKey(lines[i], lines[j]))
                return refusal(lines[j], col, message);
        }
    }
    return std::nullopt;
}

} // namespace BatchValidation
