// The categories of the remap page.
#pragma once

#include <array>
#include <string_view>

namespace lumo {

struct RemapCategory {
    std::string_view key;    // the value of UIState::remapCategory
    std::string_view title;  // on the tab
};

inline constexpr RemapCategory kMultimediaCategory{"Multimedia", "Multimedia"};
inline constexpr RemapCategory kMouseCategory{"Mouse", "Mouse"};
inline constexpr RemapCategory kShortcutsCategory{"Shortcuts", "Shortcuts"};
inline constexpr RemapCategory kFunctionCategory{"Function", "Function (F1-F12)"};
inline constexpr RemapCategory kLettersCategory{"Letters", "Letters & Numbers"};

/// In the order of the tabs.
inline constexpr std::array<RemapCategory, 5> kRemapCategories{kMultimediaCategory, kMouseCategory, kShortcutsCategory,
                                                               kFunctionCategory, kLettersCategory};

}  // namespace lumo
