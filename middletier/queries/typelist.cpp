#include "typelist.h"

#include "mterrors.h"

namespace {

[[noreturn]] void refuse(const QString &text)
{
    throw LumoError(MtError::BadTypeList, MtError::BadTypeListText.arg(text), QStringLiteral("FetchStocks"));
}

} // namespace

QList<int> parseTypeList(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return {};
    if (!trimmed.startsWith(QLatin1Char('(')) || !trimmed.endsWith(QLatin1Char(')')))
        refuse(text);
    QList<int> types;
    const QStringList pieces = trimmed.mid(1, trimmed.size() - 2).split(QLatin1Char(','));
    for (const QString &piece : pieces) {
        const QString number = piece.trimmed();
        bool allDigits = !number.isEmpty();
        for (const QChar c : number)
            allDigits = allDigits && c >= QLatin1Char('0') && c <= QLatin1Char('9');
        bool ok = false;
        const int type = number.toInt(&ok);
        if (!allDigits || !ok)
            refuse(text);
        types.append(type);
    }
    return types;
}
