// Any text as a property string: split into keys and values and looked up by key.
#include "propertystring.h"

#include <QString>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const auto &[key, value] : splitPropertyString(text))
        propertyValue(text, key);
    propertyValue(text, QStringLiteral("AcctDB"));
    return 0;
}
