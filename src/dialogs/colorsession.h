#pragma once

#include "sheet/itemrows.h"
#include "frame/lumoicinitial_global.h"
#include "frame/settingsstore.h"

#include <QColor>
#include <QString>

#include <array>
#include <memory>

class Dictionary;

// One of the five row-colour kinds of the colour dialog.
struct ColorKind
{
    const SettingSpec &setting; // its settings key and default
    const char *collectionKey;  // its key in the colour collection handed to the controls
    const QString &caption;     // its button's caption
    const char *sampleName;     // spLock, ...
    const char *buttonName;     // cmdLock, ...
};

// The colour dialog without its widgets: the five sample colours, read from and written to the
// settings store in the order Lock, BatMan, Sum, Find, BalAdj.
class LUMOICINITIAL_EXPORT ColorSession
{
public:
    static constexpr int KindCount = 5;
    static const std::array<ColorKind, KindCount> &kinds();

    // The samples start at the default colours, as on first use.
    ColorSession();

    // Reads every kind's setting with the sample's present colour as the default.
    void load();
    // The default colours, not stored.
    void restoreDefaults();
    // Writes the samples under their settings keys and tells the open grids.
    void store() const;

    QColor color(int kind) const { return m_colors.at(size_t(kind)); }
    void setColor(int kind, const QColor &color);
    RowColors rowColors() const;
    // The colour collection: "Lock", "BatMan", "Sum", "Find", "BalAdj" as RGB numbers.
    std::unique_ptr<Dictionary> collection() const;

private:
    std::array<QColor, KindCount> m_colors;
};
