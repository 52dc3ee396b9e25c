// What a key's light does to its pixels: colour and glow in the steps in which pixels differ, and the legend's colours.
// Any thread; values.
#pragma once

#include <cstdint>

#include "foundation/Color.h"
#include "keyboard/LightingEngine.h"
#include "keyboard/PixelBlocks.h"

namespace lumo {

struct KeyShade {
    ColorBytes color;       // black while dark
    std::uint8_t glow = 0;  // 255 is full
    bool operator==(const KeyShade&) const = default;

    [[nodiscard]] double strength() const { return glow / 255.0; }
};

[[nodiscard]] KeyShade shadeOf(const KeyLight& light);

/// Below that a lit legend has no halo.
inline constexpr double kHaloFrom = 0.15;

struct LegendColors {
    ColorBytes main;
    ColorBytes fn;
};
[[nodiscard]] LegendColors legendColors(const KeyShade& shade);

/// The light below the cap, a little paler than the key's colour, and its opacity.
[[nodiscard]] pixels::Shares emittedLight(const KeyShade& shade);

/// 0 to 1, as contrast is reckoned.
[[nodiscard]] double relativeLuminance(ColorBytes color);

}  // namespace lumo
