#pragma once

#include "dialect/sqldialect.h"

#include <QSqlDatabase>
#include <QStringList>
#include <QTemporaryDir>

// A throwaway database for one test function: a SQLite file in a temporary folder, or a schema
// of its own on the PostgreSQL server that LUMO_TEST_PG names (postgresql://user@host:port/db),
// dropped again at the end.
class TestDatabase
{
public:
    static constexpr const char *sqlite = "sqlite";
    static constexpr const char *postgresql = "postgresql";

    // The server for the PostgreSQL runs; empty when the environment names none.
    static QString postgresUri() { return qEnvironmentVariable("LUMO_TEST_PG"); }

    explicit TestDatabase(const QString &backend);
    ~TestDatabase();
    TestDatabase(const TestDatabase &) = delete;
    TestDatabase &operator=(const TestDatabase &) = delete;

    bool isOpen() const { return m_error.isEmpty(); }
    QString error() const { return m_error; }
    QSqlDatabase db() const { return QSqlDatabase::database(m_connection, false); }
    const SqlDialect &dialect() const { return SqlDialect::of(db()); }

    // Runs each statement; false (with error()) at the first that fails.
    bool exec(const QStringList &statements);
    // The rows of a query, the fields of a row joined by ", ", NULL written as NULL.
    QStringList rows(const QString &select) const;

private:
    QTemporaryDir m_dir;
    QString m_connection;
    QString m_schema;
    QString m_error;
};
