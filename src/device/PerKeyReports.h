// The reports that give every key its own colour. docs/protocol.md, "Colour banks" and "LED colour planes".
#pragma once

#include <cstdint>
#include <span>

#include "device/PerKeyColors.h"
#include "device/Report.h"

namespace lumo {

/// Firmware number of the effect that shows the uploaded colours.
inline constexpr std::int64_t kPerKeyHardwareId = 0x1D;

enum class ColorBank : std::uint8_t { first = 0xBC, second = 0xC0 };

/// The matrix-ordered colours of one bank. A key that `colors` does not name gets the default colour (87, 8, 212);
/// a key of another bank, or whose offset is negative or above 497, is left out.
[[nodiscard]] Report colorBankWrite(ColorBank bank, std::span<const KeyColorPlace> places, const LedColors& colors);

/// The LED-ordered colours: all reds, all greens, all blues. LED numbers outside 0 to 125 are left out.
[[nodiscard]] Report ledPlanesWrite(const LedColors& colors);

}  // namespace lumo
