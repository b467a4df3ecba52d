#include "scriptexecutor.h"

#include "scriptparser.h"
#include "scripttexts.h"

#include <QSqlError>

namespace script {

ScriptExecutor::ScriptExecutor(QSqlDatabase db, const SqlDialect &dialect)
    : m_db(std::move(db))
    , m_dialect(dialect)
{
}

void ScriptExecutor::run(const QString &script)
{
    m_preparedFormCount = 0;
    const QList<Statement> statements = parseScript(script, m_dialect);
    if (statements.isEmpty())
        return;
    if (!m_db.transaction())
        throw ScriptError(0, {}, texts::transactionRefused.arg(m_db.lastError().text()));
    PreparedQueries prepared;
    try {
        execute(statements, prepared);
    } catch (...) {
        // Roll back while the queries still exist: PostgreSQL cannot free a prepared statement
        // inside a failed transaction.
        m_db.rollback();
        throw;
    }
    // SQLite commits more surely without open statements.
    prepared.clear();
    if (!m_db.commit()) {
        const QString reason = m_db.lastError().text();
        m_db.rollback();
        throw ScriptError(0, {}, texts::commitFailed.arg(reason));
    }
}

void ScriptExecutor::execute(const QList<Statement> &statements, PreparedQueries &prepared)
{
    for (const Statement &statement : statements) {
        auto query = prepared.find(statement.sql);
        if (query == prepared.end()) {
            QSqlQuery fresh(m_db);
            if (!fresh.prepare(statement.sql))
                throw ScriptError(statement.number, statement.start, fresh.lastError().text());
            query = prepared.insert(statement.sql, fresh);
            m_preparedFormCount = int(prepared.size());
        }
        for (qsizetype i = 0; i < statement.values.size(); ++i)
            query->bindValue(int(i), statement.values.at(i));
        if (!query->exec())
            throw ScriptError(statement.number, statement.start, query->lastError().text());
    }
}

} // namespace script
