#include "sqltokenizer.h"

#include "scripttexts.h"

#include <QHash>

namespace script {

namespace {

// How much of an unterminated literal an error quotes.
constexpr qsizetype quotedLiteral = 20;
constexpr qsizetype charsPerToken = 3;

constexpr QStringView SinglePuncts = u"(),.=<>";

// The one-character punctuation as static texts: half the tokens of a script are commas and
// parentheses, and these cost no allocation.
const QString &singlePunctText(qsizetype index)
{
    static const QString texts[] = {QStringLiteral("("), QStringLiteral(")"), QStringLiteral(","),
                                    QStringLiteral("."), QStringLiteral("="), QStringLiteral("<"),
                                    QStringLiteral(">")};
    static_assert(std::size(texts) == SinglePuncts.size());
    return texts[index];
}

bool isNameStart(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'))
           || c == QLatin1Char('_');
}

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isNamePart(QChar c)
{
    return isNameStart(c) || isDigit(c);
}

bool isSeparator(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\r') || c == QLatin1Char('\n');
}

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control;
}

// A control character as the user can read it in a message: "U+0000".
QString codeOf(QChar c)
{
    return QStringLiteral("U+%1").arg(c.unicode(), 4, 16, QLatin1Char('0')).toUpper();
}

class Scanner
{
public:
    // A script of the controls averages a token every few characters; reserving for that keeps
    // a ten-thousand-statement script from growing the list again and again.
    explicit Scanner(const QString &text) : m_text(text) { m_tokens.reserve(text.size() / charsPerToken + 1); }

    QList<Token> run()
    {
        while (m_pos < m_text.size()) {
            if (isSeparator(m_text.at(m_pos))) {
                ++m_pos;
                continue;
            }
            if (!scanOne())
                break;
        }
        m_tokens.append({Token::Kind::End, {}, m_text.size(), m_text.size()});
        return m_tokens;
    }

private:
    QChar at(qsizetype pos) const { return pos < m_text.size() ? m_text.at(pos) : QChar(); }

    void push(Token::Kind kind, const QString &text, qsizetype begin)
    {
        m_tokens.append({kind, text, begin, m_pos});
    }

    // Names, numbers and punctuation repeat from statement to statement (the same column list
    // ten thousand times), so each distinct text is allocated once and shared after that.
    void pushShared(Token::Kind kind, qsizetype begin)
    {
        const QString probe = QString::fromRawData(m_text.constData() + begin, m_pos - begin);
        auto known = m_shared.constFind(probe);
        if (known == m_shared.constEnd()) {
            const QString text(m_text.constData() + begin, m_pos - begin);
            known = m_shared.insert(text, text);
        }
        push(kind, known.value(), begin);
    }

    bool fail(const QString &message, qsizetype begin)
    {
        m_pos = begin + 1;
        push(Token::Kind::Error, message, begin);
        return false;
    }

    bool scanOne()
    {
        const qsizetype begin = m_pos;
        const QChar c = m_text.at(m_pos);
        const QChar next = at(m_pos + 1);
        if (isNameStart(c)) {
            while (m_pos < m_text.size() && isNamePart(m_text.at(m_pos)))
                ++m_pos;
            pushShared(Token::Kind::Name, begin);
            return true;
        }
        if ((c == QLatin1Char('-') && next == QLatin1Char('-')) || (c == QLatin1Char('/') && next == QLatin1Char('*')))
            return fail(texts::commentRefused, begin);
        if (isDigit(c) || (c == QLatin1Char('.') && isDigit(next))
            || (c == QLatin1Char('-') && (isDigit(next) || (next == QLatin1Char('.') && isDigit(at(m_pos + 2))))))
            return scanNumber();
        if (c == QLatin1Char('\''))
            return scanString();
        if (c == QLatin1Char(';'))
            return fail(texts::semicolonRefused, begin);
        if (c == QLatin1Char('<') && (next == QLatin1Char('=') || next == QLatin1Char('>'))) {
            m_pos += 2;
            pushShared(Token::Kind::Punct, begin);
            return true;
        }
        if (c == QLatin1Char('>') && next == QLatin1Char('=')) {
            m_pos += 2;
            pushShared(Token::Kind::Punct, begin);
            return true;
        }
        if (const qsizetype punct = SinglePuncts.indexOf(c); punct >= 0) {
            ++m_pos;
            push(Token::Kind::Punct, singlePunctText(punct), begin);
            return true;
        }
        return fail(isControl(c) ? texts::controlCharacter.arg(codeOf(c)) : texts::badCharacter.arg(c), begin);
    }

    bool scanNumber()
    {
        const qsizetype begin = m_pos;
        if (m_text.at(m_pos) == QLatin1Char('-'))
            ++m_pos;
        while (isDigit(at(m_pos)))
            ++m_pos;
        if (at(m_pos) == QLatin1Char('.')) {
            ++m_pos;
            while (isDigit(at(m_pos)))
                ++m_pos;
        }
        // "1e5", "12abc" or "1.2.3" are not plain decimal text.
        if (isNamePart(at(m_pos)) || at(m_pos) == QLatin1Char('.')) {
            while (isNamePart(at(m_pos)) || at(m_pos) == QLatin1Char('.') || at(m_pos) == QLatin1Char('-'))
                ++m_pos;
            const QString written = m_text.mid(begin, m_pos - begin);
            return fail(texts::badNumber.arg(written), begin);
        }
        pushShared(Token::Kind::Number, begin);
        return true;
    }

    bool scanString()
    {
        const qsizetype begin = m_pos;
        // Not a null QString even when empty: an empty literal is bound as '' and never as NULL.
        QString value(0, QChar());
        ++m_pos;
        for (;;) {
            if (m_pos >= m_text.size())
                return fail(texts::unterminatedString.arg(m_text.mid(begin, quotedLiteral)), begin);
            const QChar c = m_text.at(m_pos++);
            // PostgreSQL refuses a NUL in a text with a driver error, and no text the controls
            // write holds a line end or another control character.
            if (isControl(c))
                return fail(texts::controlCharacter.arg(codeOf(c)), begin);
            if (c != QLatin1Char('\'')) {
                value.append(c);
                continue;
            }
            if (at(m_pos) != QLatin1Char('\''))
                break;
            value.append(c);
            ++m_pos;
        }
        push(Token::Kind::String, value, begin);
        return true;
    }

    const QString &m_text;
    qsizetype m_pos = 0;
    QList<Token> m_tokens;
    QHash<QString, QString> m_shared;
};

} // namespace

QList<Token> tokenize(const QString &text)
{
    return Scanner(text).run();
}

} // namespace script
