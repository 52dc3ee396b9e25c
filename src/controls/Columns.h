// Divides a width among columns that stand side by side.
#pragma once

#include <span>
#include <vector>

namespace lumo {

struct Column {
    double share = 1.0;  // of what is left
    double least = 0.0;
};

struct Extent {
    int begin = 0;
    int length = 0;
    [[nodiscard]] int end() const { return begin + length; }
};

/// Columns of whole points with `gap` between them, from 0 to `width`: each gets its share of the room, and those that
/// would get less than their least get that instead.
[[nodiscard]] std::vector<Extent> divide(int width, int gap, std::span<const Column> columns);

}  // namespace lumo
