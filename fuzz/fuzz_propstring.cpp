// Any text as a property string: split into keys and values and looked up by key. And any
// key and value (the text cut at its first NUL) written as one entry: it either is refused or
// reads back as exactly that one key and value.
#include "lumoerror.h"
#include "propertystring.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const auto &[key, value] : splitPropertyString(text))
        propertyValue(text, key);
    propertyValue(text, QStringLiteral("AcctDB"));

    const qsizetype cut = text.indexOf(QChar(0));
    const QString key = cut < 0 ? QStringLiteral("AcctDB") : text.left(cut);
    const QString value = cut < 0 ? text : text.mid(cut + 1);
    QString entry;
    try {
        entry = propertyEntry(key, value);
    } catch (const LumoError &) {
        return 0;
    }
    const auto read = splitPropertyString(QStringLiteral("UserID=16;") + entry + QStringLiteral("Tail=1;"));
    if (read.size() != 3 || read.at(1).first != key || read.at(1).second != value)
        std::abort();
    return 0;
}
