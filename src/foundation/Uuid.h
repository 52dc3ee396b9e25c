// Identity of a record in a list.
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lumo {

/// 16 bytes, big-endian as written in text.
struct Uuid {
    std::array<std::uint8_t, 16> bytes{};
    bool operator==(const Uuid&) const = default;
    std::strong_ordering operator<=>(const Uuid&) const = default;

    /// A fresh random one (version 4).
    [[nodiscard]] static Uuid random();

    /// 8-4-4-4-12 hexadecimal digits, in capitals.
    [[nodiscard]] std::string text() const;
    /// The way back, also from small letters; none for anything else.
    [[nodiscard]] static std::optional<Uuid> fromText(std::string_view text);
};

}  // namespace lumo
