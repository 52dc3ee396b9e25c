// Writes of the parameter block that change one setting and nothing else.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "device/Report.h"

namespace lumo {

/// The answer with that level of debounce, in tens of milliseconds; none when it is shorter than 135 bytes.
[[nodiscard]] std::optional<Report> debounceWrite(std::span<const std::uint8_t> answer, std::uint8_t level);

/// The answer with that brightness, the effects' own records left alone; none when it is shorter than 135 bytes.
[[nodiscard]] std::optional<Report> brightnessWrite(std::span<const std::uint8_t> answer, std::uint8_t level);

}  // namespace lumo
