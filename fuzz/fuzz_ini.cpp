// Any bytes as an INI file, read for a section and key taken from the file itself.
#include "inifile.h"

#include <QFile>
#include <QTemporaryFile>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QTemporaryFile file;
    if (!file.isOpen() && !file.open())
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    file.resize(0);
    file.seek(0);
    file.write(bytes);
    file.flush();
    // The first line names the section and key asked for, so the fuzzer can reach matches.
    const QList<QByteArray> first = bytes.left(bytes.indexOf('\n')).split('|');
    const QString section = QString::fromUtf8(first.value(0));
    const QString key = QString::fromUtf8(first.value(1));
    ReadIniString(file.fileName(), section, key, QStringLiteral("default"));
    readPrivateProfileString(file.fileName(), section, key, QString(), 1 + int(size % 300));
    return 0;
}
