// The loops that paint caps, letters and rings. Any thread; no state.
#pragma once

#include <span>

#include "keyboard/PixelBlocks.h"

namespace lumo::pixels {

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
