#pragma once

#include "grid/cellstyle.h"

#include <QHash>

#include <deque>

// Interns cell styles so that a cell, a row and a column each keep a 32-bit style id instead of
// a style; 50,000 rows in a handful of looks cost a handful of styles. Id 0 is the empty style.
// The merged look of a (column, row, cell) triple is cached, since a grid shows few combinations.
class StyleTable
{
public:
    static constexpr quint32 NoStyle = 0;

    StyleTable();

    quint32 intern(const CellStyle &style);
    // A reference stays valid until clear(): styles are never moved or dropped before that.
    const CellStyle &style(quint32 id) const { return m_styles[id]; }

    // The column default, overlaid by the row default, overlaid by the cell's own style.
    const CellStyle &resolved(quint32 colStyle, quint32 rowStyle, quint32 cellStyle) const;

    // The style of `id` changed by `patch` (set fields) and stripped of `removed` fields.
    quint32 patched(quint32 id, const CellStyle &patch, CellStyle::Fields removed = {});

    int size() const { return int(m_styles.size()); }
    void clear();

private:
    struct Triple {
        quint32 col;
        quint32 row;
        quint32 cell;
        bool operator==(const Triple &) const = default;
        friend size_t qHash(const Triple &t, size_t seed) { return qHashMulti(seed, t.col, t.row, t.cell); }
    };

    quint32 lookupOrAdd(const CellStyle &style) const;

    // mutable: resolving a look is a read of the table; the cache only grows with it.
    mutable std::deque<CellStyle> m_styles;
    mutable QHash<CellStyle, quint32> m_ids;
    mutable QHash<Triple, quint32> m_resolved;
};
