#pragma once

#include "dialogfilter.h"
#include "middletier_global.h"

#include "dialect/sqldialect.h"
#include "script/boundsql.h"

#include <optional>

class PageWindow;

// One warehouse or stock place in one period.
struct PlacePeriod
{
    int stockId = 0;
    int spId = 0;
    int period = 0;
};

// The two statements behind one page of item rows (see ItemRowFields): the page and the
// totals of the whole place under the same filter.
//
// Two shapes, chosen by what the filter and sort name:
// - Item level (item, auxiliary property, valuation method): the page walks the items in sort
//   order (by t_ICItem's number index for the usual sort by number), takes one page of distinct
//   item/property keys with LIMIT/OFFSET and sums the rows of those keys only; the totals are
//   one aggregate over the place's rows, whose filter selects whole groups.
// - Group level (sums, units, dates): every group of the place is summed first and the filter,
//   sort, LIMIT/OFFSET and totals work on the groups.
// Both give the same rows in the same order: by the sort keys, then by item number (the short
// number first when the account set shows short numbers), then by auxiliary property.
class LUMOMIDDLETIER_EXPORT InitialDataSql
{
public:
    // Throws LumoError when a filter or sort text is refused on the group fields as well
    // (DialogFilter::apply).
    static InitialDataSql build(const PlacePeriod &place, const DialogFilter &filter, bool useShortNumber,
                                const SqlDialect &dialect);

    bool groupsFirst() const { return m_groupsFirst; }
    // The item rows of the page (ItemRowFields::rowFields()).
    script::BoundSql page(const PageWindow &window) const;
    // One row: the number of item rows, then the twelve sums (ItemRowFields::figureFields()).
    script::BoundSql totals() const;
    // One value: the highest quantity precision of the items the place holds (null for none), so
    // that the totals row hides none of the digits its rows show. `placeRows` (the item rows the
    // place holds) chooses the cheaper way.
    script::BoundSql precision(qint64 placeRows) const;

private:
    InitialDataSql(const PlacePeriod &place, const DialogFilter::Applied &applied, bool groupsFirst,
                   bool useShortNumber, const SqlDialect &dialect);

    script::BoundSql fastPage(const PageWindow &window) const;
    script::BoundSql groupedPage(const PageWindow &window) const;
    QVariantList placeValues() const;

    PlacePeriod m_place;
    DialogFilter::Applied m_applied;
    bool m_groupsFirst;
    QList<SortKey> m_keys; // the caller's sort keys, then the item number
    QString m_placeByItem; // the place condition for a walk in item order
};
