#pragma once

#include <QString>

#include <stdexcept>

namespace script {

// A refused or failed script. It names the statement (its 1-based number in the script and its
// first characters) so that the user can find it; number 0 means the script as a whole
// (the transaction could not start or commit).
class ScriptError : public std::runtime_error
{
public:
    ScriptError(int statementNumber, const QString &statementStart, const QString &message);

    int statementNumber() const { return m_statementNumber; }
    QString statementStart() const { return m_statementStart; }
    QString message() const { return m_message; }
    // The whole text as the user reads it (what() holds the same in UTF-8).
    QString text() const;

private:
    int m_statementNumber;
    QString m_statementStart;
    QString m_message;
};

} // namespace script
