#include "dialogfilter.h"

#include "script/filtererror.h"
#include "script/filterparser.h"

#include "mterrors.h"

namespace {

const QString Source = QStringLiteral("DialogFilter");
const QString Descending = QStringLiteral(" DESC");
const QString Ascending = QStringLiteral(" ASC");
const QChar SortSeparator = QLatin1Char(',');

// The keys of a sort text one by one. The whole text is checked first; each comma-separated
// piece then gives exactly one "column ASC|DESC", whose column may itself hold commas.
QList<SortKey> sortKeys(const script::FilterParser &parser, const QString &sort)
{
    QList<SortKey> keys;
    if (parser.orderBy(sort).isEmpty())
        return keys;
    for (const QString &piece : sort.split(SortSeparator)) {
        const QString item = parser.orderBy(piece);
        const bool descending = item.endsWith(Descending);
        keys.append({item.chopped(descending ? Descending.size() : Ascending.size()), descending});
    }
    return keys;
}

} // namespace

DialogFilter::DialogFilter(const QStringList &filters, const QString &sort)
    : m_filters(filters)
    , m_sort(sort)
{
}

DialogFilter::Applied DialogFilter::apply(const script::FilterFields &fields, const SqlDialect &dialect) const
{
    const script::FilterParser parser(fields, dialect);
    Applied applied;
    try {
        QStringList conditions;
        for (const QString &filter : m_filters) {
            const script::BoundSql where = parser.where(filter);
            if (where.isEmpty())
                continue;
            conditions.append(where.sql);
            applied.where.values.append(where.values);
        }
        applied.where.sql = conditions.join(QStringLiteral(" AND "));
        applied.sort = sortKeys(parser, m_sort);
    } catch (const script::FilterError &error) {
        throw LumoError(MtError::FilterRefused, error.text(), Source);
    }
    return applied;
}

std::optional<DialogFilter::Applied> DialogFilter::tryApply(const script::FilterFields &fields,
                                                            const SqlDialect &dialect) const
{
    try {
        return apply(fields, dialect);
    } catch (const LumoError &) {
        return std::nullopt;
    }
}

QString orderByText(const QList<SortKey> &keys)
{
    QStringList items;
    for (const SortKey &key : keys)
        items.append(key.column + (key.descending ? Descending : Ascending));
    return items.join(QStringLiteral(", "));
}
