#include "accountset.h"

#include "dialect/sqldialect.h"
#include "mterrors.h"
#include "schemamanager.h"
#include "sqlrun.h"

#include "frame/automation/propertystring.h"

#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QSet>
#include <QSqlError>
#include <QThread>

namespace {

const QString Source = QStringLiteral("AccountSet");
const QString SqliteConnectOptions = QStringLiteral("QSQLITE_BUSY_TIMEOUT=10000");
const QString PostgresConnectOptions = QStringLiteral("connect_timeout=10");

// This thread's connections by account-set key; removed when the thread ends.
class ThreadConnections
{
public:
    ~ThreadConnections()
    {
        for (const QString &name : std::as_const(m_names))
            QSqlDatabase::removeDatabase(name);
    }

    QString name(const QString &key) const { return m_names.value(key); }
    void add(const QString &key, const QString &name) { m_names.insert(key, name); }
    void remove(const QString &key)
    {
        const QString name = m_names.take(key);
        if (!name.isEmpty()) {
            QSqlDatabase::database(name, false).close();
            QSqlDatabase::removeDatabase(name);
        }
    }

private:
    QHash<QString, QString> m_names;
};

thread_local ThreadConnections threadConnections;

// Account sets whose schema version was checked (and upgraded) in this process.
QMutex checkedMutex;
QSet<QString> checkedKeys;

bool isChecked(const QString &key)
{
    QMutexLocker lock(&checkedMutex);
    return checkedKeys.contains(key);
}

void setChecked(const QString &key, bool checked)
{
    QMutexLocker lock(&checkedMutex);
    if (checked)
        checkedKeys.insert(key);
    else
        checkedKeys.remove(key);
}

QString connectionName(const AcctDbLocation &location)
{
    return QStringLiteral("lumo:%1:%2").arg(location.key()).arg(quintptr(QThread::currentThreadId()));
}

QSqlDatabase connect(const AcctDbLocation &location)
{
    const QString existing = threadConnections.name(location.key());
    if (!existing.isEmpty())
        return QSqlDatabase::database(existing, false);

    const SqlDialect &dialect = SqlDialect::of(location.backend());
    const QString name = connectionName(location);
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(dialect.driverName(), name);
        location.configure(db);
        db.setConnectOptions(location.isPostgres() ? PostgresConnectOptions : SqliteConnectOptions);
        if (!db.open()) {
            const QString message = db.lastError().text();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(name);
            throw LumoError(MtError::AcctDbOpenFailed,
                            MtError::AcctDbOpenFailedText.arg(location.displayName(), message), Source);
        }
    }
    threadConnections.add(location.key(), name);
    QSqlDatabase db = QSqlDatabase::database(name, false);
    try {
        SqlRun::execAll(db, dialect.sessionSetup(location.schema()));
    } catch (...) {
        threadConnections.remove(location.key());
        throw;
    }
    return db;
}

void requireExisting(const AcctDbLocation &location)
{
    if (!location.isPostgres() && !QFileInfo::exists(location.filePath()))
        throw LumoError(MtError::AcctDbNotFound, MtError::AcctDbNotFoundText.arg(location.displayName()), Source);
}

// The schema version; a database without one is not an account set.
int accountSetVersion(const SchemaManager &schema, const AcctDbLocation &location)
{
    const int version = schema.version();
    if (version == 0)
        throw LumoError(MtError::NotAnAccountSet, MtError::NotAnAccountSetText.arg(location.displayName()), Source);
    return version;
}

} // namespace

AccountSet::AccountSet(const AcctDbLocation &location, const QSqlDatabase &db)
    : m_location(location)
    , m_db(db)
{
}

const SqlDialect &AccountSet::dialect() const
{
    return SqlDialect::of(m_location.backend());
}

AccountSet AccountSet::fromPropsString(const QString &propsString)
{
    const QString acctDb = propertyValue(propsString, AcctDbKey);
    if (acctDb.trimmed().isEmpty())
        throw LumoError(MtError::NoAcctDb, MtError::NoAcctDbText, Source);
    return open(acctDb);
}

AccountSet AccountSet::open(const QString &acctDb)
{
    const AcctDbLocation location = AcctDbLocation::parse(acctDb);
    requireExisting(location);
    QSqlDatabase db = connect(location);
    if (!isChecked(location.key())) {
        SchemaManager schema(db, SqlDialect::of(location.backend()));
        if (accountSetVersion(schema, location) != Schema::CurrentVersion)
            schema.migrate();
        setChecked(location.key(), true);
    }
    return AccountSet(location, db);
}

AccountSet AccountSet::create(const QString &acctDb)
{
    const AcctDbLocation location = AcctDbLocation::parse(acctDb);
    if (!location.isPostgres() && QFileInfo(location.filePath()).size() > 0)
        throw LumoError(MtError::AcctDbExists, MtError::AcctDbExistsText.arg(location.displayName()), Source);
    QSqlDatabase db = connect(location);
    const SqlDialect &dialect = SqlDialect::of(location.backend());
    SqlRun::execAll(db, dialect.createContainer(location.schema()));
    SqlRun::execAll(db, dialect.sessionSetup(location.schema()));
    SchemaManager schema(db, dialect);
    if (!schema.isEmpty())
        throw LumoError(MtError::AcctDbExists, MtError::AcctDbExistsText.arg(location.displayName()), Source);
    schema.create();
    setChecked(location.key(), true);
    return AccountSet(location, db);
}

int AccountSet::migrate(const QString &acctDb)
{
    const AcctDbLocation location = AcctDbLocation::parse(acctDb);
    requireExisting(location);
    SchemaManager schema(connect(location), SqlDialect::of(location.backend()));
    accountSetVersion(schema, location);
    const int before = schema.migrate();
    setChecked(location.key(), true);
    return before;
}

void AccountSet::close(const QString &acctDb)
{
    const AcctDbLocation location = AcctDbLocation::parse(acctDb);
    threadConnections.remove(location.key());
    setChecked(location.key(), false);
}
