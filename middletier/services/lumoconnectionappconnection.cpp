#include "lumoconnectionappconnection.h"

#include "currentlogin.h"
#include "db/accountset.h"
#include "db/recordsetbuilder.h"
#include "db/sqlrun.h"
#include "mterrors.h"
#include "script/readstatement.h"
#include "script/scripterror.h"

#include "frame/automation/recordset.h"
#include "frame/automation/progids.h"

LumoConnectionAppConnection::LumoConnectionAppConnection(QObject *parent)
    : QObject(parent)
{
}

QObject *LumoConnectionAppConnection::Execute(const QString &sql)
{
    const QSqlDatabase db = AccountSet::fromPropsString(currentLoginPropsString()).database();
    script::ReadStatement read;
    try {
        read = script::checkRead(sql, SqlDialect::of(db));
    } catch (const script::ScriptError &error) {
        throw LumoError(MtError::StatementRefused, MtError::StatementRefusedText.arg(error.text()),
                        QString(ProgId::AppConnection) + QStringLiteral(".Execute"));
    }
    QSqlQuery query = SqlRun::exec(db, read.sql, read.values);
    return recordsetFromQuery(query);
}
