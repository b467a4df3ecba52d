#pragma once

#include "middletier_global.h"

#include "dialect/sqldialect.h"
#include "script/boundsql.h"
#include "script/filterfields.h"

#include <QList>
#include <QStringList>

#include <optional>

// One key of an ORDER BY: a declared column expression and its direction.
struct SortKey
{
    QString column;
    bool descending = false;
};

// The filter and sort texts that the find/filter/sort dialog and the filter dialog leave in the
// shared filter settings, as a data set applies them. Every text goes through
// script::FilterParser over the fields the data set declares, so only declared fields and the
// known operators pass and every value is bound.
class LUMOMIDDLETIER_EXPORT DialogFilter
{
public:
    struct Applied
    {
        // "(condition) AND (condition) ..." over the declared columns; empty for no condition.
        script::BoundSql where;
        QList<SortKey> sort;
    };

    // Filter texts are combined with AND; empty texts (and the filter dialog's bare
    // " where 1=1 and ") add nothing.
    DialogFilter(const QStringList &filters, const QString &sort);

    // Throws LumoError (MtError::FilterRefused, with the parser's reason) when a text names an
    // undeclared field or is not a filter or sort at all: the user is told, rather than shown an
    // empty page, and the text never reaches the database.
    Applied apply(const script::FilterFields &fields, const SqlDialect &dialect) const;
    // The same, nothing when refused: for a data set that has other fields to try the texts on.
    std::optional<Applied> tryApply(const script::FilterFields &fields, const SqlDialect &dialect) const;

private:
    QStringList m_filters;
    QString m_sort;
};

// "column ASC, column DESC" of the keys.
LUMOMIDDLETIER_EXPORT QString orderByText(const QList<SortKey> &keys);
