// The log-in and the data behind the ledger look-ups of "LumoEBCGLView.GLData" (declared and
// documented in lumoebcglviewgldata.h).
#include "lumoebcglviewgldata.h"

#include "currentlogin.h"
#include "db/accountset.h"
#include "queries/itemquery.h"
#include "queries/loginquery.h"
#include "queries/lookupquery.h"

#include "frame/automation/recordset.h"

namespace {

QSqlDatabase loggedInDatabase()
{
    return AccountSet::fromPropsString(currentLoginPropsString()).database();
}

} // namespace

int LumoEBCGLViewGLData::Login(const QString &AcctDB, const QString &UserName)
{
    return LoginQuery::userId(AcctDB, UserName);
}

QObject *LumoEBCGLViewGLData::LookupItems(const QString &Condition, const QString &Pattern,
                                          const QString &AfterNumber, int AfterID, int Count)
{
    return ItemQuery::lookup(loggedInDatabase(), Condition, Pattern, {AfterNumber, AfterID}, Count);
}

QObject *LumoEBCGLViewGLData::LookupUnits(int ItemID)
{
    return LookupQuery::itemUnits(loggedInDatabase(), ItemID);
}

QObject *LumoEBCGLViewGLData::LookupAccounts(const QString &Pattern)
{
    return LookupQuery::accounts(loggedInDatabase(), Pattern);
}
