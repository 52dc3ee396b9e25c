// The colours offered beside the colour wheel.
#pragma once

#include <array>
#include <string_view>

#include "foundation/Color.h"

namespace lumo {

/// In the order of the palette.
inline constexpr std::array<Color, 8> kPresetColors{Color::fromBytes({87, 8, 212}),  Color::fromBytes({0, 210, 255}),
                                                    Color::fromBytes({255, 0, 120}), Color::fromBytes({0, 255, 100}),
                                                    Color::fromBytes({255, 200, 0}), Color::fromBytes({255, 60, 0}),
                                                    Color::fromBytes({255, 20, 20}), Color{0.95, 0.95, 0.95}};

/// How assistive technology calls them.
inline constexpr std::array<std::string_view, kPresetColors.size()> kPresetColorNames{
    "Violet", "Sky blue", "Pink", "Green", "Yellow", "Orange", "Red", "White"};

}  // namespace lumo
