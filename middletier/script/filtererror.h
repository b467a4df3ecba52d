#pragma once

#include <QString>

#include <stdexcept>

namespace script {

// A filter or sort text that names an undeclared field, an unknown operator or anything else
// outside the accepted syntax (see filterparser.h).
class FilterError : public std::runtime_error
{
public:
    explicit FilterError(const QString &message);

    QString message() const { return m_message; }
    QString text() const;

private:
    QString m_message;
};

} // namespace script
