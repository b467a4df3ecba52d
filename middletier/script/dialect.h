#pragma once

#include <QString>

namespace script {

// The database backends an account set can live on.
enum class Dialect { SQLite, PostgreSQL };

// The backend of a Qt SQL driver name ("QSQLITE", "QPSQL"); anything else counts as SQLite.
Dialect dialectForDriver(const QString &driverName);

// Everything that differs between the backends when the executor and the filter parser write
// SQL. The account-set tables are created with unquoted identifiers, so PostgreSQL folds them to
// lower case and the unquoted output works on both backends.
class SqlDialect
{
public:
    static const SqlDialect &of(Dialect dialect);

    Dialect kind() const { return m_kind; }

    // A table or column name as the output writes it.
    QString identifier(const QString &name) const;
    // The two-argument "value or replacement" function that stands for the library's isnull(a,b).
    QString nullReplacement() const;
    // The pattern match of the filters; it ignores letter case on both backends, as the
    // suite's own database did.
    QString likeOperator(bool negated) const;
    // An expression compared as text by LIKE, whatever its column type.
    QString asText(const QString &expression) const;

private:
    explicit SqlDialect(Dialect kind) : m_kind(kind) {}

    Dialect m_kind;
};

} // namespace script
