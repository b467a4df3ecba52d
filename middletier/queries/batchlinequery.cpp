#include "batchlinequery.h"

#include "dataerrors.h"
#include "profilevalue.h"

#include "db/recordsetbuilder.h"
#include "db/sqlrun.h"

#include "frame/automation/recordset.h"
#include "frame/automation/progids.h"

namespace {

const QString ClosedParameter = QStringLiteral("ICClosed");
const QChar KeySeparator = QLatin1Char('|');
constexpr int KeyParts = 4;

// The quantities a line keeps in its own unit; converted to the requested unit of the same
// unit group through the units' coefficients.
const QStringList Quantities{QStringLiteral("FYtdAuxBegQty"), QStringLiteral("FYtdAuxReceive"),
                             QStringLiteral("FYtdAuxSend"), QStringLiteral("FAuxBegQty")};

QString lineCondition(bool batchManaged, bool shelfLifeManaged)
{
    const QString batch = QStringLiteral("v.FBatchNo<>''");
    const QString dated = QStringLiteral("v.FKFDate<>''");
    if (batchManaged && shelfLifeManaged)
        return QStringLiteral("(%1 OR %2)").arg(batch, dated);
    return batchManaged ? batch : dated;
}

// A line kept in another unit of the requested unit's group is converted through the
// coefficients; a line of another group, or without coefficients, stays as stored.
const QString Convertible = QStringLiteral("ru.FMeasureUnitID IS NOT NULL AND lu.FUnitGroupID=ru.FUnitGroupID "
                                           "AND lu.FCoefficient<>0 AND ru.FCoefficient<>0");

QString quantity(const QString &column, bool converted)
{
    if (!converted)
        return QStringLiteral("v.") + column;
    return QStringLiteral("v.%1*(CASE WHEN %2 THEN lu.FCoefficient/ru.FCoefficient ELSE 1 END)").arg(column, Convertible);
}

bool isWholeNumber(const QString &text)
{
    if (text.isEmpty())
        return false;
    for (const QChar c : text) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
    }
    return true;
}

} // namespace

namespace BatchLineQuery {

const QStringList &lineFields()
{
    static const QStringList fields{
        QStringLiteral("FQtyDecimal"),     QStringLiteral("FLock"),             QStringLiteral("FBatchNo"),
        QStringLiteral("FBillInterID"),    QStringLiteral("FYtdAuxBegQty"),     QStringLiteral("FYtdAuxUnitBegQty"),
        QStringLiteral("FYtdBegBal"),      QStringLiteral("FYtdBegDiff"),       QStringLiteral("FYtdAuxReceive"),
        QStringLiteral("FYtdAuxUnitReceive"), QStringLiteral("FYtdDebit"),      QStringLiteral("FYtdReceiveDiff"),
        QStringLiteral("FYtdAuxSend"),     QStringLiteral("FYtdAuxUnitSend"),   QStringLiteral("FYtdCredit"),
        QStringLiteral("FYtdSendDiff"),    QStringLiteral("FAuxBegQty"),        QStringLiteral("FAuxUnitBegQty"),
        QStringLiteral("FBegBal"),         QStringLiteral("FBegDiff"),          QStringLiteral("FUnitID"),
        QStringLiteral("FSecUnitID"),      QStringLiteral("FStockInDate"),      QStringLiteral("FKFDate"),
        QStringLiteral("FKFPeriod"),       QStringLiteral("FSNListID")};
    return fields;
}

Recordset *lines(const QSqlDatabase &db, const LineRequest &request)
{
    if (!request.batchManaged && !request.shelfLifeManaged)
        return new Recordset(lineFields());
    const bool converted = request.unitId != 0;
    QStringList columns;
    // The lines of a closed initialisation can no longer be changed.
    columns << QStringLiteral("i.FQtyDecimal") << QString::number(profileValue(db, ClosedParameter).toInt() != 0 ? 1 : 0)
            << QStringLiteral("v.FBatchNo") << QStringLiteral("v.FBillInterID");
    for (const QString &column : lineFields().mid(4, 16))
        columns.append(Quantities.contains(column) ? quantity(column, converted) : QStringLiteral("v.") + column);
    columns << (converted ? QStringLiteral("CASE WHEN %1 THEN ru.FMeasureUnitID ELSE v.FUnitID END").arg(Convertible)
                          : QStringLiteral("v.FUnitID"))
            << QStringLiteral("v.FSecUnitID") << QStringLiteral("v.FStockInDate") << QStringLiteral("v.FKFDate")
            << QStringLiteral("v.FKFPeriod") << QStringLiteral("v.FSNListID");

    QVariantList values;
    QString units;
    if (converted) {
        units = QStringLiteral(" LEFT JOIN t_MeasureUnit lu ON lu.FMeasureUnitID=v.FUnitID "
                               "LEFT JOIN t_MeasureUnit ru ON ru.FMeasureUnitID=?");
        values.append(request.unitId);
    }
    QString rows = QStringLiteral("(v.FStockID=? AND v.FSPID=? AND v.FPeriod=? AND v.FItemID=? AND v.FAuxPropID=?)");
    values << request.stockId << request.spId << request.period << request.itemId << request.auxPropId;
    if (!request.fieldCompose.isEmpty()) {
        rows = QStringLiteral("(%1 OR v.FFieldCompose=?)").arg(rows);
        values.append(request.fieldCompose);
    }
    const QString sql = QStringLiteral("SELECT %1 FROM ICInvInitial v JOIN t_ICItem i ON i.FItemID=v.FItemID%2 "
                                       "WHERE %3 AND %4 ORDER BY v.FBillInterID, v.FEntryID")
                            .arg(columns.join(QStringLiteral(", ")), units, rows,
                                 lineCondition(request.batchManaged, request.shelfLifeManaged));
    QSqlQuery query = SqlRun::exec(db, sql, values);
    return recordsetFromQuery(query, lineFields());
}

PlaceItemKey PlaceItemKey::parse(const QString &text)
{
    const QStringList parts = text.split(KeySeparator);
    int numbers[KeyParts] = {};
    bool valid = parts.size() == KeyParts;
    for (qsizetype p = 0; valid && p < KeyParts; ++p) {
        const QString part = parts.at(p).trimmed();
        valid = isWholeNumber(part);
        if (valid)
            numbers[p] = part.toInt(&valid);
    }
    if (!valid)
        throw LumoError(DataError::BadPlaceItemKey, DataError::BadPlaceItemKeyText.arg(text),
                        QString(ProgId::MICInitialData) + QStringLiteral(".GetInitData"));
    return {numbers[0], numbers[1], numbers[2], numbers[3]};
}

const QStringList &itemRowFields()
{
    static const QStringList fields{QStringLiteral("FItemID"), QStringLiteral("FAuxPropID"),
                                    QStringLiteral("FFieldCompose")};
    return fields;
}

Recordset *itemRows(const QSqlDatabase &db, const PlaceItemKey &key, std::optional<int> auxPropId)
{
    QVariantList values{key.stockId, key.spId, key.period, key.itemId};
    QString property;
    if (auxPropId) {
        property = QStringLiteral(" AND v.FAuxPropID=?");
        values.append(*auxPropId);
    }
    QSqlQuery query = SqlRun::exec(
        db,
        QStringLiteral("SELECT v.FItemID, v.FAuxPropID, max(v.FFieldCompose) FROM ICInvInitial v "
                       "WHERE v.FStockID=? AND v.FSPID=? AND v.FPeriod=? AND v.FItemID=?%1 "
                       "GROUP BY v.FItemID, v.FAuxPropID ORDER BY v.FAuxPropID")
            .arg(property),
        values);
    return recordsetFromQuery(query, itemRowFields());
}

} // namespace BatchLineQuery
