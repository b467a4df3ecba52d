#include "colorsession.h"

#include "dialogs/dialogtexts.h"

#include "sheet/rowcolorboard.h"

#include "frame/automation/dictionary.h"

const std::array<ColorKind, ColorSession::KindCount> &ColorSession::kinds()
{
    static const std::array<ColorKind, KindCount> table{{
        {Setting::LockColor, "Lock", DialogMsg::LockButton, "spLock", "cmdLock"},
        {Setting::BatManColor, "BatMan", DialogMsg::BatManButton, "spBatMan", "cmdBatMan"},
        {Setting::SumColor, "Sum", DialogMsg::SumButton, "spSum", "cmdSum"},
        {Setting::FindColor, "Find", DialogMsg::FindButton, "spFind", "cmdFind"},
        {Setting::BalAdjColor, "BalAdj", DialogMsg::BalAdjButton, "spBalAdj", "cmdBalAdj"},
    }};
    return table;
}

ColorSession::ColorSession()
{
    restoreDefaults();
}

void ColorSession::load()
{
    for (size_t kind = 0; kind < m_colors.size(); ++kind) {
        const SettingSpec &setting = kinds().at(kind).setting;
        const QVariant stored = SettingsStore::value({setting.key, SettingsStore::rgbNumber(m_colors.at(kind))});
        bool ok = false;
        const qint64 rgb = stored.toLongLong(&ok);
        // A value we did not write keeps the sample's colour.
        if (ok)
            m_colors[kind] = SettingsStore::colorFromRgbNumber(rgb);
    }
}

void ColorSession::restoreDefaults()
{
    for (size_t kind = 0; kind < m_colors.size(); ++kind)
        m_colors[kind] = SettingsStore::colorFromRgbNumber(kinds().at(kind).setting.defaultValue.toLongLong());
}

void ColorSession::store() const
{
    for (size_t kind = 0; kind < m_colors.size(); ++kind)
        SettingsStore::setColor(kinds().at(kind).setting, m_colors.at(kind));
    RowColorBoard::instance().announce(rowColors());
}

void ColorSession::setColor(int kind, const QColor &color)
{
    if (kind >= 0 && kind < KindCount && color.isValid())
        m_colors[size_t(kind)] = color;
}

RowColors ColorSession::rowColors() const
{
    return {m_colors[0], m_colors[1], m_colors[2], m_colors[3], m_colors[4]};
}

std::unique_ptr<Dictionary> ColorSession::collection() const
{
    auto colors = std::make_unique<Dictionary>();
    for (size_t kind = 0; kind < m_colors.size(); ++kind)
        colors->setItem(QString::fromLatin1(kinds().at(kind).collectionKey), SettingsStore::rgbNumber(m_colors.at(kind)));
    return colors;
}
