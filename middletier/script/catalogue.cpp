#include "catalogue.h"

namespace script::catalogue {

const TableDef *findTable(const QString &name)
{
    for (const TableDef &table : tables) {
        if (name.compare(QLatin1String(table.name), Qt::CaseInsensitive) == 0)
            return &table;
    }
    return nullptr;
}

const ColumnDef *findColumn(const TableDef &table, const QString &name)
{
    for (const ColumnDef &column : table.columns) {
        if (name.compare(QLatin1String(column.name), Qt::CaseInsensitive) == 0)
            return &column;
    }
    return nullptr;
}

} // namespace script::catalogue
