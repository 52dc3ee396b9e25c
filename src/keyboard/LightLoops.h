// The loops that spread the keys' light over the picture. Any thread; no state.
#pragma once

#include <span>

#include "keyboard/PixelBlocks.h"

namespace lumo::pixels {

/// sum += weights * light. `cells` is even.
void addWeighted(Share* sum, const Share* weights, std::size_t cells, const Shares& light);

/// `quarters` of `upper` and the rest of `lower`.
void mixRows(Share* out, const Share* upper, const Share* lower, unsigned quarters, std::size_t cells);

/// Twice as many cells, four times as large. The cells left of the first and right of the last are read, too.
void doubleCells(Share* out, const Share* row, std::size_t cells);

/// Each cell's opacity, its last lane, in every lane.
void repeatCover(Share* out, const Share* cells, std::size_t count);

/// Puts `lower`, which comes from doubleCells, under `upper`, whose opacity is `cover`. `cells` is even.
void layUnder(Share* upper, const Share* lower, const Share* cover, std::size_t cells);

/// By how much light of that opacity changes the ground (levels). `cells` is even.
void changeGround(Lane* out, const Share* light, const Share* cover, const Pixel& ground, std::size_t cells);

/// How the pixels of a row lie between the cells: half of the shares of the left and the right one, 32767 together.
struct CellSteps {
    const std::uint16_t* cell;  // one a pixel: the left one
    const Lane* left;           // one a channel
    const Lane* right;
};
/// Neighbouring blocks of one row.
struct Run {
    std::uint16_t first = 0;
    std::uint16_t end = 0;
    std::uint32_t mask = 0;  // place of its first lane among the masks, where there are any
};

/// Spreads a row of cells to the pixels of the runs. Stores half the light, as everything does here that mixes two of
/// something: the shares are signed numbers.
void spreadCells(Lane* out, const Lane* cells, CellSteps steps, std::span<const Run> runs);

/// Two rows of spread cells and half of their shares, 32767 together.
struct LightRows {
    const Lane* upper;
    const Lane* lower;
    Lane upperShare;
    Lane lowerShare;
};
/// One row of pixels: the runs' blocks between `left` and `right`. All pointers stand at block 0.
struct LightTarget {
    std::uint8_t* out;
    const std::uint8_t* ground;
    int left;
    int right;
};
void addLight(const LightTarget& target, const LightRows& light, std::span<const Run> runs);

/// Where a pixel takes only a part of the light: `masks` of 32767.
void addMaskedLight(const LightTarget& target, const LightRows& light, std::span<const Run> runs, const Lane* masks);

}  // namespace lumo::pixels
