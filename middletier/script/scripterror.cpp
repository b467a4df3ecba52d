#include "scripterror.h"

#include "scripttexts.h"

namespace script {

namespace {

QString composeText(int statementNumber, const QString &statementStart, const QString &message)
{
    if (statementNumber <= 0)
        return texts::scriptError.arg(message);
    return texts::statementError.arg(statementNumber).arg(statementStart, message);
}

} // namespace

ScriptError::ScriptError(int statementNumber, const QString &statementStart, const QString &message)
    : std::runtime_error(composeText(statementNumber, statementStart, message).toStdString())
    , m_statementNumber(statementNumber)
    , m_statementStart(statementStart)
    , m_message(message)
{
}

QString ScriptError::text() const
{
    return composeText(m_statementNumber, m_statementStart, m_message);
}

} // namespace script
