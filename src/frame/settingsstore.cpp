#include "settingsstore.h"

#include <QSettings>

namespace {

QSettings store()
{
    return QSettings(QStringLiteral("Lumo"), Setting::StoreName);
}

} // namespace

QVariant SettingsStore::value(const SettingSpec &setting)
{
    return store().value(QString::fromLatin1(setting.key), setting.defaultValue);
}

bool SettingsStore::boolValue(const SettingSpec &setting)
{
    const QVariant v = value(setting);
    if (v.typeId() != QMetaType::QString)
        return v.toBool();
    // A value that is neither a truth word nor a number was not written by us: the default holds.
    const QString text = v.toString().trimmed();
    if (text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    if (text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return false;
    bool numeric = false;
    const int number = text.toInt(&numeric);
    return numeric ? number != 0 : setting.defaultValue.toBool();
}

int SettingsStore::intValue(const SettingSpec &setting)
{
    return value(setting).toInt();
}

QColor SettingsStore::colorValue(const SettingSpec &setting)
{
    bool ok = false;
    const qint64 rgb = value(setting).toLongLong(&ok);
    return colorFromRgbNumber(ok ? rgb : setting.defaultValue.toLongLong());
}

void SettingsStore::setValue(const SettingSpec &setting, const QVariant &value)
{
    QSettings settings = store();
    settings.setValue(QString::fromLatin1(setting.key), value);
}

void SettingsStore::setColor(const SettingSpec &setting, const QColor &color)
{
    setValue(setting, rgbNumber(color));
}

QColor SettingsStore::colorFromRgbNumber(qint64 rgb)
{
    return QColor(int(rgb & 0xFF), int((rgb >> 8) & 0xFF), int((rgb >> 16) & 0xFF));
}

qint64 SettingsStore::rgbNumber(const QColor &color)
{
    return color.red() + color.green() * 256 + qint64(color.blue()) * 65536;
}
