#include "lumomicinitialdata.h"

#include "db/accountset.h"
#include "mterrors.h"
#include "queries/stockquery.h"
#include "queries/sysparamquery.h"
#include "queries/typelist.h"
#include "queries/unitquery.h"
#include "script/scriptexecutor.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/recordset.h"
#include "frame/automation/progids.h"

LumoMICInitialData::LumoMICInitialData(QObject *parent)
    : QObject(parent)
{
}

QObject *LumoMICInitialData::FetchSysParameter(const QString &PropsString)
{
    return SysParamQuery::fetch(AccountSet::fromPropsString(PropsString).database());
}

QObject *LumoMICInitialData::FetchStocks(const QString &PropsString, const QString &typeList)
{
    const QList<int> types = parseTypeList(typeList);
    return StockQuery::fetchStocks(AccountSet::fromPropsString(PropsString).database(), types);
}

QObject *LumoMICInitialData::FetchMeasureUnits(const QString &PropsString)
{
    return UnitQuery::fetchMeasureUnits(AccountSet::fromPropsString(PropsString).database());
}

void LumoMICInitialData::UpdateINIData(const QString &PropsString, const QString &script)
{
    const QSqlDatabase db = AccountSet::fromPropsString(PropsString).database();
    try {
        script::ScriptExecutor(db, SqlDialect::of(db)).run(script);
    } catch (const script::ScriptError &error) {
        throw LumoError(MtError::ScriptFailed, error.text(), QString(ProgId::MICInitialData) + QStringLiteral(".UpdateINIData"));
    }
}
