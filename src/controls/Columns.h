// Divides a width among columns that stand side by side, or in rows where they find no room.
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

/// Whether all of them get their least.
[[nodiscard]] bool fitsInOneRow(int width, int gap, std::span<const Column> columns);

/// How many of them stand in each row: as many as `wanted` says, if all of those get their least. Else in as few rows
/// as they can, which then need about the same; a column without room even for itself is alone.
[[nodiscard]] std::vector<std::size_t> rowsOf(int width, int gap, std::span<const Column> columns,
                                              const std::vector<std::size_t>& wanted);

}  // namespace lumo
