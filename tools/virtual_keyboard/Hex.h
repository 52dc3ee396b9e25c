// Bytes as text.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace lumo::vk {

/// Two lower-case digits a byte, with `between` between two bytes.
[[nodiscard]] inline std::string hexOf(std::span<const std::uint8_t> bytes, std::string_view between = "") {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    text.reserve(bytes.size() * (2 + between.size()));
    for (const std::uint8_t byte : bytes) {
        if (!text.empty()) text += between;
        text += kDigits[byte >> 4];
        text += kDigits[byte & 0x0F];
    }
    return text;
}

}  // namespace lumo::vk
