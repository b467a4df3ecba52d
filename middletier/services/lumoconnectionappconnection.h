#pragma once

#include "middletier_global.h"

#include <QObject>
#include <QString>

// "LumoConnection.AppConnection": plain reads on the account set of the current login (the
// "PropsString" this process published through "LumoPropsMgr.ShareProps").
class LUMOMIDDLETIER_EXPORT LumoConnectionAppConnection : public QObject
{
    Q_OBJECT

public:
    explicit LumoConnectionAppConnection(QObject *parent = nullptr);

    // Runs one of the read statements the controls send and returns a new Recordset with its
    // rows: the amount scale "SELECT FScale FROM t_Currency WHERE FCurrencyID=1" (any currency
    // id) and the unit-coefficient statement (script/readstatement.h lists both). Its values are
    // bound, never spliced. Any other statement raises MtError::StatementRefused; no login
    // raises MtError::NotLoggedIn.
    Q_INVOKABLE QObject *Execute(const QString &sql);
};
