#include "testdatabase.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUrl>
#include <QCoreApplication>

TestDatabase::TestDatabase(const QString &backend)
{
    static int counter = 0;
    m_connection = QStringLiteral("script-test-%1").arg(++counter);
    const bool postgres = backend == QLatin1String(postgresql);
    QSqlDatabase db = QSqlDatabase::addDatabase(postgres ? QStringLiteral("QPSQL") : QStringLiteral("QSQLITE"),
                                                m_connection);
    if (postgres) {
        const QUrl uri(postgresUri());
        db.setHostName(uri.host());
        db.setPort(uri.port(5432));
        db.setUserName(uri.userName());
        db.setPassword(uri.password());
        db.setDatabaseName(uri.path().mid(1));
    } else {
        db.setDatabaseName(m_dir.filePath(QStringLiteral("account.db")));
    }
    if (!db.open()) {
        m_error = db.lastError().text();
    } else if (postgres) {
        m_schema = QStringLiteral("lumo_script_%1_%2").arg(QCoreApplication::applicationPid()).arg(counter);
        exec({QStringLiteral("CREATE SCHEMA %1").arg(m_schema), QStringLiteral("SET search_path TO %1").arg(m_schema)});
    } else {
        exec({QStringLiteral("PRAGMA synchronous = OFF")}); // a throwaway file need not survive a crash
    }
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
    QSqlQuery query(db());
    if (!query.exec(select))
        return {QLatin1String("query failed: ") + query.lastError().text()};
    QStringList result;
    while (query.next()) {
        QStringList fields;
        for (int i = 0; i < query.record().count(); ++i)
            fields.append(query.isNull(i) ? QStringLiteral("NULL") : query.value(i).toString());
        result.append(fields.join(QLatin1String(", ")));
    }
    return result;
}
