#include "scriptexecutor.h"

#include "scriptparser.h"
#include "scripttexts.h"

#include <QSqlError>
#include <QThread>

namespace script {

namespace {

// A script the server aborted to break a deadlock; it is run again from the start.
struct Deadlock
{
};

// The first run and one more: a deadlock is rare, two in a row mean the sessions keep meeting.
constexpr int deadlockAttempts = 2;
constexpr unsigned long deadlockPauseMs = 200;

} // namespace

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
    for (int attempt = 1;; ++attempt) {
        try {
            runOnce(statements);
            return;
        } catch (const Deadlock &) {
            if (attempt == deadlockAttempts)
                throw ScriptError(0, {}, texts::deadlock);
            // The session that won takes the rows it waited for now; run at once, this one would
            // lock them first again and meet it in the same deadlock.
            QThread::msleep(deadlockPauseMs);
        }
    }
}

void ScriptExecutor::runOnce(const QList<Statement> &statements)
{
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
        if (!query->exec()) {
            if (m_dialect.isDeadlock(query->lastError()))
                throw Deadlock{};
            throw ScriptError(statement.number, statement.start, query->lastError().text());
        }
    }
}

} // namespace script
