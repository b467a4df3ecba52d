#pragma once

#include <QString>
#include <QVariantList>

namespace script {

// SQL text with '?' placeholders and the values to bind to them, in order.
struct BoundSql
{
    QString sql;
    QVariantList values;

    bool isEmpty() const { return sql.isEmpty(); }
};

} // namespace script
