#include "loginquery.h"

#include "dataerrors.h"

#include "db/accountset.h"
#include "db/sqlrun.h"
#include "frame/automation/progids.h"

namespace LoginQuery {

int userId(const QString &acctDb, const QString &userName)
{
    const AccountSet set = AccountSet::open(acctDb);
    const QString source = QString(ProgId::GLData) + QStringLiteral(".Login");
    QSqlQuery user = SqlRun::exec(set.database(), QStringLiteral("SELECT FUserID, FForbidden FROM t_User WHERE FName=?"),
                                  {userName.trimmed()});
    if (!user.next())
        throw LumoError(DataError::UnknownUser,
                        DataError::UnknownUserText.arg(set.location().displayName(), userName.trimmed()), source);
    if (user.value(1).toInt() != 0)
        throw LumoError(DataError::ForbiddenUser, DataError::ForbiddenUserText.arg(userName.trimmed()), source);
    return user.value(0).toInt();
}

} // namespace LoginQuery
