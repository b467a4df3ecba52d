#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QTemporaryDir>

#include <atomic>
#include <memory>

// A fresh account set for one test case: a SQLite file in a temporary folder, or, for the
// backend "postgresql", a schema of its own in the database that LUMO_TEST_PG names
// (postgresql://user@host:port/db), dropped again at the end.
class ScratchAccountSet
{
public:
    enum class Content { Nothing, Created, Demo };

    static inline const QString Sqlite = QStringLiteral("sqlite");
    static inline const QString Postgres = QStringLiteral("postgresql");
    static inline const char *PostgresVariable = "LUMO_TEST_PG";

    // Whether the backend can be tested here (PostgreSQL only with LUMO_TEST_PG set).
    static bool available(const QString &backend);

    explicit ScratchAccountSet(const QString &backend, Content content = Content::Demo);
    ~ScratchAccountSet();

    ScratchAccountSet(const ScratchAccountSet &) = delete;
    ScratchAccountSet &operator=(const ScratchAccountSet &) = delete;

    QString acctDb() const { return m_acctDb; }
    // A login to the account set as the property string carries it.
    QString propsString(int userId = 16, const QString &userName = QStringLiteral("演示员")) const;
    // This thread's connection (opening the account set, and so migrating it, on first use).
    QSqlDatabase db() const;
    // Each row of a query as one text, its fields joined by ", "; numbers in their shortest form,
    // so that both backends read alike.
    QStringList rows(const QString &sql, const QVariantList &values = {}) const;

    // Creates the tables as an older program would have: the schema at `version`.
    void createAtVersion(int version);

    // PostgreSQL: waits until the session whose backend `pid` holds (0: not known yet) waits
    // for a lock, as the second of two sessions writing at once does; false after ten seconds.
    bool awaitLockWait(const std::atomic<int> &pid) const;

private:
    QString m_backend;
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_schema;
    QString m_acctDb;
};

// Skips the data row of a backend that cannot be tested here.
#define REQUIRE_BACKEND(backend)                                                                                       \
    do {                                                                                                               \
        if (!ScratchAccountSet::available(backend))                                                                    \
            QSKIP("PostgreSQL is tested only when LUMO_TEST_PG names a server");                                       \
    } while (false)

// The data column "backend" with a row per backend; test functions fetch it with
// QFETCH(QString, backend).
void addBackends();
