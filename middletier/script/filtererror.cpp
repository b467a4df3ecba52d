#include "filtererror.h"

#include "scripttexts.h"

namespace script {

FilterError::FilterError(const QString &message)
    : std::runtime_error(texts::filterError.arg(message).toStdString())
    , m_message(message)
{
}

QString FilterError::text() const
{
    return texts::filterError.arg(m_message);
}

} // namespace script
