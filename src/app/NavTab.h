// The five pages.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace lumo {

enum class NavTab : std::uint8_t { keyAssign = 1, lighting = 2, macro = 3, music = 4, settings = 5 };

inline constexpr std::array kAllTabs{NavTab::keyAssign, NavTab::lighting, NavTab::macro, NavTab::music,
                                     NavTab::settings};

/// The page of that number, 1 to 5; none for any other.
[[nodiscard]] constexpr std::optional<NavTab> navTabFromRaw(std::int64_t rawValue) {
    if (rawValue < 1 || rawValue > static_cast<std::int64_t>(kAllTabs.size())) return std::nullopt;
    return kAllTabs[static_cast<std::size_t>(rawValue - 1)];
}

}  // namespace lumo
