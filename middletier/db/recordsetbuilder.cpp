#include "recordsetbuilder.h"

#include "frame/automation/recordset.h"

#include <QSqlQuery>
#include <QSqlRecord>

Recordset *recordsetFromQuery(QSqlQuery &query, const QStringList &fieldNames)
{
    const QSqlRecord record = query.record();
    const int count = record.count();
    QStringList fields;
    fields.reserve(count);
    for (int i = 0; i < count; ++i)
        fields.append(i < fieldNames.size() ? fieldNames.at(i) : record.fieldName(i));

    auto rs = std::make_unique<Recordset>(fields);
    while (query.next()) {
        QVector<QVariant> row;
        row.reserve(count);
        for (int i = 0; i < count; ++i) {
            // A NULL comes back as a typed null; the recordset keeps nulls as null variants.
            const QVariant value = query.value(i);
            row.append(value.isNull() ? QVariant() : value);
        }
        rs->appendRow(std::move(row));
    }
    rs->MoveFirst();
    return rs.release();
}
