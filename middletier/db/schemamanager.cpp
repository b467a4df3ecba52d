#include "schemamanager.h"

#include "dialect/sqldialect.h"
#include "mterrors.h"
#include "schemaddl.h"
#include "sqlrun.h"
#include "systemparameters.h"
#include "transaction.h"

#include <QDateTime>

namespace {

// Every account set has its home currency under id 1: the controls read the amount scale from it.
constexpr int HomeCurrencyID = 1;
constexpr int HomeCurrencyScale = 2;
constexpr int AdministratorID = 1;

} // namespace

SchemaManager::SchemaManager(const QSqlDatabase &db, const SqlDialect &dialect)
    : m_db(db)
    , m_dialect(dialect)
{
}

int SchemaManager::version() const
{
    const QStringList tables = m_dialect.tableNames(m_db);
    if (!tables.contains(Schema::VersionTable, Qt::CaseInsensitive))
        return 0;
    return SqlRun::scalar(m_db, QStringLiteral("SELECT max(FVersion) FROM %1").arg(Schema::VersionTable)).toInt();
}

bool SchemaManager::isEmpty() const
{
    return m_dialect.tableNames(m_db).isEmpty();
}

void SchemaManager::create(int version, const QDate &today)
{
    Transaction transaction(m_db);
    SqlRun::execAll(m_db, SchemaDdl(m_dialect).create(version));
    seed(0, version, today);
    recordVersion(version);
    transaction.commit();
}

int SchemaManager::migrate(const QDate &today)
{
    Transaction transaction(m_db, m_dialect, Schema::VersionTable);
    // Read again under the lock: another process may have upgraded meanwhile.
    const int from = version();
    if (from == 0)
        throw LumoError(MtError::NotAnAccountSet, MtError::NotAnAccountSetText.arg(m_db.databaseName()),
                        QStringLiteral("SchemaManager"));
    if (from > Schema::CurrentVersion)
        throw LumoError(MtError::SchemaTooNew, MtError::SchemaTooNewText.arg(from).arg(Schema::CurrentVersion),
                        QStringLiteral("SchemaManager"));
    if (from < Schema::CurrentVersion) {
        SqlRun::execAll(m_db, SchemaDdl(m_dialect).migrate(from, Schema::CurrentVersion));
        seed(from, Schema::CurrentVersion, today);
        recordVersion(Schema::CurrentVersion);
    }
    transaction.commit();
    return from;
}

void SchemaManager::seed(int from, int to, const QDate &today)
{
    const QString profileInsert = m_dialect.insertIgnore(QStringLiteral("t_SystemProfile"),
                                                         {QStringLiteral("FCategory"), QStringLiteral("FKey"),
                                                          QStringLiteral("FValue"), QStringLiteral("FDescription")});
    for (const SystemParameterDecl &p : SystemParameters::all()) {
        if (p.since > from && p.since <= to)
            SqlRun::exec(m_db, profileInsert, {p.category, p.key, p.defaultFor(today), p.description});
    }
    if (from > 0)
        return;
    SqlRun::exec(m_db,
                 QStringLiteral("INSERT INTO t_Currency (FCurrencyID, FNumber, FName, FScale, FExchangeRate) "
                                "VALUES (?,?,?,?,?)"),
                 {HomeCurrencyID, QStringLiteral("RMB"), QStringLiteral("人民币"), HomeCurrencyScale, 1.0});
    SqlRun::exec(m_db, QStringLiteral("INSERT INTO t_User (FUserID, FName, FDescription, FIsAdmin) VALUES (?,?,?,1)"),
                 {AdministratorID, QStringLiteral("Administrator"), QStringLiteral("系统管理员")});
    SqlRun::execAll(m_db, m_dialect.resetAutoIncrement(QStringLiteral("t_Currency"), QStringLiteral("FCurrencyID")));
    SqlRun::execAll(m_db, m_dialect.resetAutoIncrement(QStringLiteral("t_User"), QStringLiteral("FUserID")));
}

void SchemaManager::recordVersion(int version)
{
    SqlRun::exec(m_db, QStringLiteral("INSERT INTO %1 (FVersion, FAppliedAt) VALUES (?,?)").arg(Schema::VersionTable),
                 {version, QDateTime::currentDateTime()});
}
