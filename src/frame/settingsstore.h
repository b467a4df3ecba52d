#pragma once

#include "lumoicinitial_global.h"

#include <QColor>
#include <QString>
#include <QVariant>

// The settings of the controls, kept under the settings name "LumoICInitial": every key declared
// once with its default.
struct SettingSpec
{
    const char *key;
    QVariant defaultValue;
};

namespace Setting {
inline const QString StoreName = QStringLiteral("LumoICInitial");

// View settings and the menu command that toggles each.
inline const SettingSpec ShowToolBar{"bShowToolBar", true};
inline const SettingSpec ShowToolBarLabel{"bShowToolBarLabel", true};
inline const SettingSpec ShowStateBar{"bShowStateBar", true};
inline const SettingSpec ShowDefaultStock{"bShowDefaultStock", false};
inline const SettingSpec ShowRefresh{"bShowRefresh", false};
inline const SettingSpec StockListIndex{"nStockListIndex", 0};
// The entry grid's column widths as the user dragged them; empty for the defaults.
inline const SettingSpec EntryColWidths{"EntryColWidths", QString()};

// Row colours as RGB numbers (red + green * 256 + blue * 65536).
inline const SettingSpec LockColor{"LockColor", 248 + 237 * 256 + 254 * 65536};
inline const SettingSpec BatManColor{"BatManColor", 222 + 254 * 256 + 226 * 65536};
inline const SettingSpec SumColor{"SumColor", 255 + 238 * 256 + 239 * 65536};
inline const SettingSpec FindColor{"FindColor", 222 + 234 * 256 + 254 * 65536};
inline const SettingSpec BalAdjColor{"BalAdjColor", 206 + 253 * 256 + 255 * 65536};
} // namespace Setting

// One settings store over QSettings.
class LUMOICINITIAL_EXPORT SettingsStore
{
public:
    static QVariant value(const SettingSpec &setting);
    static bool boolValue(const SettingSpec &setting);
    static int intValue(const SettingSpec &setting);
    static QColor colorValue(const SettingSpec &setting);
    static void setValue(const SettingSpec &setting, const QVariant &value);
    static void setColor(const SettingSpec &setting, const QColor &color);

    static QColor colorFromRgbNumber(qint64 rgb);
    static qint64 rgbNumber(const QColor &color);
};
