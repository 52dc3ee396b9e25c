// The on-screen keyboard's pixels and its light as the loops over them take them, laid out so that the compiler makes
// vectors of them. A block is four pixels side by side, 16 channels in the byte order of a little-endian
// QImage::Format_RGB32: blue, green, red, 255. Everything else is laid out alike, one number a channel.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

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

/// The upper half of a product: one vector instruction, signed or not.
constexpr Lane high(Lane a, Lane b) { return static_cast<Lane>((a * b) >> 16); }
constexpr Share high(Share a, Share b) { return static_cast<Share>((static_cast<unsigned>(a) * b) >> 16); }

/// The same four, once for every pixel or cell.
template <std::size_t kLanes, typename T>
std::array<T, kLanes> repeated(const std::array<T, 4>& four) {
    std::array<T, kLanes> lanes{};
    for (std::size_t i = 0; i < kLanes; ++i) lanes[i] = four[i % 4];
    return lanes;
}

}  // namespace lumo::pixels
