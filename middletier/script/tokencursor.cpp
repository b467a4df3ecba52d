#include "tokencursor.h"

#include "scripttexts.h"

namespace script {

TokenCursor::Nesting::Nesting(TokenCursor &cursor)
    : m_cursor(cursor)
{
    if (m_cursor.m_nesting == maxNesting)
        fail(texts::nestingTooDeep.arg(maxNesting));
    ++m_cursor.m_nesting;
}

TokenCursor::Nesting::~Nesting()
{
    --m_cursor.m_nesting;
}

TokenCursor::TokenCursor(QList<Token> tokens)
    : m_tokens(std::move(tokens))
{
    if (m_tokens.isEmpty() || m_tokens.constLast().kind != Token::Kind::End)
        m_tokens.append(Token{});
}

const Token &TokenCursor::peek(qsizetype ahead) const
{
    // Nothing after an Error token means anything, so a look ahead stops there.
    for (qsizetype i = m_index; i < m_tokens.size(); ++i) {
        const Token &token = m_tokens.at(i);
        if (i == m_index + ahead || token.kind == Token::Kind::Error || token.kind == Token::Kind::End)
            return token;
    }
    return m_tokens.constLast();
}

const Token &TokenCursor::next()
{
    const Token &token = peek();
    if (token.kind == Token::Kind::Error)
        fail(token.text);
    if (token.kind != Token::Kind::End)
        ++m_index;
    return token;
}

bool TokenCursor::isKeyword(QLatin1String keyword, qsizetype ahead) const
{
    const Token &token = peek(ahead);
    return token.kind == Token::Kind::Name && token.text.compare(keyword, Qt::CaseInsensitive) == 0;
}

bool TokenCursor::acceptKeyword(QLatin1String keyword)
{
    if (!isKeyword(keyword))
        return false;
    next();
    return true;
}

void TokenCursor::expectKeyword(QLatin1String keyword)
{
    if (!acceptKeyword(keyword))
        failExpected(QString(keyword).toUpper());
}

bool TokenCursor::isPunct(QLatin1String punct, qsizetype ahead) const
{
    const Token &token = peek(ahead);
    return token.kind == Token::Kind::Punct && token.text == punct;
}

bool TokenCursor::acceptPunct(QLatin1String punct)
{
    if (!isPunct(punct))
        return false;
    next();
    return true;
}

void TokenCursor::expectPunct(QLatin1String punct)
{
    if (!acceptPunct(punct))
        failExpected(texts::quotedPunct.arg(punct));
}

const Token &TokenCursor::expectName(const QString &what)
{
    if (peek().kind != Token::Kind::Name)
        failExpected(what);
    return next();
}

void TokenCursor::checkListLength(qsizetype items)
{
    if (items >= maxListItems)
        fail(texts::listTooLong.arg(maxListItems));
}

void TokenCursor::failExpected(const QString &what) const
{
    const Token &token = peek();
    QString found;
    switch (token.kind) {
    case Token::Kind::Error:
        fail(token.text);
    case Token::Kind::End:
        found = texts::endOfText;
        break;
    case Token::Kind::String:
        found = QLatin1Char('\'') + token.text + QLatin1Char('\'');
        break;
    default:
        found = token.text;
        break;
    }
    fail(texts::expected.arg(found, what));
}

void TokenCursor::fail(const QString &message)
{
    throw Failure{message};
}

} // namespace script
