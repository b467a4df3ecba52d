#include "sysparamquery.h"

#include "db/sqlrun.h"
#include "db/systemparameters.h"

#include "frame/automation/dictionary.h"

#include <QHash>

namespace SysParamQuery {

Dictionary *fetch(const QSqlDatabase &db, const QDate &today)
{
    QHash<QString, QString> stored; // "category/key" in lower case -> value
    QSqlQuery query = SqlRun::exec(db, QStringLiteral("SELECT FCategory, FKey, FValue FROM t_SystemProfile"));
    while (query.next()) {
        const QString name = (query.value(0).toString() + QLatin1Char('/') + query.value(1).toString()).toLower();
        stored.insert(name, query.value(2).toString());
    }
    auto params = std::make_unique<Dictionary>();
    for (const SystemParameterDecl &p : SystemParameters::all()) {
        const QString name = (p.category + QLatin1Char('/') + p.key).toLower();
        const auto it = stored.constFind(name);
        params->setItem(p.key, p.typed(it != stored.constEnd() ? *it : p.defaultFor(today)));
    }
    return params.release();
}

} // namespace SysParamQuery
