#include "propertystring.h"

#include "lumoerror.h"

namespace {

const QString Source = QStringLiteral("PropertyString");
const QString BadKey = QStringLiteral("属性名称“%1”不能为空，也不能含有“;”“=”“{”“}”或首尾空白");
const QString BlankEnds = QStringLiteral("属性%1的值“%2”首尾有空白，无法写入属性串");

const QChar Open = QLatin1Char('{');
const QChar Close = QLatin1Char('}');

bool holdsSyntax(const QString &text)
{
    return text.contains(QLatin1Char(';')) || text.contains(QLatin1Char('=')) || text.contains(Open)
           || text.contains(Close);
}

bool hasBlankEnds(const QString &text)
{
    return !text.isEmpty() && (text.front().isSpace() || text.back().isSpace());
}

// The braced value after its "{": up to the first single "}", with "}}" read as "}".
QString takeBraced(QString &remainder)
{
    QString value;
    qsizetype i = 0;
    for (; i < remainder.size(); ++i) {
        if (remainder.at(i) == Close) {
            if (i + 1 < remainder.size() && remainder.at(i + 1) == Close) {
                ++i;
            } else {
                ++i;
                break;
            }
        }
        value.append(remainder.at(i));
    }
    remainder.remove(0, i);
    return value;
}

} // namespace

QString TakeToken(QString &remainder, const QString &separator)
{
    if (remainder.isEmpty())
        return {};
    const qsizetype at = remainder.indexOf(separator);
    if (at < 0) {
        QString piece = remainder;
        remainder.clear();
        return piece;
    }
    QString piece = remainder.left(at);
    remainder = remainder.mid(at + separator.size());
    return piece;
}

QString PropKey(QString &remainder)
{
    // Empty entries (";;", a lone ";") hold no key and are passed over.
    qsizetype start = 0;
    while (start < remainder.size() && (remainder.at(start) == QLatin1Char(';') || remainder.at(start).isSpace()))
        ++start;
    remainder.remove(0, start);
    return TakeToken(remainder, QStringLiteral("=")).trimmed();
}

QString PropValue(QString &remainder)
{
    remainder = remainder.trimmed();
    QString value;
    if (remainder.startsWith(QLatin1Char('{'))) {
        remainder.remove(0, 1);
        value = takeBraced(remainder);
        TakeToken(remainder, QStringLiteral(";"));
    } else {
        value = TakeToken(remainder, QStringLiteral(";"));
    }
    return value.trimmed();
}

QList<QPair<QString, QString>> splitPropertyString(const QString &text)
{
    QList<QPair<QString, QString>> entries;
    QString remainder = text;
    for (;;) {
        const QString key = PropKey(remainder);
        if (key.isEmpty())
            break;
        entries.append({key, PropValue(remainder)});
    }
    return entries;
}

QString propertyValue(const QString &propsString, const QString &key)
{
    for (const auto &entry : splitPropertyString(propsString)) {
        if (entry.first.compare(key, Qt::CaseInsensitive) == 0)
            return entry.second;
    }
    return {};
}

QString propertyEntry(const QString &key, const QString &value)
{
    if (key.isEmpty() || holdsSyntax(key) || hasBlankEnds(key))
        throw LumoError(LumoError::InvalidArgument, BadKey.arg(key), Source);
    if (hasBlankEnds(value))
        throw LumoError(LumoError::InvalidArgument, BlankEnds.arg(key, value), Source);
    if (!holdsSyntax(value))
        return key + QLatin1Char('=') + value + QLatin1Char(';');
    QString braced = value;
    braced.replace(Close, QStringLiteral("}}"));
    return key + QLatin1Char('=') + Open + braced + Close + QLatin1Char(';');
}
