#include "accountset.h"

#include "dialect/sqldialect.h"
#include "mterrors.h"
#include "schema.h"
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
const QString SqliteProbeOptions = QStringLiteral("QSQLITE_OPEN_READONLY");
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

// A read-only connection to a SQLite file, removed again when it goes out of scope.
class FileProbe
{
public:
    explicit FileProbe(const AcctDbLocation &location)
        : m_name(connectionName(location) + QStringLiteral(":probe"))
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(SqlDialect::of(location.backend()).driverName(), m_name);
        location.configure(db);
        db.setConnectOptions(SqliteProbeOptions);
        if (!db.open()) {
            const QString message = db.lastError().text();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(m_name);
            throw LumoError(MtError::AcctDbOpenFailed,
                            MtError::AcctDbOpenFailedText.arg(location.displayName(), message), Source);
        }
    }
    ~FileProbe()
    {
        QSqlDatabase::database(m_name, false).close();
        QSqlDatabase::removeDatabase(m_name);
    }
    FileProbe(const FileProbe &) = delete;
    FileProbe &operator=(const FileProbe &) = delete;

    int version() const
    {
        return SchemaManager(QSqlDatabase::database(m_name, false), SqlDialect::of(SqlBackend::SQLite)).version();
    }

private:
    QString m_name;
};

// The schema version of an account set this program can work on. A SQLite file is read through
// a read-only connection first: the session setup of a working connection switches the file to
// WAL, and a file that is refused must be left exactly as it was (an empty file, too, which a
// working connection would turn into a database).
int checkedVersion(const AcctDbLocation &location)
{
    const int version = location.isPostgres()
                            ? SchemaManager(connect(location), SqlDialect::of(location.backend())).version()
                            : FileProbe(location).version();
    if (version == 0)
        throw LumoError(MtError::NotAnAccountSet, MtError::NotAnAccountSetText.arg(location.displayName()), Source);
    if (version > Schema::CurrentVersion)
        throw LumoError(MtError::SchemaTooNew, MtError::SchemaTooNewText.arg(version).arg(Schema::CurrentVersion),
                        Source);
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
    if (isChecked(location.key()))
        return AccountSet(location, connect(location));
    const int version = checkedVersion(location);
    QSqlDatabase db = connect(location);
    if (version != Schema::CurrentVersion)
        SchemaManager(db, SqlDialect::of(location.backend())).migrate();
    setChecked(location.key(), true);
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
    checkedVersion(location);
    const int before = SchemaManager(connect(location), SqlDialect::of(location.backend())).migrate();
    setChecked(location.key(), true);
    return before;
}

void AccountSet::close(const QString &acctDb)
{
    const AcctDbLocation location = AcctDbLocation::parse(acctDb);
    threadConnections.remove(location.key());
    setChecked(location.key(), false);
}
