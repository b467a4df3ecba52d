#include "transaction.h"

#include "dialect/sqldialect.h"
#include "sqlrun.h"

#include <QSqlQuery>

Transaction::Transaction(const QSqlDatabase &db)
    : m_db(db)
{
    SqlRun::exec(m_db, QStringLiteral("BEGIN"));
    m_open = true;
}

Transaction::Transaction(const QSqlDatabase &db, const SqlDialect &dialect, const QString &exclusiveTable)
    : m_db(db)
{
    const QStringList statements = dialect.beginExclusive(exclusiveTable);
    SqlRun::exec(m_db, statements.first());
    m_open = true;
    SqlRun::execAll(m_db, statements.mid(1));
}

Transaction::~Transaction()
{
    if (m_open) {
        QSqlQuery rollback(m_db);
        rollback.exec(QStringLiteral("ROLLBACK"));
    }
}

void Transaction::commit()
{
    SqlRun::exec(m_db, QStringLiteral("COMMIT"));
    m_open = false;
}
