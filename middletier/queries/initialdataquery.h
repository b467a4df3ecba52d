#pragma once

#include "initialdatasql.h"
#include "middletier_global.h"

#include <QSqlDatabase>
#include <QStringList>

class Dictionary;

// FetchYtdInitialData: one page of item rows of a place with the totals of the whole place.
namespace InitialDataQuery {

struct Request
{
    PlacePeriod place;
    int pageSize = 0;
    int pageIndex = 0;
    QStringList filters; // Filter, ActualFilter, VirtualFilter
    QString sort;
    bool useShortNumber = false;
};

// A PagedResult Dictionary (see LumoMICInitialData::FetchYtdInitialData).
LUMOMIDDLETIER_EXPORT Dictionary *fetch(const QSqlDatabase &db, const Request &request);

} // namespace InitialDataQuery
