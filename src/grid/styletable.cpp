#include "grid/styletable.h"

StyleTable::StyleTable()
{
    clear();
}

quint32 StyleTable::intern(const CellStyle &style)
{
    return lookupOrAdd(style);
}

quint32 StyleTable::lookupOrAdd(const CellStyle &style) const
{
    const auto found = m_ids.constFind(style);
    if (found != m_ids.cend())
        return found.value();
    const auto id = quint32(m_styles.size());
    m_styles.push_back(style);
    m_ids.insert(style, id);
    return id;
}

const CellStyle &StyleTable::resolved(quint32 colStyle, quint32 rowStyle, quint32 cellStyle) const
{
    const Triple key{colStyle, rowStyle, cellStyle};
    const auto found = m_resolved.constFind(key);
    if (found != m_resolved.cend())
        return m_styles[found.value()];
    const CellStyle merged = m_styles[colStyle].overlaid(m_styles[rowStyle]).overlaid(m_styles[cellStyle]);
    const quint32 id = lookupOrAdd(merged);
    m_resolved.insert(key, id);
    return m_styles[id];
}

quint32 StyleTable::patched(quint32 id, const CellStyle &patch, CellStyle::Fields removed)
{
    return intern(m_styles[id].without(removed).overlaid(patch));
}

void StyleTable::clear()
{
    m_styles.clear();
    m_ids.clear();
    m_resolved.clear();
    m_styles.emplace_back();
    m_ids.insert(m_styles.front(), NoStyle);
}
