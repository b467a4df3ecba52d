#include "benchaccountsets.h"

#include "db/accountset.h"
#include "db/sqlrun.h"
#include "mterrors.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

namespace {

const QStringList SqliteCompanions{QStringLiteral("-wal"), QStringLiteral("-shm")};

QString postgresServer()
{
    return qEnvironmentVariable(BenchAccountSet::PostgresVariable);
}

QString postgresLocation(const QString &schema)
{
    return postgresServer() + QStringLiteral("?schema=") + schema;
}

} // namespace

BenchAccountSet::BenchAccountSet(const QString &backend, const QString &acctDb, bool dropAtEnd)
    : m_backend(backend)
    , m_acctDb(acctDb)
    , m_dropAtEnd(dropAtEnd)
{
}

std::unique_ptr<BenchAccountSet> BenchAccountSet::scratch(const QString &backend, const DemoCompany::Options &options,
                                                          const Extra &extra)
{
    static int counter = 0;
    std::unique_ptr<BenchAccountSet> set;
    if (backend == Postgres) {
        const QString schema =
            QStringLiteral("lumo_bench_%1_%2").arg(QCoreApplication::applicationPid()).arg(++counter);
        set.reset(new BenchAccountSet(backend, postgresLocation(schema), true));
    } else {
        auto dir = std::make_unique<QTemporaryDir>();
        set.reset(new BenchAccountSet(backend, dir->filePath(QStringLiteral("bench.db")), true));
        set->m_dir = std::move(dir);
    }
    set->make(options, extra);
    return set;
}

std::unique_ptr<BenchAccountSet> BenchAccountSet::kept(const QString &backend, const QString &cacheDir,
                                                       const QString &name, const DemoCompany::Options &options,
                                                       const Check &complete)
{
    QDir().mkpath(cacheDir);
    const QString acctDb = backend == Postgres ? postgresLocation(QStringLiteral("lumo_bench_") + name)
                                               : QDir(cacheDir).filePath(name + QStringLiteral(".db"));
    std::unique_ptr<BenchAccountSet> set(new BenchAccountSet(backend, acctDb, false));
    try {
        if (complete(AccountSet::open(acctDb).database()))
            return set;
    } catch (const LumoError &) {
        // Not there, half made or unreadable: made again below.
    }
    set->dropContents();
    set->make(options, {});
    return set;
}

BenchAccountSet::~BenchAccountSet()
{
    if (m_dropAtEnd)
        dropContents();
    else
        AccountSet::close(m_acctDb);
}

void BenchAccountSet::make(const DemoCompany::Options &options, const Extra &extra)
{
    QElapsedTimer timer;
    timer.start();
    const AccountSet set = AccountSet::create(m_acctDb);
    DemoCompany(set.database(), set.dialect()).seed(options);
    if (extra)
        extra(set.database());
    m_madeIn = timer.elapsed() / 1000.0;
}

void BenchAccountSet::dropContents()
{
    if (m_backend == Postgres) {
        try {
            const QString schema = m_acctDb.section(QStringLiteral("?schema="), 1);
            SqlRun::exec(AccountSet::open(m_acctDb).database(), QStringLiteral("DROP SCHEMA IF EXISTS %1 CASCADE").arg(schema));
        } catch (const LumoError &) {
            // No schema was made.
        }
        AccountSet::close(m_acctDb);
        return;
    }
    AccountSet::close(m_acctDb);
    QFile::remove(m_acctDb);
    for (const QString &suffix : SqliteCompanions)
        QFile::remove(m_acctDb + suffix);
}

QString BenchAccountSet::propsString() const
{
    return QStringLiteral("UserName=bench;UserID=16;AcctDB={%1};").arg(m_acctDb);
}

QSqlDatabase BenchAccountSet::db() const
{
    return AccountSet::open(m_acctDb).database();
}
