#pragma once

#include "settingsstore.h"

#include <array>

// The view toggles both controls carry: the menu key, its caption and menu, and the setting that
// keeps its state between sessions.
struct ViewToggle
{
    const char *menuKey;
    const char *caption;
    const char *menu;
    const SettingSpec *setting;
};

namespace ViewToggleMenu {
inline constexpr const char *Edit = "编辑(&E)";
inline constexpr const char *View = "查看(&V)";
inline constexpr const char *Format = "格式(&O)";
} // namespace ViewToggleMenu

namespace ViewToggleKey {
inline constexpr const char *ToolBar = "mcWToolBar";
inline constexpr const char *ToolBarLabel = "mcWTBLable";
inline constexpr const char *StatusBar = "mcWStatusBar";
inline constexpr const char *DefaultStock = "mcEDefault";
inline constexpr const char *AutoRefresh = "mcVSRefresh";
} // namespace ViewToggleKey

inline const std::array<ViewToggle, 5> &viewToggles()
{
    static const std::array<ViewToggle, 5> toggles{{
        {ViewToggleKey::ToolBar, "工具栏", ViewToggleMenu::Format, &Setting::ShowToolBar},
        {ViewToggleKey::ToolBarLabel, "工具栏标签", ViewToggleMenu::Format, &Setting::ShowToolBarLabel},
        {ViewToggleKey::StatusBar, "状态栏", ViewToggleMenu::Format, &Setting::ShowStateBar},
        {ViewToggleKey::DefaultStock, "启动时打开默认仓库", ViewToggleMenu::Edit, &Setting::ShowDefaultStock},
        {ViewToggleKey::AutoRefresh, "自动刷新", ViewToggleMenu::View, &Setting::ShowRefresh},
    }};
    return toggles;
}

// The toggle of a menu key; null for any other key.
inline const ViewToggle *viewToggleForKey(const QString &menuKey)
{
    for (const ViewToggle &toggle : viewToggles()) {
        if (menuKey == QLatin1String(toggle.menuKey))
            return &toggle;
    }
    return nullptr;
}
