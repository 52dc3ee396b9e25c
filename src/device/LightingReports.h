// The two configuration blocks behind a lighting command: effect colours and effect parameters.
// Every offset here is a row of docs/protocol.md, "Colour block" and "Parameter block".
#pragma once

#include <cstdint>
#include <span>

#include "device/Report.h"
#include "foundation/Color.h"

namespace lumo {

/// What a lighting command writes. Speed, brightness and firmware number must lie in 0 to 255.
struct LightingSettings {
    std::int64_t hwId = 0;
    std::int64_t speed = 0;
    std::int64_t brightness = 0;
    bool usesCustomColor = false;
};

inline constexpr Report kColorBlockRead = reportBeginningWith(kReportId, 0x8A, 0, 0, 1, 0, 0xE3, 0x01);

/// The colour block with one colour in all 21 records; the other bytes are those of `answer`, or zero when it is
/// shorter than 516 bytes.
[[nodiscard]] Report colorBlockWrite(std::span<const std::uint8_t> answer, ColorBytes color);

/// The parameter block with the effect's settings in the header and, for firmware numbers up to 32, in the
/// effect's own record; the other bytes are those of `answer`, or zero when it is shorter than 135 bytes.
/// A setting outside 0 to 255 ends the process.
[[nodiscard]] Report parameterBlockWrite(std::span<const std::uint8_t> answer, const LightingSettings& settings);

}  // namespace lumo
