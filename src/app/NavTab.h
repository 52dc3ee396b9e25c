// The five pages, and what stands on the buttons that choose them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace lumo {

enum class NavTab : std::uint8_t { keyAssign = 1, lighting = 2, macro = 3, music = 4, settings = 5 };

inline constexpr std::array kAllTabs{NavTab::keyAssign, NavTab::lighting, NavTab::macro, NavTab::music,
                                     NavTab::settings};

struct NavTabLabel {
    std::string_view title;
    std::string_view iconNormal;  // file names; their digits are not in the order of the pages
    std::string_view iconActive;
    std::string_view fallbackSymbol;  // where the artwork is missing
};

[[nodiscard]] constexpr std::int64_t rawValue(NavTab tab) { return static_cast<std::int64_t>(tab); }

/// The page of that number, 1 to 5; none for any other.
[[nodiscard]] constexpr std::optional<NavTab> navTabFromRaw(std::int64_t rawValue) {
    if (rawValue < 1 || rawValue > static_cast<std::int64_t>(kAllTabs.size())) return std::nullopt;
    return kAllTabs[static_cast<std::size_t>(rawValue - 1)];
}

/// In the order of the pages.
inline constexpr std::array<NavTabLabel, kAllTabs.size()> kTabLabels{{
    {"Key Assignment", "navi2_nr.png", "navi2_dn.png", "keyboard"},
    {"Lighting Effect", "navi3_nr.png", "navi3_dn.png", "sun.max"},
    {"Macro Manager", "navi6_nr.png", "navi6_dn.png", "cpu"},
    {"Music Visualizer", "navi4_nr.png", "navi4_dn.png", "waveform"},
    {"Device Settings", "navi5_nr.png", "navi5_dn.png", "gearshape"},
}};

[[nodiscard]] constexpr const NavTabLabel& labelOf(NavTab tab) {
    return kTabLabels[static_cast<std::size_t>(rawValue(tab) - 1)];
}

}  // namespace lumo
