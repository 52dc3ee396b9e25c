// The lighting page's list of effects, in its own order.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "device/LightingModes.h"

namespace lumo {

struct EffectEntry {
    std::int64_t number = 0;
    std::string_view name;
};

/// 1 to 18, the per-key effect, and "LED OFF" last.
inline constexpr auto kEffectCatalog = [] {
    std::array<EffectEntry, kLightingModes.size()> entries{};
    std::size_t at = 0;
    for (const LightingModeInfo& mode : kLightingModes) {
        if (mode.id != 0) entries[at++] = {mode.id, mode.name};
    }
    entries[at] = {0, findLightingMode(0)->name};
    return entries;
}();

}  // namespace lumo
