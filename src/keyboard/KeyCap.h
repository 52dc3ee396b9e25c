// One physical key: where it sits on the desk, in the drawing, in the LED chain and in the key matrix.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "foundation/Color.h"

namespace lumo {

/// A value. Two keys are equal when their ids are, whatever their colours.
struct KeyCap {
    std::string id;               // "K1" to "K67"
    std::int64_t kid = 0;         // 1 to 67, the key's place in the layout
    std::string label;            // printed on the key
    std::string fnLabel;          // second legend, for the Fn layer; mostly empty
    std::uint8_t hidCode = 0;     // default key code, in virtual-key numbering
    std::int64_t ledIndex = 0;    // 0 to 66, column by column from the left
    std::int64_t matrixPos = 0;   // 6 x column + row + 1, row 0 to 5
    std::int64_t bank = 0;        // 1 or 2: half of the 3-bytes-per-place table
    std::int64_t bankOffset = 0;  // bytes into that half
    double x = 0.0;               // top left corner in the drawing, points
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
    std::optional<Color> customColor;
    std::optional<std::uint8_t> remapCode;
    std::optional<std::vector<std::uint8_t>> remapBytes;
    std::optional<std::string> remapLabel;

    bool operator==(const KeyCap& other) const { return id == other.id; }
};

}  // namespace lumo

template <>
struct std::hash<lumo::KeyCap> {
    std::size_t operator()(const lumo::KeyCap& key) const noexcept { return std::hash<std::string>{}(key.id); }
};
