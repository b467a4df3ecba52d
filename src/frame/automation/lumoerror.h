#pragma once

#include "automation_global.h"

#include <QString>

#include <exception>

// The error a service member or a library procedure raises. It carries what the suite's error
// object carries (number, description, source) so a handler can show it through the one error box.
class LUMOAUTOMATION_EXPORT LumoError : public std::exception
{
public:
    // Numbers of our own errors start here, above the automation layer's numbers.
    static constexpr int AppBase = 513;

    // Our own numbers the automation layer raises; the controls' own are in CtlError.
    static constexpr int NoCurrentRecord = AppBase + 1;
    static constexpr int ObjectNotSet = AppBase + 10;

    // Numbers the automation layer itself raises.
    static constexpr int CannotCreateObject = 429;
    static constexpr int MemberNotFound = 438;
    static constexpr int InvalidArgument = 5;
    static constexpr int KeyExists = 457;
    static constexpr int ItemNotFound = 3265;

    LumoError(int number, QString description, QString source = {});

    int number() const { return m_number; }
    QString description() const { return m_description; }
    QString source() const { return m_source; }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    int m_number;
    QString m_description;
    QString m_source;
    QByteArray m_what;
};
