#include "propertystring.h"

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
        value = TakeToken(remainder, QStringLiteral("}"));
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
