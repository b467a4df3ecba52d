#pragma once

#include "demo/democompany.h"

#include <QSqlDatabase>
#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <memory>

// One account set a measurement runs on, on SQLite or on the PostgreSQL server LUMO_TEST_PG
// names (a schema of its own). A scratch set lives as long as the object; a kept set stays in
// the cache folder (a SQLite file, or a schema that is not dropped) and is made again only when
// it does not hold what it should, since the large one takes a while to make.
class BenchAccountSet
{
public:
    static inline const QString Sqlite = QStringLiteral("SQLite");
    static inline const QString Postgres = QStringLiteral("PostgreSQL");
    static inline const char *PostgresVariable = "LUMO_TEST_PG";

    // Tells whether a kept set is complete (on its open connection).
    using Check = std::function<bool(const QSqlDatabase &)>;
    // Adds to the demo company what the measurement needs (inside no transaction).
    using Extra = std::function<void(const QSqlDatabase &)>;

    static std::unique_ptr<BenchAccountSet> scratch(const QString &backend, const DemoCompany::Options &options,
                                                    const Extra &extra = {});
    static std::unique_ptr<BenchAccountSet> kept(const QString &backend, const QString &cacheDir, const QString &name,
                                                 const DemoCompany::Options &options, const Check &complete);
    ~BenchAccountSet();

    BenchAccountSet(const BenchAccountSet &) = delete;
    BenchAccountSet &operator=(const BenchAccountSet &) = delete;

    QString acctDb() const { return m_acctDb; }
    QString propsString() const;
    QSqlDatabase db() const;
    // Seconds it took to make the set in this run; below 0 when an earlier run made it.
    double madeInSeconds() const { return m_madeIn; }

private:
    BenchAccountSet(const QString &backend, const QString &acctDb, bool dropAtEnd);

    void make(const DemoCompany::Options &options, const Extra &extra);
    void dropContents();

    QString m_backend;
    QString m_acctDb;
    bool m_dropAtEnd;
    std::unique_ptr<QTemporaryDir> m_dir;
    double m_madeIn = -1;
};
