#include "grid/cellstyle.h"

namespace {
constexpr int MaxDecimals = 15; // a double carries no more significant decimals
}

CellStyle &CellStyle::setType(Grid::CellType type)
{
    m_type = type;
    m_fields |= Type;
    return *this;
}

CellStyle &CellStyle::setLocked(bool locked)
{
    m_locked = locked;
    m_fields |= Locked;
    return *this;
}

CellStyle &CellStyle::setBackColor(const QColor &color)
{
    m_backColor = color;
    m_fields |= BackColor;
    return *this;
}

CellStyle &CellStyle::setButtonColor(const QColor &color)
{
    m_buttonColor = color;
    m_fields |= ButtonColor;
    return *this;
}

CellStyle &CellStyle::setDecimals(int decimals)
{
    m_decimals = qint8(qBound(-1, decimals, MaxDecimals));
    m_fields |= Decimals;
    return *this;
}

CellStyle &CellStyle::setLimits(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
    m_fields |= Limits;
    return *this;
}

CellStyle &CellStyle::setAlignment(Qt::Alignment alignment)
{
    m_alignment = alignment;
    m_fields |= Alignment;
    return *this;
}

CellStyle &CellStyle::setSeparator(bool separator)
{
    m_separator = separator;
    m_fields |= Separator;
    return *this;
}

CellStyle &CellStyle::setComboList(const QStringList &items)
{
    m_comboList = items;
    m_fields |= ComboList;
    return *this;
}

Qt::Alignment CellStyle::alignment() const
{
    if (has(Alignment))
        return m_alignment;
    switch (m_type) {
    case Grid::CellType::Number:
        return Qt::AlignRight | Qt::AlignVCenter;
    case Grid::CellType::Date:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    default:
        return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

CellStyle CellStyle::overlaid(const CellStyle &over) const
{
    CellStyle out = *this;
    if (over.has(Type))
        out.setType(over.m_type);
    if (over.has(Locked))
        out.setLocked(over.m_locked);
    if (over.has(BackColor))
        out.setBackColor(over.m_backColor);
    if (over.has(ButtonColor))
        out.setButtonColor(over.m_buttonColor);
    if (over.has(Decimals))
        out.setDecimals(over.m_decimals);
    if (over.has(Limits))
        out.setLimits(over.m_minimum, over.m_maximum);
    if (over.has(Alignment))
        out.setAlignment(over.m_alignment);
    if (over.has(Separator))
        out.setSeparator(over.m_separator);
    if (over.has(ComboList))
        out.setComboList(over.m_comboList);
    return out;
}

CellStyle CellStyle::without(Fields fields) const
{
    // Laying the kept fields over a default style leaves the removed ones at their default
    // values, which the defaulted operator== and qHash rely on.
    CellStyle kept = *this;
    kept.m_fields &= ~fields;
    return CellStyle().overlaid(kept);
}

size_t qHash(const CellStyle &style, size_t seed)
{
    return qHashMulti(seed, style.fields().toInt(), int(style.type()), style.locked(),
                      style.backColor().rgba(), style.buttonColor().rgba(), style.decimals(),
                      style.minimum(), style.maximum(), style.alignment().toInt(),
                      style.separator(), style.comboList());
}
