// The colours offered beside the colour wheel.
#pragma once

#include <array>

#include "foundation/Color.h"

namespace lumo {

inline constexpr std::array<Color, 8> kPresetColors{Color::fromBytes({87, 8, 212}),  Color::fromBytes({0, 210, 255}),
                                                    Color::fromBytes({255, 0, 120}), Color::fromBytes({0, 255, 100}),
                                                    Color::fromBytes({255, 200, 0}), Color::fromBytes({255, 60, 0}),
                                                    Color::fromBytes({255, 20, 20}), Color{0.95, 0.95, 0.95}};

}  // namespace lumo
