#include "placetotals.h"

#include "dialect/sqldialect.h"

#include <cmath>

namespace {

const QString Rows = QStringLiteral("ICInvInitial");
const QString TriggerName = QStringLiteral("tr_ICInvInitial_Totals");

QString placeOf(const QString &record)
{
    return QStringLiteral("FStockID=%1.FStockID AND FSPID=%1.FSPID AND FPeriod=%1.FPeriod").arg(record);
}

QString groupOf(const QString &record)
{
    return QStringLiteral("x.FStockID=%1.FStockID AND x.FSPID=%1.FSPID AND x.FPeriod=%1.FPeriod "
                          "AND x.FItemID=%1.FItemID AND x.FAuxPropID=%1.FAuxPropID")
        .arg(record);
}

QString figureChanges(const QString &record, QChar sign)
{
    QStringList changes;
    for (const QString &figure : PlaceTotals::figures())
        changes.append(QStringLiteral("%1=%1%2%3.%1").arg(figure, sign, record));
    return changes.join(QLatin1Char(','));
}

QString rowsOfGroup(const QString &record)
{
    return QStringLiteral("(SELECT count(*) FROM (SELECT 1 FROM %1 x WHERE %2 LIMIT 2) n)").arg(Rows, groupOf(record));
}

const QString SameGroup = QStringLiteral("OLD.FStockID=NEW.FStockID AND OLD.FSPID=NEW.FSPID AND OLD.FPeriod=NEW.FPeriod "
                                         "AND OLD.FItemID=NEW.FItemID AND OLD.FAuxPropID=NEW.FAuxPropID");

// The triggers run before each row is written, when the rows written before it by the same
// statement are already there: on PostgreSQL an after-row trigger would only run once the whole
// statement is done and could not tell the first row of an item row from the last one.

// Whether a row is the first or the last of its group is counted only once the place's totals
// row is locked: two sessions that counted at once, each without the other's uncommitted row,
// would both take a group as kept when they delete its last two rows, or both as new when they
// insert its first two.

// A row leaves its place: the place loses the item row when the row is the group's last one.
QStringList removed(const SqlDialect &dialect, bool update)
{
    QString lastRow = rowsOfGroup(QStringLiteral("OLD")) + QStringLiteral("=1");
    if (update)
        lastRow = QStringLiteral("NOT (%1) AND %2").arg(SameGroup, lastRow);
    return dialect.triggerLock(PlaceTotals::Table, placeOf(QStringLiteral("OLD")))
           + QStringList{QStringLiteral("UPDATE %1 SET %2=%2-CASE WHEN %3 THEN 1 ELSE 0 END, %4 WHERE %5")
                             .arg(PlaceTotals::Table, PlaceTotals::GroupCount, lastRow,
                                  figureChanges(QStringLiteral("OLD"), QLatin1Char('-')),
                                  placeOf(QStringLiteral("OLD")))};
}

// A row arrives at its place: a new item row when its group has no row yet.
QStringList added(const SqlDialect &dialect, bool update)
{
    QString firstRow = rowsOfGroup(QStringLiteral("NEW")) + QStringLiteral("=0");
    if (update)
        firstRow = QStringLiteral("NOT (%1) AND %2").arg(SameGroup, firstRow);
    return QStringList{QStringLiteral("INSERT INTO %1 (FStockID,FSPID,FPeriod) VALUES (NEW.FStockID,NEW.FSPID,"
                                      "NEW.FPeriod) ON CONFLICT DO NOTHING")
                           .arg(PlaceTotals::Table)}
           + dialect.triggerLock(PlaceTotals::Table, placeOf(QStringLiteral("NEW")))
           + QStringList{QStringLiteral("UPDATE %1 SET %2=%2+CASE WHEN %3 THEN 1 ELSE 0 END, %4 WHERE %5")
                             .arg(PlaceTotals::Table, PlaceTotals::GroupCount, firstRow,
                                  figureChanges(QStringLiteral("NEW"), QLatin1Char('+')),
                                  placeOf(QStringLiteral("NEW")))};
}

SqlDialect::RowTrigger rowTrigger(const SqlDialect &dialect)
{
    SqlDialect::RowTrigger trigger;
    trigger.name = TriggerName;
    trigger.table = Rows;
    trigger.onInsert = added(dialect, false);
    trigger.onUpdate = removed(dialect, true) + added(dialect, true);
    trigger.onDelete = removed(dialect, false);
    return trigger;
}

} // namespace

const QStringList &PlaceTotals::figures()
{
    static const QStringList names{
        QStringLiteral("FYtdAuxBegQty"), QStringLiteral("FYtdBegBal"),      QStringLiteral("FYtdBegDiff"),
        QStringLiteral("FYtdAuxReceive"), QStringLiteral("FYtdDebit"),      QStringLiteral("FYtdReceiveDiff"),
        QStringLiteral("FYtdAuxSend"),   QStringLiteral("FYtdCredit"),      QStringLiteral("FYtdSendDiff"),
        QStringLiteral("FAuxBegQty"),    QStringLiteral("FBegBal"),         QStringLiteral("FBegDiff")};
    return names;
}

QStringList PlaceTotals::triggerStatements(const SqlDialect &dialect)
{
    return dialect.beforeRowTrigger(rowTrigger(dialect));
}

QStringList PlaceTotals::dropTriggerStatements(const SqlDialect &dialect)
{
    return dialect.dropRowTrigger(rowTrigger(dialect));
}

QString PlaceTotals::backfill()
{
    QStringList groupSums;
    QStringList placeSums;
    for (const QString &figure : figures()) {
        groupSums.append(QStringLiteral("sum(%1) AS %1").arg(figure));
        placeSums.append(QStringLiteral("sum(%1)").arg(figure));
    }
    return QStringLiteral("INSERT INTO %1 (FStockID,FSPID,FPeriod,%2,%3) "
                          "SELECT FStockID,FSPID,FPeriod,count(*),%4 FROM (SELECT FStockID,FSPID,FPeriod,%5 FROM %6 "
                          "GROUP BY FStockID,FSPID,FPeriod,FItemID,FAuxPropID) g GROUP BY FStockID,FSPID,FPeriod")
        .arg(Table, GroupCount, figures().join(QLatin1Char(',')), placeSums.join(QLatin1Char(',')),
             groupSums.join(QLatin1Char(',')), Rows);
}

QString PlaceTotals::select()
{
    return QStringLiteral("SELECT %1,%2 FROM %3 WHERE FStockID=? AND FSPID=? AND FPeriod=?")
        .arg(GroupCount, figures().join(QLatin1Char(',')), Table);
}

double PlaceTotals::rounded(double sum)
{
    constexpr double scale = 1e10;
    return std::round(sum * scale) / scale;
}
