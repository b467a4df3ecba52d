#include "testdatabase.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUrl>

namespace {

int connectionCounter = 0;

} // namespace

QString TestDatabase::postgresUri()
{
    return qEnvironmentVariable("LUMO_TEST_PG");
}

TestDatabase::TestDatabase(const QString &backend)
{
    ++connectionCounter;
    m_connection = QStringLiteral("script-test-%1").arg(connectionCounter);
    if (backend == QLatin1String(postgresql)) {
        const QUrl uri(postgresUri());
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), m_connection);
        db.setHostName(uri.host());
        db.setPort(uri.port(5432));
        db.setUserName(uri.userName());
        db.setPassword(uri.password());
        db.setDatabaseName(uri.path().mid(1));
        if (!db.open()) {
            m_error = db.lastError().text();
            return;
        }
        m_schema = QStringLiteral("lumo_script_%1_%2").arg(QCoreApplication::applicationPid()).arg(connectionCounter);
        exec({QStringLiteral("CREATE SCHEMA %1").arg(m_schema), QStringLiteral("SET search_path TO %1").arg(m_schema)});
        return;
    }
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    db.setDatabaseName(m_dir.filePath(QStringLiteral("account.db")));
    if (!db.open())
        m_error = db.lastError().text();
    else
        exec({QStringLiteral("PRAGMA synchronous = OFF")}); // a throwaway file need not survive a crash
}

TestDatabase::~TestDatabase()
{
    {
        QSqlDatabase database = db();
        if (!m_schema.isEmpty() && database.isOpen())
            QSqlQuery(database).exec(QStringLiteral("DROP SCHEMA %1 CASCADE").arg(m_schema));
        database.close();
    }
    QSqlDatabase::removeDatabase(m_connection);
}

QSqlDatabase TestDatabase::db() const
{
    return QSqlDatabase::database(m_connection, false);
}

bool TestDatabase::exec(const QStringList &statements)
{
    QSqlQuery query(db());
    for (const QString &statement : statements) {
        if (!query.exec(statement)) {
            m_error = statement + QLatin1String(": ") + query.lastError().text();
            return false;
        }
    }
    return true;
}

QStringList TestDatabase::rows(const QString &select) const
{
    QStringList result;
    QSqlQuery query(db());
    if (!query.exec(select))
        return {QLatin1String("query failed: ") + query.lastError().text()};
    while (query.next()) {
        QStringList fields;
        for (int i = 0; i < query.record().count(); ++i) {
            const QVariant value = query.value(i);
            fields.append(value.isNull() ? QStringLiteral("NULL") : value.toString());
        }
        result.append(fields.join(QLatin1String(", ")));
    }
    return result;
}
