#include "scratchaccountset.h"

#include "db/accountset.h"
#include "db/schemamanager.h"
#include "db/sqlrun.h"
#include "demo/democompany.h"
#include "dialect/sqldialect.h"

#include "frame/automation/lumoerror.h"
#include "frame/automation/propertystring.h"

#include <QAtomicInt>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTest>
#include <QThread>

namespace {

QAtomicInt schemaCounter;

QString postgresServer()
{
    return qEnvironmentVariable(ScratchAccountSet::PostgresVariable);
}

} // namespace

bool ScratchAccountSet::available(const QString &backend)
{
    return backend == Sqlite || !postgresServer().isEmpty();
}

ScratchAccountSet::ScratchAccountSet(const QString &backend, Content content)
    : m_backend(backend)
{
    if (backend == Postgres) {
        m_schema = QStringLiteral("lumo_t%1_%2").arg(QCoreApplication::applicationPid())
                       .arg(schemaCounter.fetchAndAddOrdered(1));
        m_acctDb = postgresServer() + QStringLiteral("?schema=") + m_schema;
    } else {
        m_dir = std::make_unique<QTemporaryDir>();
        m_acctDb = m_dir->filePath(QStringLiteral("account.db"));
    }
    if (content == Content::Nothing)
        return;
    const AccountSet set = AccountSet::create(m_acctDb);
    if (content == Content::Demo)
        DemoCompany(set.database(), set.dialect()).seed({});
}

ScratchAccountSet::~ScratchAccountSet()
{
    if (!m_schema.isEmpty()) {
        try {
            const AccountSet set = AccountSet::open(m_acctDb);
            SqlRun::exec(set.database(), QStringLiteral("DROP SCHEMA IF EXISTS %1 CASCADE").arg(m_schema));
        } catch (const LumoError &) {
            // Nothing was created in the schema; PostgreSQL drops nothing then either.
        }
    }
    AccountSet::close(m_acctDb);
}

QString ScratchAccountSet::propsString(int userId, const QString &userName) const
{
    return propertyEntry(QStringLiteral("UserName"), userName)
           + propertyEntry(QStringLiteral("UserID"), QString::number(userId))
           + propertyEntry(QStringLiteral("AcctDB"), m_acctDb);
}

QSqlDatabase ScratchAccountSet::db() const
{
    return AccountSet::open(m_acctDb).database();
}

QStringList ScratchAccountSet::rows(const QString &sql, const QVariantList &values) const
{
    QStringList rows;
    QSqlQuery query = SqlRun::exec(db(), sql, values);
    while (query.next()) {
        QStringList fields;
        for (int i = 0; i < query.record().count(); ++i) {
            bool number = false;
            const double value = query.value(i).toString().toDouble(&number);
            fields.append(number ? QString::number(value, 'g', 15) : query.value(i).toString());
        }
        rows.append(fields.join(QStringLiteral(", ")));
    }
    return rows;
}

void ScratchAccountSet::createAtVersion(int version)
{
    const AcctDbLocation location = AcctDbLocation::parse(m_acctDb);
    const SqlDialect &dialect = SqlDialect::of(location.backend());
    const QString name = QStringLiteral("scratch-old-version");
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(dialect.driverName(), name);
        location.configure(db);
        QVERIFY2(db.open(), "the scratch database opens");
        SqlRun::execAll(db, dialect.createContainer(location.schema()));
        SqlRun::execAll(db, dialect.sessionSetup(location.schema()));
        SchemaManager(db, dialect).create(version);
        db.close();
    }
    QSqlDatabase::removeDatabase(name);
}

void addBackends()
{
    QTest::addColumn<QString>("backend");
    QTest::newRow(qPrintable(ScratchAccountSet::Sqlite)) << ScratchAccountSet::Sqlite;
    QTest::newRow(qPrintable(ScratchAccountSet::Postgres)) << ScratchAccountSet::Postgres;
}

bool ScratchAccountSet::awaitLockWait(const std::atomic<int> &pid) const
{
    const QDeadlineTimer patience(10000);
    const QString waiting = QStringLiteral("SELECT count(*) FROM pg_locks WHERE pid = ? AND NOT granted");
    while (pid == 0 || SqlRun::scalar(db(), waiting, {pid.load()}).toInt() == 0) {
        if (patience.hasExpired())
            return false;
        QThread::msleep(5);
    }
    return true;
}
