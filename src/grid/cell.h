#pragma once

#include <QDate>
#include <QString>
#include <QVariant>

// What one cell holds. Kept small because a grid of 50,000 rows by 36 columns holds 1.8 million
// of them: the text only where text was set, the number as a double, a date as its day number.
struct Cell
{
    enum class Kind : quint8 { Empty, Number, Date, Text };

    QString text;      // Text only
    double number = 0; // Number: the value; Date: the Julian day
    quint32 style = 0; // the cell's own style in the grid's style table, 0 for none
    Kind kind = Kind::Empty;

    static Cell fromNumber(double value) { return {QString(), value, 0, Kind::Number}; }
    static Cell fromDate(QDate date)
    {
        return date.isValid() ? Cell{QString(), double(date.toJulianDay()), 0, Kind::Date} : Cell{};
    }
    static Cell fromText(const QString &text)
    {
        return text.isEmpty() ? Cell{} : Cell{text, 0, 0, Kind::Text};
    }

    QDate date() const { return kind == Kind::Date ? QDate::fromJulianDay(qint64(number)) : QDate(); }

    // Invalid for an empty cell, else a double, a QDate or a QString.
    QVariant toVariant() const
    {
        switch (kind) {
        case Kind::Number:
            return number;
        case Kind::Date:
            return date();
        case Kind::Text:
            return text;
        case Kind::Empty:
            break;
        }
        return {};
    }

    bool sameContent(const Cell &other) const
    {
        return kind == other.kind && number == other.number && text == other.text;
    }
};
