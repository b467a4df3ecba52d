#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QString>

#include <optional>

namespace CurrencyQuery {

struct Currency
{
    int id = 0;
    QString number;
    QString name;
    int scale = 0;
    double exchangeRate = 1.0;
};

LUMOMIDDLETIER_EXPORT std::optional<Currency> fetch(const QSqlDatabase &db, int currencyId);

} // namespace CurrencyQuery
