#include "grid/celltext.h"

#include "grid/numberformat.h"

#include <array>

namespace CellText {
namespace {

// Forms a person may type a date in; the first is the one the grid shows.
const std::array<QString, 4> &dateForms()
{
    static const std::array<QString, 4> forms{QString::fromLatin1(Grid::DateFormat),
                                              QStringLiteral("yyyy-M-d"), QStringLiteral("yyyy/M/d"),
                                              QStringLiteral("yyyyMMdd")};
    return forms;
}

bool isNumeric(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

// What an input amounts to as typed text: a number in plain notation (never "1e+12"), a date in
// the grid's form.
QString inputText(const QVariant &input)
{
    if (isNumeric(input))
        return NumberFormat::plain(input.toDouble());
    if (input.typeId() == QMetaType::QDate || input.typeId() == QMetaType::QDateTime)
        return input.toDate().toString(QString::fromLatin1(Grid::DateFormat));
    return input.toString();
}

} // namespace

QDate parseDate(const QString &text)
{
    const QString trimmed = text.trimmed();
    for (const QString &form : dateForms()) {
        const QDate date = QDate::fromString(trimmed, form);
        if (date.isValid())
            return date;
    }
    return {};
}

QString display(const Cell &cell, const CellStyle &style)
{
    switch (cell.kind) {
    case Cell::Kind::Number:
        if (style.type() == Grid::CellType::Number)
            return NumberFormat::format(cell.number, style.decimals(), style.separator());
        return NumberFormat::plain(cell.number);
    case Cell::Kind::Date:
        return cell.date().toString(QString::fromLatin1(Grid::DateFormat));
    case Cell::Kind::Text:
        return cell.text;
    case Cell::Kind::Empty:
        break;
    }
    return {};
}

QString edit(const Cell &cell)
{
    switch (cell.kind) {
    case Cell::Kind::Number:
        return NumberFormat::plain(cell.number);
    case Cell::Kind::Date:
        return cell.date().toString(QString::fromLatin1(Grid::DateFormat));
    case Cell::Kind::Text:
        return cell.text;
    case Cell::Kind::Empty:
        break;
    }
    return {};
}

Cell fromProgram(const QString &text, const CellStyle &style)
{
    if (text.isEmpty())
        return {};
    if (style.type() == Grid::CellType::Number) {
        bool ok = false;
        const double value = NumberFormat::parse(text, &ok);
        if (ok)
            return Cell::fromNumber(value);
    } else if (style.type() == Grid::CellType::Date) {
        const QDate date = parseDate(text);
        if (date.isValid())
            return Cell::fromDate(date);
    }
    return Cell::fromText(text);
}

Cell fromVariant(const QVariant &value, const CellStyle &style)
{
    if (isNumeric(value))
        return Cell::fromNumber(value.toDouble());
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return {};
    case QMetaType::QDate:
        return Cell::fromDate(value.toDate());
    case QMetaType::QDateTime:
        return Cell::fromDate(value.toDateTime().date());
    default:
        return fromProgram(value.toString(), style);
    }
}

Grid::EditResult fromInput(const QVariant &input, const CellStyle &style, Cell *out)
{
    const QString text = inputText(input);
    if (text.trimmed().isEmpty()) {
        *out = Cell();
        return Grid::EditResult::Accepted;
    }

    switch (style.type()) {
    case Grid::CellType::Number: {
        bool ok = false;
        const double value = NumberFormat::parse(text, &ok);
        if (!ok)
            return Grid::EditResult::Invalid;
        if (value < style.minimum() || value > style.maximum())
            return Grid::EditResult::OutOfRange;
        *out = Cell::fromNumber(value);
        return Grid::EditResult::Accepted;
    }
    case Grid::CellType::Date: {
        const QDate date = parseDate(text);
        if (!date.isValid())
            return Grid::EditResult::Invalid;
        *out = Cell::fromDate(date);
        return Grid::EditResult::Accepted;
    }
    case Grid::CellType::List:
        if (!style.comboList().contains(text))
            return Grid::EditResult::Invalid;
        *out = Cell::fromText(text);
        return Grid::EditResult::Accepted;
    case Grid::CellType::Text:
        *out = Cell::fromText(text);
        return Grid::EditResult::Accepted;
    case Grid::CellType::Button:
        break;
    }
    return Grid::EditResult::NotEditable;
}

} // namespace CellText
