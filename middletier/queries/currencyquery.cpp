#include "currencyquery.h"

#include "db/sqlrun.h"

namespace CurrencyQuery {

std::optional<Currency> fetch(const QSqlDatabase &db, int currencyId)
{
    QSqlQuery query = SqlRun::exec(
        db,
        QStringLiteral("SELECT FCurrencyID, FNumber, FName, FScale, FExchangeRate FROM t_Currency WHERE FCurrencyID=?"),
        {currencyId});
    if (!query.next())
        return std::nullopt;
    return Currency{query.value(0).toInt(), query.value(1).toString(), query.value(2).toString(),
                    query.value(3).toInt(), query.value(4).toDouble()};
}

} // namespace CurrencyQuery
