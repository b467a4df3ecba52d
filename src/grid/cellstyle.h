#pragma once

#include "grid/gridtypes.h"

#include <QColor>
#include <QHashFunctions>
#include <QStringList>

#include <limits>

// The look and rules of a cell: type, lock, colours, decimals, limits, alignment, thousands
// separator and drop-down list. A style only carries the fields that were set, so the same class
// serves as a column default, a row default, a cell's own style, and as a patch laid over one of
// them. Unset fields read as the defaults of a plain text cell.
class CellStyle
{
public:
    enum Field : quint16 {
        Type = 0x001,
        Locked = 0x002,
        BackColor = 0x004,
        ButtonColor = 0x008,
        Decimals = 0x010,
        Limits = 0x020,
        Alignment = 0x040,
        Separator = 0x080,
        ComboList = 0x100,
    };
    Q_DECLARE_FLAGS(Fields, Field)
    static constexpr Fields AllFields = Fields(0x1ff);

    // Setters return the style so that a patch reads as one expression:
    // CellStyle().setLocked(true).setBackColor(lockColor)
    CellStyle &setType(Grid::CellType type);
    CellStyle &setLocked(bool locked);
    CellStyle &setBackColor(const QColor &color);
    CellStyle &setButtonColor(const QColor &color);
    CellStyle &setDecimals(int decimals);
    CellStyle &setLimits(double minimum, double maximum);
    CellStyle &setAlignment(Qt::Alignment alignment);
    CellStyle &setSeparator(bool separator);
    CellStyle &setComboList(const QStringList &items);

    Fields fields() const { return m_fields; }
    bool has(Field field) const { return m_fields.testFlag(field); }
    bool isEmpty() const { return m_fields == Fields(); }

    Grid::CellType type() const { return m_type; }
    bool locked() const { return m_locked; }
    QColor backColor() const { return m_backColor; }
    QColor buttonColor() const { return m_buttonColor; }
    int decimals() const { return m_decimals; } // -1: as many as the value has
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    Qt::Alignment alignment() const; // numbers right, dates centred, text left unless set
    bool separator() const { return m_separator; }
    QStringList comboList() const { return m_comboList; }

    // This style with every field that `over` sets taken from `over`.
    CellStyle overlaid(const CellStyle &over) const;
    // This style with the given fields back at their defaults.
    CellStyle without(Fields fields) const;

    bool operator==(const CellStyle &other) const = default;

private:
    Fields m_fields;
    Grid::CellType m_type = Grid::CellType::Text;
    bool m_locked = false;
    bool m_separator = false;
    qint8 m_decimals = -1;
    QColor m_backColor;
    QColor m_buttonColor;
    double m_minimum = -std::numeric_limits<double>::infinity();
    double m_maximum = std::numeric_limits<double>::infinity();
    Qt::Alignment m_alignment;
    QStringList m_comboList;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CellStyle::Fields)

size_t qHash(const CellStyle &style, size_t seed = 0);
