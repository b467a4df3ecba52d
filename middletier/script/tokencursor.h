#pragma once

#include "token.h"

#include <QList>

namespace script {

// Reads a token list for the recursive-descent parsers of statements, read statements and
// filters. A parser that meets something it does not accept throws TokenCursor::Failure with a
// reason; the caller adds what the reason is about (the statement, the filter).
class TokenCursor
{
public:
    struct Failure
    {
        QString message;
    };

    // Bounds on what a text may hold. The library nests a few levels and lists a few dozen items;
    // without a bound a hostile text exhausts the stack (the parsers descend once per
    // parenthesis) or takes minutes to prepare (a database prepares long IN lists in quadratic time).
    static constexpr int maxNesting = 64;
    static constexpr qsizetype maxListItems = 1000;

    // One level of parentheses, held while the parser is inside them; fails past maxNesting.
    class Nesting
    {
    public:
        explicit Nesting(TokenCursor &cursor);
        ~Nesting();
        Nesting(const Nesting &) = delete;
        Nesting &operator=(const Nesting &) = delete;

    private:
        TokenCursor &m_cursor;
    };

    explicit TokenCursor(QList<Token> tokens);

    // The token `ahead` places on, or the Error or End token before it. An Error token matches
    // no keyword or punctuation; reading it with next() or expecting something else there fails
    // with its reason.
    const Token &peek(qsizetype ahead = 0) const;
    const Token &next();
    bool atEnd() const { return peek().kind == Token::Kind::End; }
    // Index of the token that peek() reads next.
    qsizetype index() const { return m_index; }

    bool isKeyword(QLatin1String keyword, qsizetype ahead = 0) const;
    bool acceptKeyword(QLatin1String keyword);
    void expectKeyword(QLatin1String keyword);

    bool isPunct(QLatin1String punct, qsizetype ahead = 0) const;
    bool acceptPunct(QLatin1String punct);
    void expectPunct(QLatin1String punct);

    // A name token (what says what was wanted, for the error).
    const Token &expectName(const QString &what);

    // Fails once a list being read has reached maxListItems and another item follows.
    static void checkListLength(qsizetype items);

    [[noreturn]] void failExpected(const QString &what) const;
    [[noreturn]] static void fail(const QString &message);

private:
    QList<Token> m_tokens;
    qsizetype m_index = 0;
    int m_nesting = 0;
};

} // namespace script
