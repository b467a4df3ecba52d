#include "inifile.h"

#include <QFile>
#include <QStringDecoder>

namespace {

constexpr int IniBufferSize = 255;

QString unquoted(QString value)
{
    value = value.trimmed();
    if (value.size() >= 2 && ((value.startsWith(QLatin1Char('"')) && value.endsWith(QLatin1Char('"')))
                              || (value.startsWith(QLatin1Char('\'')) && value.endsWith(QLatin1Char('\'')))))
        value = value.mid(1, value.size() - 2);
    return value;
}

// The file's text: UTF-8 when it decodes cleanly, otherwise the local 8-bit code page.
QString fileText(const QByteArray &bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8.decode(bytes);
    if (!utf8.hasError())
        return text;
    return QString::fromLocal8Bit(bytes);
}

} // namespace

QString readPrivateProfileString(const QString &file, const QString &section, const QString &key,
                                 const QString &defaultValue, int bufferSize)
{
    const auto fit = [bufferSize](const QString &text) { return text.left(qMax(0, bufferSize - 1)); };
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly))
        return fit(defaultValue);
    const QString text = fileText(in.readAll());
    bool inSection = false;
    for (QString line : text.split(QLatin1Char('\n'))) {
        line = line.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char(';')))
            continue;
        if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'))) {
            inSection = line.mid(1, line.size() - 2).trimmed().compare(section, Qt::CaseInsensitive) == 0;
            continue;
        }
        if (!inSection)
            continue;
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        if (eq < 0)
            continue;
        if (line.left(eq).trimmed().compare(key, Qt::CaseInsensitive) == 0)
            return fit(unquoted(line.mid(eq + 1)));
    }
    return fit(defaultValue);
}

QString ReadIniString(const QString &file, const QString &section, const QString &key, const QString &defaultValue)
{
    return readPrivateProfileString(file, section, key, defaultValue, IniBufferSize);
}
