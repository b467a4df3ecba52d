#include "stockquery.h"

#include "db/sqlrun.h"

#include "frame/automation/recordset.h"

#include <QHash>
#include <QSet>

namespace {

struct Warehouse
{
    int id = 0;
    int parent = 0;
    QString number;
    QString shortNumber;
    QString name;
    int type = 0;
    int isStockMgr = 0;
};

struct Place
{
    int id = 0;
    int stock = 0;
    QString number;
    QString shortNumber;
    QString name;
};

QString typeCondition(const QList<int> &types, QVariantList &values)
{
    if (types.isEmpty())
        return {};
    QStringList marks;
    for (const int type : types) {
        marks.append(QStringLiteral("?"));
        values.append(type);
    }
    return QStringLiteral(" AND s.FTypeID IN (%1)").arg(marks.join(QLatin1Char(',')));
}

QList<Warehouse> loadWarehouses(const QSqlDatabase &db, const QList<int> &types)
{
    const script::BoundSql sql = StockQuery::warehouseStatement(types);
    QSqlQuery query = SqlRun::exec(db, sql.sql, sql.values);
    QList<Warehouse> warehouses;
    while (query.next()) {
        warehouses.append({query.value(0).toInt(), query.value(1).toInt(), query.value(2).toString(),
                           query.value(3).toString(), query.value(4).toString(), query.value(5).toInt(),
                           query.value(6).toInt()});
    }
    return warehouses;
}

QList<Place> loadPlaces(const QSqlDatabase &db, const QList<int> &types)
{
    const script::BoundSql sql = StockQuery::placeStatement(types);
    QSqlQuery query = SqlRun::exec(db, sql.sql, sql.values);
    QList<Place> places;
    while (query.next()) {
        places.append({query.value(0).toInt(), query.value(1).toInt(), query.value(2).toString(),
                       query.value(3).toString(), query.value(4).toString()});
    }
    return places;
}

// Writes the warehouses depth first, each followed by its places and then its children.
class TreeWriter
{
public:
    TreeWriter(const QList<Warehouse> &warehouses, const QList<Place> &places, Recordset &out)
        : m_warehouses(warehouses)
        , m_out(out)
    {
        QSet<int> ids;
        for (const Warehouse &w : warehouses)
            ids.insert(w.id);
        for (qsizetype i = 0; i < warehouses.size(); ++i) {
            const Warehouse &w = warehouses.at(i);
            if (w.parent != 0 && w.parent != w.id && ids.contains(w.parent)) {
                m_children[w.parent].append(i);
                m_hasParent.insert(i);
            }
        }
        for (const Place &p : places)
            m_places[p.stock].append(p);
    }

    void write()
    {
        for (qsizetype i = 0; i < m_warehouses.size(); ++i) {
            if (!m_hasParent.contains(i))
                writeWarehouse(i, 0);
        }
        // Warehouses in a parent loop are reached from no top warehouse: put them at the top.
        for (qsizetype i = 0; i < m_warehouses.size(); ++i) {
            if (!m_written.contains(i))
                writeWarehouse(i, 0);
        }
    }

private:
    void writeWarehouse(qsizetype index, int parent)
    {
        if (m_written.contains(index))
            return;
        m_written.insert(index);
        const Warehouse &w = m_warehouses.at(index);
        m_out.appendRow({w.id, parent, 0, w.name, w.number, w.shortNumber, w.isStockMgr, w.type});
        for (const Place &p : m_places.value(w.id))
            m_out.appendRow({w.id, w.id, p.id, p.name, p.number, p.shortNumber, 0, w.type});
        for (const qsizetype child : m_children.value(w.id))
            writeWarehouse(child, w.id);
    }

    const QList<Warehouse> &m_warehouses;
    Recordset &m_out;
    QHash<int, QList<qsizetype>> m_children;
    QHash<int, QList<Place>> m_places;
    QSet<qsizetype> m_hasParent;
    QSet<qsizetype> m_written;
};

} // namespace

namespace StockQuery {

script::BoundSql warehouseStatement(const QList<int> &types)
{
    script::BoundSql sql;
    sql.sql = QStringLiteral("SELECT s.FItemID, s.FParentID, s.FNumber, s.FShortNumber, s.FName, s.FTypeID, "
                             "CASE WHEN s.FIsStockMgr<>0 OR EXISTS (SELECT 1 FROM t_StockPlace p "
                             "WHERE p.FStockID=s.FItemID AND p.FDeleted=0) THEN 1 ELSE 0 END "
                             "FROM t_Stock s WHERE s.FDeleted=0%1 ORDER BY s.FNumber")
                  .arg(typeCondition(types, sql.values));
    return sql;
}

script::BoundSql placeStatement(const QList<int> &types)
{
    script::BoundSql sql;
    sql.sql = QStringLiteral("SELECT p.FSPID, p.FStockID, p.FNumber, p.FShortNumber, p.FName "
                             "FROM t_StockPlace p JOIN t_Stock s ON s.FItemID=p.FStockID "
                             "WHERE p.FDeleted=0 AND s.FDeleted=0%1 ORDER BY p.FNumber")
                  .arg(typeCondition(types, sql.values));
    return sql;
}

Recordset *fetchStocks(const QSqlDatabase &db, const QList<int> &types)
{
    const QList<Warehouse> warehouses = loadWarehouses(db, types);
    const QList<Place> places = loadPlaces(db, types);
    auto rs = std::make_unique<Recordset>(Fields);
    rs->reserve(int(warehouses.size() + places.size()));
    TreeWriter(warehouses, places, *rs).write();
    rs->MoveFirst();
    return rs.release();
}

} // namespace StockQuery
