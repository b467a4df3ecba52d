#include "readstatement.h"

#include "literals.h"
#include "scripterror.h"
#include "scripttexts.h"
#include "sqltokenizer.h"

#include <optional>

namespace script {

namespace {

constexpr qsizetype quotedLength = 60;

// One accepted read statement: the library's text around its integer holes, and the bound SQL
// in catalogue spelling with "%1" for the backend's isnull.
struct ReadShape
{
    QStringList pieces;
    QString boundSql;
};

const QList<ReadShape> &shapes()
{
    static const QList<ReadShape> all{
        // The amount scale of a currency.
        {{QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID="), QString()},
         QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID = ?")},
        // The coefficients of an item's unit and secondary unit; 0 for a unit outside its group.
        {{QStringLiteral("select isnull((SELECT t2.FCoefficient AS FCoefficient"
                         " FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID"
                         " WHERE t1.FItemID = "),
          QStringLiteral(" AND t2.FMeasureUnitID="),
          QStringLiteral("),0), isnull((SELECT ISNULL(t2.FCoefficient,0) AS FCoefficient"
                         " FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID=t2.FUnitGroupID"
                         " WHERE t1.FItemID = "),
          QStringLiteral(" AND t2.fmeasureunitid= "),
          QStringLiteral("),0)")},
         QStringLiteral("SELECT %1((SELECT t2.FCoefficient"
                        " FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID = t2.FUnitGroupID"
                        " WHERE t1.FItemID = ? AND t2.FMeasureUnitID = ?), 0),"
                        " %1((SELECT %1(t2.FCoefficient, 0)"
                        " FROM t_ICItem t1 INNER JOIN t_MeasureUnit t2 ON t1.FUnitGroupID = t2.FUnitGroupID"
                        " WHERE t1.FItemID = ? AND t2.FMeasureUnitID = ?), 0)")},
    };
    return all;
}

// The shape's tokens; an empty optional stands for an integer hole.
QList<std::optional<Token>> pattern(const ReadShape &shape)
{
    QList<std::optional<Token>> result;
    for (qsizetype i = 0; i < shape.pieces.size(); ++i) {
        if (i > 0)
            result.append(std::nullopt);
        for (const Token &token : tokenize(shape.pieces.at(i))) {
            if (token.kind != Token::Kind::End)
                result.append(token);
        }
    }
    return result;
}

bool sameToken(const Token &expected, const Token &actual)
{
    if (expected.kind != actual.kind)
        return false;
    const Qt::CaseSensitivity cs = expected.kind == Token::Kind::Name ? Qt::CaseInsensitive : Qt::CaseSensitive;
    return expected.text.compare(actual.text, cs) == 0;
}

std::optional<QVariantList> match(const ReadShape &shape, const QList<Token> &tokens)
{
    const QList<std::optional<Token>> expected = pattern(shape);
    // The statement must end right after the shape: one more token than the pattern (End).
    if (tokens.size() != expected.size() + 1 || tokens.constLast().kind != Token::Kind::End)
        return std::nullopt;
    QVariantList values;
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const Token &actual = tokens.at(i);
        if (!expected.at(i)) {
            const std::optional<qlonglong> id = actual.kind == Token::Kind::Number ? literals::integerValue(actual)
                                                                                  : std::nullopt;
            if (!id)
                return std::nullopt;
            values.append(*id);
        } else if (!sameToken(*expected.at(i), actual)) {
            return std::nullopt;
        }
    }
    return values;
}

} // namespace

ReadStatement checkRead(const QString &sql, const SqlDialect &dialect)
{
    const QList<Token> tokens = tokenize(sql);
    for (const ReadShape &shape : shapes()) {
        if (std::optional<QVariantList> values = match(shape, tokens)) {
            QString sql = shape.boundSql;
            sql.replace(QLatin1String("%1"), dialect.nullReplacement());
            // The text holds no literal, so folding all of it folds just its names.
            return {dialect.identifier(sql), *values};
        }
    }
    throw ScriptError(1, sql.simplified().left(quotedLength), texts::readRefused);
}

} // namespace script
