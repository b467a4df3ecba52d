#include "demovolume.h"

#include "db/bulkinserter.h"
#include "db/sqlrun.h"
#include "dialect/sqldialect.h"
#include "openingline.h"

#include <QDate>

namespace {

constexpr int Tracks[] = {76, 77, 78, 79, 80, 81, 20308};
constexpr int PlannedCost = 81;
constexpr int PieceUnit = 1;
constexpr int QuantityGroup = 1;
constexpr int RawMaterialAccount = 1;
constexpr int SemiFinishedWarehouse = 2;
constexpr int OrdinaryWarehouseType = 500;

int nextId(const QSqlDatabase &db, const QString &table, const QString &column)
{
    return SqlRun::scalar(db, QStringLiteral("SELECT max(%1) FROM %2").arg(column, table)).toInt() + 1;
}

} // namespace

DemoVolume::DemoVolume(const QSqlDatabase &db, const SqlDialect &dialect)
    : m_db(db)
    , m_dialect(dialect)
{
}

void DemoVolume::seed(int items, int warehouses, int period, int year)
{
    const int firstStock = nextId(m_db, QStringLiteral("t_Stock"), QStringLiteral("FItemID"));
    QList<int> stocks;
    {
        BulkInserter insert(m_db, m_dialect, QStringLiteral("t_Stock"),
                            {QStringLiteral("FItemID"), QStringLiteral("FNumber"), QStringLiteral("FShortNumber"),
                             QStringLiteral("FName"), QStringLiteral("FTypeID")});
        for (int w = 1; w <= warehouses; ++w) {
            const QString number = QStringLiteral("%1").arg(w, 3, 10, QLatin1Char('0'));
            insert.add({firstStock + w - 1, QStringLiteral("90.") + number, number, QStringLiteral("批量仓") + number,
                        OrdinaryWarehouseType});
            stocks.append(firstStock + w - 1);
        }
        insert.flush();
    }
    if (stocks.isEmpty())
        stocks.append(SemiFinishedWarehouse);

    const int firstItem = nextId(m_db, QStringLiteral("t_ICItem"), QStringLiteral("FItemID"));
    {
        BulkInserter insert(m_db, m_dialect, QStringLiteral("t_ICItem"),
                            {QStringLiteral("FItemID"), QStringLiteral("FNumber"), QStringLiteral("FShortNumber"),
                             QStringLiteral("FName"), QStringLiteral("FModel"), QStringLiteral("FUnitGroupID"),
                             QStringLiteral("FUnitID"), QStringLiteral("FStoreUnitID"), QStringLiteral("FTrack"),
                             QStringLiteral("FPlanPrice"), QStringLiteral("FPriceDecimal"), QStringLiteral("FAcctID")});
        for (int i = 0; i < items; ++i) {
            const QString number = QStringLiteral("%1").arg(i + 1, 6, 10, QLatin1Char('0'));
            const int track = Tracks[i % std::size(Tracks)];
            insert.add({firstItem + i, QStringLiteral("99.") + number, number, QStringLiteral("批量物料") + number,
                        QStringLiteral("规格%1").arg(i % 50 + 1), QuantityGroup, PieceUnit, PieceUnit, track,
                        track == PlannedCost ? 10.0 : 0.0, 4, RawMaterialAccount});
        }
        insert.flush();
    }

    const QString openingDay = QDate(year, period, 1).toString(Qt::ISODate);
    BulkInserter insert(m_db, m_dialect, QStringLiteral("ICInvInitial"), OpeningLine::columns());
    for (const int stock : std::as_const(stocks)) {
        for (int i = 0; i < items; ++i) {
            OpeningLine line;
            line.stockId = stock;
            line.itemId = firstItem + i;
            line.unitId = PieceUnit;
            line.stockInDate = openingDay;
            line.openingQty = i % 97 + 1;
            line.price = Tracks[i % std::size(Tracks)] == PlannedCost ? 10.0 : 5.0 + i % 13;
            line.receivedQty = i % 7 * 10;
            line.issuedQty = i % 5 * 10;
            insert.add(line.values(period));
        }
    }
    insert.flush();
    SqlRun::execAll(m_db, m_dialect.resetAutoIncrement(QStringLiteral("t_Stock"), QStringLiteral("FItemID")));
    SqlRun::execAll(m_db, m_dialect.resetAutoIncrement(QStringLiteral("t_ICItem"), QStringLiteral("FItemID")));
}
