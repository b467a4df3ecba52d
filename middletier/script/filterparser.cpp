#include "filterparser.h"

#include "filtererror.h"
#include "literals.h"
#include "scripttexts.h"
#include "sqltokenizer.h"
#include "tokencursor.h"

#include <QStringList>

namespace script {

namespace {

bool isNumber(const Token &token, QLatin1String text)
{
    return token.kind == Token::Kind::Number && token.text == text;
}

// The dates the dialogs may write: their own "yyyy-mm-dd", the typed "yyyy/m/d" and the
// "mmddyyyy" of the date cells.
std::optional<QDate> filterDate(const QString &text)
{
    if (const std::optional<QDate> iso = literals::isoDate(text))
        return iso;
    for (const QString &format : {QStringLiteral("yyyy/M/d"), QStringLiteral("MMddyyyy")}) {
        const QDate date = QDate::fromString(text, format);
        if (date.isValid())
            return date;
    }
    return std::nullopt;
}

class FilterReader
{
public:
    FilterReader(const QString &text, const FilterFields &fields, const SqlDialect &dialect)
        : m_cursor(tokenize(text)), m_fields(fields), m_dialect(dialect)
    {
    }

    BoundSql where()
    {
        m_cursor.acceptKeyword(QLatin1String("where"));
        // The filter dialog's " where 1=1 and " head, with or without conditions after it.
        if (isNumber(m_cursor.peek(), QLatin1String("1")) && m_cursor.isPunct(QLatin1String("="), 1)
            && isNumber(m_cursor.peek(2), QLatin1String("1"))) {
            m_cursor.next();
            m_cursor.next();
            m_cursor.next();
            if (!m_cursor.atEnd())
                m_cursor.expectKeyword(QLatin1String("and"));
        }
        if (m_cursor.atEnd())
            return {};
        const QString condition = disjunction();
        // A connective after the last condition joins nothing.
        if ((m_cursor.isKeyword(QLatin1String("and")) || m_cursor.isKeyword(QLatin1String("or")))
            && m_cursor.peek(1).kind == Token::Kind::End)
            m_cursor.next();
        if (!m_cursor.atEnd())
            m_cursor.failExpected(texts::connectives);
        return {QLatin1Char('(') + condition + QLatin1Char(')'), m_values};
    }

    QString orderBy()
    {
        if (m_cursor.atEnd())
            return {};
        QStringList items;
        do {
            TokenCursor::checkListLength(items.size());
            const FilterField &field = fieldRef(texts::unknownSortField);
            QString direction = QStringLiteral("ASC");
            if (m_cursor.acceptKeyword(QLatin1String("desc")))
                direction = QStringLiteral("DESC");
            else
                m_cursor.acceptKeyword(QLatin1String("asc"));
            items.append(field.column + QLatin1Char(' ') + direction);
        } while (m_cursor.acceptPunct(QLatin1String(",")));
        if (!m_cursor.atEnd())
            m_cursor.failExpected(texts::comma);
        return items.join(QLatin1String(", "));
    }

private:
    // A connective that something follows (the dialog may leave one dangling at the end).
    bool acceptJoining(QLatin1String keyword)
    {
        if (!m_cursor.isKeyword(keyword) || m_cursor.peek(1).kind == Token::Kind::End)
            return false;
        m_cursor.next();
        return true;
    }

    QString disjunction()
    {
        QStringList parts{conjunction()};
        while (acceptJoining(QLatin1String("or"))) {
            TokenCursor::checkListLength(parts.size());
            parts.append(conjunction());
        }
        return parts.join(QLatin1String(" OR "));
    }

    QString conjunction()
    {
        QStringList parts{factor()};
        while (acceptJoining(QLatin1String("and"))) {
            TokenCursor::checkListLength(parts.size());
            parts.append(factor());
        }
        return parts.join(QLatin1String(" AND "));
    }

    QString factor()
    {
        if (m_cursor.acceptPunct(QLatin1String("("))) {
            const TokenCursor::Nesting level(m_cursor);
            const QString inner = disjunction();
            m_cursor.expectPunct(QLatin1String(")"));
            return QLatin1Char('(') + inner + QLatin1Char(')');
        }
        const FilterField &field = fieldRef(texts::unknownField);
        const bool negated = m_cursor.acceptKeyword(QLatin1String("not"));
        if (negated || m_cursor.isKeyword(QLatin1String("like"))) {
            m_cursor.expectKeyword(QLatin1String("like"));
            return like(field, negated);
        }
        static const QStringList operators{QStringLiteral("="), QStringLiteral("<>"), QStringLiteral("<"),
                                           QStringLiteral("<="), QStringLiteral(">"), QStringLiteral(">=")};
        const Token &op = m_cursor.peek();
        if (op.kind != Token::Kind::Punct || !operators.contains(op.text))
            m_cursor.failExpected(texts::comparison);
        const QString opText = m_cursor.next().text;
        m_values.append(value(field));
        return field.column + QLatin1Char(' ') + opText + QLatin1String(" ?");
    }

    QString like(const FilterField &field, bool negated)
    {
        const Token &pattern = m_cursor.peek();
        if (pattern.kind != Token::Kind::String)
            TokenCursor::fail(texts::likeNeedsText);
        m_values.append(pattern.text);
        m_cursor.next();
        const QString column = field.kind == FieldKind::Text ? field.column : m_dialect.asText(field.column);
        return column + QLatin1Char(' ') + m_dialect.likeOperator(negated) + QLatin1String(" ?");
    }

    QVariant value(const FilterField &field)
    {
        const Token &token = m_cursor.peek();
        if (token.kind != Token::Kind::String && token.kind != Token::Kind::Number)
            m_cursor.failExpected(texts::literal);
        QVariant result;
        switch (field.kind) {
        case FieldKind::Text:
            result = token.text;
            break;
        case FieldKind::Number:
            if (const std::optional<QVariant> number = literals::numberValue(token))
                result = *number;
            else
                TokenCursor::fail(texts::fieldNeedsNumber.arg(field.name, literals::written(token)));
            break;
        case FieldKind::Date:
            if (const std::optional<QDate> date = token.kind == Token::Kind::String ? filterDate(token.text.trimmed())
                                                                                    : std::nullopt)
                result = date->toString(Qt::ISODate);
            else
                TokenCursor::fail(texts::fieldNeedsDate.arg(field.name, literals::written(token)));
            break;
        }
        m_cursor.next();
        return result;
    }

    // A declared field name, possibly qualified by its table alias.
    const FilterField &fieldRef(const QString &unknownMessage)
    {
        QString name = m_cursor.expectName(texts::fieldName).text;
        while (m_cursor.isPunct(QLatin1String(".")) && m_cursor.peek(1).kind == Token::Kind::Name) {
            m_cursor.next();
            name += QLatin1Char('.') + m_cursor.next().text;
        }
        // The dialogs may qualify a field by the alias of its table in their own queries
        // ("t1.FModel"); the alias is theirs, the field is the declared name behind it.
        const FilterField *field = m_fields.find(name);
        if (!field && name.contains(QLatin1Char('.')))
            field = m_fields.find(name.section(QLatin1Char('.'), -1));
        if (!field)
            TokenCursor::fail(unknownMessage.arg(name));
        return *field;
    }

    TokenCursor m_cursor;
    const FilterFields &m_fields;
    const SqlDialect &m_dialect;
    QVariantList m_values;
};

} // namespace

FilterParser::FilterParser(FilterFields fields, const SqlDialect &dialect)
    : m_fields(std::move(fields))
    , m_dialect(dialect)
{
}

BoundSql FilterParser::where(const QString &filter) const
{
    try {
        return FilterReader(filter, m_fields, m_dialect).where();
    } catch (const TokenCursor::Failure &failure) {
        throw FilterError(failure.message);
    }
}

QString FilterParser::orderBy(const QString &sort) const
{
    try {
        return FilterReader(sort, m_fields, m_dialect).orderBy();
    } catch (const TokenCursor::Failure &failure) {
        throw FilterError(failure.message);
    }
}

} // namespace script
