#include "settingsstore.h"

#include <QSettings>

namespace {

QSettings store()
{
    return QSettings(QStringLiteral("Lumo"), Setting::StoreName);
}

} // namespace

QVariant SettingsStore::value(const SettingSpec &spec)
{
    return store().value(QString::fromLatin1(spec.key), spec.defaultValue);
}

bool SettingsStore::boolValue(const SettingSpec &spec)
{
    const QVariant v = value(spec);
    return v.typeId() == QMetaType::QString ? (v.toString() == QLatin1String("true") || v.toInt() != 0) : v.toBool();
}

int SettingsStore::intValue(const SettingSpec &spec)
{
    return value(spec).toInt();
}

QColor SettingsStore::colorValue(const SettingSpec &spec)
{
    bool ok = false;
    const qint64 rgb = value(spec).toLongLong(&ok);
    return colorFromRgbNumber(ok ? rgb : spec.defaultValue.toLongLong());
}

void SettingsStore::setValue(const SettingSpec &spec, const QVariant &value)
{
    QSettings settings = store();
    settings.setValue(QString::fromLatin1(spec.key), value);
}

void SettingsStore::setColor(const SettingSpec &spec, const QColor &color)
{
    setValue(spec, rgbNumber(color));
}

QColor SettingsStore::colorFromRgbNumber(qint64 rgb)
{
    return QColor(int(rgb & 0xFF), int((rgb >> 8) & 0xFF), int((rgb >> 16) & 0xFF));
}

qint64 SettingsStore::rgbNumber(const QColor &color)
{
    return color.red() + color.green() * 256 + qint64(color.blue()) * 65536;
}
