#include "dialect.h"

namespace script {

Dialect dialectForDriver(const QString &driverName)
{
    return driverName.compare(QLatin1String("QPSQL"), Qt::CaseInsensitive) == 0 ? Dialect::PostgreSQL
                                                                              : Dialect::SQLite;
}

const SqlDialect &SqlDialect::of(Dialect dialect)
{
    static const SqlDialect sqlite(Dialect::SQLite);
    static const SqlDialect postgres(Dialect::PostgreSQL);
    return dialect == Dialect::PostgreSQL ? postgres : sqlite;
}

QString SqlDialect::identifier(const QString &name) const
{
    // PostgreSQL would fold the unquoted name anyway; writing it folded keeps the text honest.
    return m_kind == Dialect::PostgreSQL ? name.toLower() : name;
}

QString SqlDialect::nullReplacement() const
{
    return m_kind == Dialect::PostgreSQL ? QStringLiteral("coalesce") : QStringLiteral("ifnull");
}

QString SqlDialect::likeOperator(bool negated) const
{
    // SQLite's LIKE already ignores the case of ASCII letters; PostgreSQL needs ILIKE for that.
    if (m_kind == Dialect::PostgreSQL)
        return negated ? QStringLiteral("NOT ILIKE") : QStringLiteral("ILIKE");
    return negated ? QStringLiteral("NOT LIKE") : QStringLiteral("LIKE");
}

QString SqlDialect::asText(const QString &expression) const
{
    // PostgreSQL has no LIKE on numbers; SQLite compares any value as text.
    if (m_kind == Dialect::PostgreSQL)
        return QStringLiteral("CAST(%1 AS TEXT)").arg(expression);
    return expression;
}

} // namespace script
