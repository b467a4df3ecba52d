#include "accessquery.h"

#include "db/sqlrun.h"

namespace AccessQuery {

bool allowed(const QSqlDatabase &db, int userId, int objectType, int objectId, qint64 right)
{
    QSqlQuery user =
        SqlRun::exec(db, QStringLiteral("SELECT FIsAdmin, FForbidden FROM t_User WHERE FUserID=?"), {userId});
    if (!user.next() || user.value(1).toInt() != 0)
        return false;
    if (user.value(0).toInt() != 0)
        return true;
    const QVariant rights = SqlRun::scalar(
        db, QStringLiteral("SELECT FRights FROM t_AccessRight WHERE FUserID=? AND FObjectType=? AND FObjectID=?"),
        {userId, objectType, objectId});
    if (rights.isNull())
        return false;
    return (rights.toLongLong() & right) == right;
}

} // namespace AccessQuery
