// The table that says what each place of the key matrix does. docs/protocol.md, "Key table".
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "device/Report.h"

namespace lumo {

inline constexpr Report kKeyTableRead = reportBeginningWith(kReportId, 0x83, 0, 0, 1, 0, 0xF8, 0x01);

/// Action type and three parameters.
using KeyCode = std::array<std::uint8_t, 4>;

/// True for an answer of at least 512 bytes that names the read command.
[[nodiscard]] bool isKeyTable(std::span<const std::uint8_t> answer);

/// The write that gives one place another code; all other places, and the length, are those of `table`. Absent when
/// the place does not lie within it.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> keyTableWith(std::span<const std::uint8_t> table,
                                                                    std::int64_t matrixPos, const KeyCode& code);

/// The write of a whole table: at least 520 bytes, under our own header.
[[nodiscard]] std::vector<std::uint8_t> keyTableWrite(std::vector<std::uint8_t> table);

}  // namespace lumo
