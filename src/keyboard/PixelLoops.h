// The loops that run over every pixel of the on-screen keyboard, written so that the compiler makes vectors of them.
// A block is four pixels side by side, 16 channels in the byte order of a little-endian QImage::Format_RGB32: blue,
// green, red, 255. Everything else here is laid out alike, one number a channel. Any thread; no state.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

namespace lumo::pixels {

static_assert(std::endian::native == std::endian::little, "the order of the channels below");

inline constexpr int kBlockPixels = 4;
inline constexpr std::size_t kBlockLanes = 16;
inline constexpr std::size_t kCellLanes = 4;  // one place of the light field: blue, green, red, opacity

using Lane = std::int16_t;          // a part of a channel, in levels of 0 to 255 times kCapLevel or kLightLevel
using Share = std::uint16_t;        // a part of the light, kWhole is all of it
using Pixel = std::array<Lane, 4>;  // blue, green, red, opacity
using Shares = std::array<Share, 4>;

inline constexpr int kCapLevel = 128;
inline constexpr int kLightLevel = 128;
inline constexpr unsigned kWhole = 65000;  // leaves room for what rounding adds up to

/// Before the loops below run. Painting with Qt 6.4 on x86 leaves the upper halves of the vector registers in use; as
/// long as they are, everything here takes twice as long on some processors (seen on Zen 4).
void clearWideRegisters();

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

/// A part of the frame that a smaller picture lies over: rows and blocks of that picture, the ends not included.
struct Part {
    std::uint8_t* out;      // where the picture's first block lies
    std::ptrdiff_t stride;  // bytes from one row of the frame to the next
    int top, bottom, left, right;
};

/// What a cap looks like in any light: unlit + perColor * color + perGlow * glow + keep * what lies behind.
struct CapPlanes {
    struct Body {  // the blocks of a row through which nothing shows, and those of them that look like evenFirst
        std::uint16_t first = 0;
        std::uint16_t end = 0;
        std::uint16_t evenFirst = 0;
        std::uint16_t evenEnd = 0;
    };
    std::size_t blocks;  // in a row
    const Body* bodies;  // one a row
    const Lane* unlit;
    const Lane* perColor;
    const Lane* perGlow;
    const Share* keep;  // 32768 is all of it
};
struct CapLight {
    Pixel color;  // times glow: 32640 is 255 times 1
    Lane glow;    // 32767 is 1
};
/// Other than everything else here, a cap may begin at any pixel of the frame: `left` and `right` count pixels.
void paintCap(const Part& part, const CapPlanes& cap, const CapLight& light);

/// Mixes `color` (levels) in, by `mask` of 128.
void blendColor(const Part& part, const std::uint8_t* mask, std::size_t blocks, const Pixel& color);

/// A block of something that lies over everything: what it adds, and what it keeps of 255 (a bit more than that).
struct OverlayBlock {
    std::uint16_t block = 0;
    std::uint16_t row = 0;
    std::array<std::uint8_t, kBlockLanes> add{};
    std::array<std::uint8_t, kBlockLanes> keep{};
};
/// `part` counts blocks and rows as the overlay does.
void layOver(const Part& part, std::span<const OverlayBlock> blocks);

}  // namespace lumo::pixels
