#pragma once

#include "scripterror.h"
#include "statement.h"

#include "dialect/sqldialect.h"

#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace script {

// Runs a script the controls hand to UpdateINIData (see scriptparser.h for what it may hold).
// The whole script is parsed and checked first; only then does it run, in script order, in one
// transaction that is rolled back on the first failure, so all of it lands or none of it. Every
// literal is bound as a parameter; statements of the same shape share one prepared query, so a
// batch of ten thousand inserts is prepared once. When the server breaks a deadlock with another
// session's save by aborting this one, the script runs once more from the start; a second
// deadlock refuses it with a message that says so.
class ScriptExecutor
{
public:
    ScriptExecutor(QSqlDatabase db, const SqlDialect &dialect = SqlDialect::of(SqlBackend::SQLite));

    // Throws ScriptError naming the refused or failing statement; the database is then unchanged.
    // A script of blanks and line ends only does nothing.
    void run(const QString &script);

    // How many distinct prepared queries the last run used.
    int preparedFormCount() const { return m_preparedFormCount; }

private:
    // One prepared query per statement shape (its parameterised SQL).
    using PreparedQueries = QHash<QString, QSqlQuery>;

    // One run in one transaction; throws Deadlock when the server aborted it to break one.
    void runOnce(const QList<Statement> &statements);
    void execute(const QList<Statement> &statements, PreparedQueries &prepared);

    QSqlDatabase m_db;
    const SqlDialect &m_dialect;
    int m_preparedFormCount = 0;
};

} // namespace script
