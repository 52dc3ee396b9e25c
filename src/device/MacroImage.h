// The keyboard's macro image (docs/protocol.md, Macro image).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace lumo {

inline constexpr std::size_t kMacroImageSize = 128;
using MacroImage = std::array<std::uint8_t, kMacroImageSize>;

}  // namespace lumo
