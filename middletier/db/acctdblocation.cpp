#include "acctdblocation.h"

#include "mterrors.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QUrl>
#include <QUrlQuery>

namespace {

constexpr int DefaultPostgresPort = 5432;
const QString SchemaParameter = QStringLiteral("schema");

[[noreturn]] void refuse(const QString &acctDb)
{
    throw LumoError(MtError::BadAcctDb, MtError::BadAcctDbText.arg(acctDb), QStringLiteral("AcctDbLocation"));
}

bool isPostgresUri(const QString &text)
{
    return text.startsWith(QLatin1String("postgresql://"), Qt::CaseInsensitive) ||
           text.startsWith(QLatin1String("postgres://"), Qt::CaseInsensitive);
}

// The schema name goes into "SET search_path", so only a plain identifier is accepted.
bool isPlainIdentifier(const QString &name)
{
    static const QRegularExpression identifier(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]{0,62}$"));
    return identifier.match(name).hasMatch();
}

} // namespace

AcctDbLocation AcctDbLocation::parse(const QString &acctDb)
{
    const QString text = acctDb.trimmed();
    if (text.isEmpty())
        refuse(acctDb);
    AcctDbLocation location;
    if (!isPostgresUri(text)) {
        location.m_backend = SqlBackend::SQLite;
        location.m_filePath = QDir::cleanPath(QFileInfo(text).absoluteFilePath());
        return location;
    }
    const QUrl url(text, QUrl::StrictMode);
    const QString database = url.path().mid(1);
    if (!url.isValid() || url.host().isEmpty() || database.isEmpty() || database.contains(QLatin1Char('/')))
        refuse(acctDb);
    location.m_backend = SqlBackend::PostgreSQL;
    location.m_host = url.host();
    location.m_port = url.port(DefaultPostgresPort);
    location.m_userName = url.userName(QUrl::FullyDecoded);
    location.m_password = url.password(QUrl::FullyDecoded);
    location.m_databaseName = QUrl::fromPercentEncoding(database.toUtf8());
    const QUrlQuery query(url);
    for (const auto &[name, value] : query.queryItems(QUrl::FullyDecoded)) {
        if (name != SchemaParameter || !isPlainIdentifier(value))
            refuse(acctDb);
        location.m_schema = value;
    }
    return location;
}

QString AcctDbLocation::key() const
{
    if (m_backend == SqlBackend::SQLite)
        return QStringLiteral("sqlite:") + m_filePath;
    return QStringLiteral("pg:%1@%2:%3/%4/%5").arg(m_userName, m_host).arg(m_port).arg(m_databaseName, m_schema);
}

QString AcctDbLocation::displayName() const
{
    if (m_backend == SqlBackend::SQLite)
        return m_filePath;
    QString name = QStringLiteral("postgresql://%1@%2:%3/%4").arg(m_userName, m_host).arg(m_port).arg(m_databaseName);
    if (!m_schema.isEmpty())
        name += QStringLiteral("?schema=") + m_schema;
    return name;
}

void AcctDbLocation::configure(QSqlDatabase &db) const
{
    if (isPostgres()) {
        db.setHostName(m_host);
        db.setPort(m_port);
        db.setDatabaseName(m_databaseName);
        db.setUserName(m_userName);
        db.setPassword(m_password);
    } else {
        db.setDatabaseName(m_filePath);
    }
}
