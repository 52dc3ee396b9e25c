// Where the keys of the drawing lie to each other, for arrow keys and for the pointer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "keyboard/KeyCap.h"

namespace lumo {

enum class Direction : std::uint8_t { left, right, up, down };

/// The nearest key beside that one in its row, or above or below it in the next row; none at the edge.
[[nodiscard]] std::optional<std::size_t> neighbour(std::span<const KeyCap> keys, std::size_t of, Direction direction);

/// The key at a place of the drawing, in points; none between the keys.
[[nodiscard]] std::optional<std::size_t> keyAt(std::span<const KeyCap> keys, double x, double y);

}  // namespace lumo
