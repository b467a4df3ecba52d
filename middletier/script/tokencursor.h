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

    [[noreturn]] void failExpected(const QString &what) const;
    [[noreturn]] static void fail(const QString &message);

private:
    QList<Token> m_tokens;
    qsizetype m_index = 0;
};

} // namespace script
