// Identity of a record in a list.
#pragma once

#include <array>
#include <compare>
#include <cstdint>

namespace lumo {

/// 16 bytes, big-endian as written in text.
struct Uuid {
    std::array<std::uint8_t, 16> bytes{};
    bool operator==(const Uuid&) const = default;
    std::strong_ordering operator<=>(const Uuid&) const = default;

    /// A fresh random one (version 4).
    [[nodiscard]] static Uuid random();
};

}  // namespace lumo
