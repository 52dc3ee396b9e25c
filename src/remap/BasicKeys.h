// The ordinary keys that a key can be bound to: letters, digits and function keys. docs/protocol.md, "Key codes".
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "device/KeyTableReports.h"
#include "device/Report.h"

namespace lumo {

/// A key by its text and its usage on the HID keyboard page.
struct BasicKey {
    std::string_view text;
    std::uint8_t usage = 0;
};

inline constexpr auto kBasicLetters = std::to_array<BasicKey>({
    {"A", 0x04}, {"B", 0x05}, {"C", 0x06}, {"D", 0x07}, {"E", 0x08}, {"F", 0x09}, {"G", 0x0A}, {"H", 0x0B}, {"I", 0x0C},
    {"J", 0x0D}, {"K", 0x0E}, {"L", 0x0F}, {"M", 0x10}, {"N", 0x11}, {"O", 0x12}, {"P", 0x13}, {"Q", 0x14}, {"R", 0x15},
    {"S", 0x16}, {"T", 0x17}, {"U", 0x18}, {"V", 0x19}, {"W", 0x1A}, {"X", 0x1B}, {"Y", 0x1C}, {"Z", 0x1D},
});

/// "0" last, as on the keyboard.
inline constexpr auto kBasicNumbers = std::to_array<BasicKey>({
    {"1", 0x1E},
    {"2", 0x1F},
    {"3", 0x20},
    {"4", 0x21},
    {"5", 0x22},
    {"6", 0x23},
    {"7", 0x24},
    {"8", 0x25},
    {"9", 0x26},
    {"0", 0x27},
});

/// Usages one after the other, texts of one letter.
[[nodiscard]] constexpr bool areInARow(const auto& keys) {
    return std::ranges::all_of(keys, [usage = keys.front().usage](const BasicKey& key) mutable {
        return key.usage == usage++ && key.text.size() == 1;
    });
}
static_assert(kBasicLetters.size() == 26 && areInARow(kBasicLetters));
static_assert(std::ranges::is_sorted(kBasicLetters, {}, &BasicKey::text));
static_assert(kBasicNumbers.size() == 10 && areInARow(kBasicNumbers));
static_assert(kBasicNumbers.front().usage == kBasicLetters.back().usage + 1);

inline constexpr std::int64_t kFunctionKeyCount = 12;

/// "F1" for 1.
[[nodiscard]] inline std::string functionKeyName(std::int64_t number) { return "F" + std::to_string(number); }

/// A number whose usage does not fit a byte ends the process.
[[nodiscard]] constexpr std::uint8_t functionKeyUsage(std::int64_t number) {
    return asByte("the usage of a function key", number + 57);
}
static_assert(functionKeyUsage(1) == 0x3A && functionKeyUsage(kFunctionKeyCount) == 0x45);

/// The code of a single key, without modifiers.
[[nodiscard]] constexpr KeyCode codeOfUsage(std::uint8_t usage) { return {0x00, 0x00, 0x00, usage}; }

}  // namespace lumo
