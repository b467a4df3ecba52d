#include "schemaddl.h"

#include "dialect/sqldialect.h"
#include "placetotals.h"

QString SchemaDdl::columnDefinition(const ColumnDecl &column) const
{
    if (column.autoKey)
        return column.name + QLatin1Char(' ') + m_dialect.autoIncrementKey();
    QString definition = column.name + QLatin1Char(' ') + m_dialect.columnType(column.type, column.size);
    if (column.notNull)
        definition += QStringLiteral(" NOT NULL");
    if (!column.defaultValue.isEmpty())
        definition += QStringLiteral(" DEFAULT ") + column.defaultValue;
    return definition;
}

QString SchemaDdl::createIndex(const TableDecl &table, const IndexDecl &index) const
{
    return QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)")
        .arg(index.unique ? QStringLiteral("UNIQUE ") : QString(), index.name, table.name,
             index.columns.join(QLatin1Char(',')));
}

QStringList SchemaDdl::createTable(const TableDecl &table, int version) const
{
    QStringList parts;
    for (const ColumnDecl &column : table.columns) {
        if (column.since <= version)
            parts.append(columnDefinition(column));
    }
    if (!table.primaryKey.isEmpty())
        parts.append(QStringLiteral("PRIMARY KEY (%1)").arg(table.primaryKey.join(QLatin1Char(','))));
    for (const ForeignKeyDecl &fk : table.foreignKeys)
        parts.append(QStringLiteral("FOREIGN KEY (%1) REFERENCES %2 (%3)").arg(fk.column, fk.refTable, fk.refColumn));

    QStringList statements{QStringLiteral("CREATE TABLE %1 (%2)").arg(table.name, parts.join(QStringLiteral(", ")))};
    for (const IndexDecl &index : table.indexes) {
        if (index.since <= version)
            statements.append(createIndex(table, index));
    }
    return statements;
}

QStringList SchemaDdl::create(int version) const
{
    QStringList statements;
    for (const TableDecl &table : Schema::tables()) {
        if (table.since <= version)
            statements += createTable(table, version);
    }
    if (version >= PlaceTotals::Since)
        statements += PlaceTotals::triggerStatements(m_dialect);
    return statements;
}

QStringList SchemaDdl::migrate(int from, int to) const
{
    QStringList statements;
    for (const TableDecl &table : Schema::tables()) {
        if (table.since > to)
            continue;
        if (table.since > from) {
            statements += createTable(table, to);
            continue;
        }
        for (const ColumnDecl &column : table.columns) {
            if (column.since > from && column.since <= to)
                statements.append(
                    QStringLiteral("ALTER TABLE %1 ADD COLUMN %2").arg(table.name, columnDefinition(column)));
        }
        for (const IndexDecl &index : table.indexes) {
            if (index.since > from && index.since <= to)
                statements.append(createIndex(table, index));
        }
    }
    if (from < PlaceTotals::Since && to >= PlaceTotals::Since) {
        statements += PlaceTotals::triggerStatements(m_dialect);
        statements.append(PlaceTotals::backfill());
    } else if (from < PlaceTotals::LockingSince && to >= PlaceTotals::LockingSince) {
        statements += PlaceTotals::dropTriggerStatements(m_dialect);
        statements += PlaceTotals::triggerStatements(m_dialect);
    }
    return statements;
}
