#include "keyboard/CapLoops.h"

#include <algorithm>
#include <cstring>

#include "keyboard/WidestVectors.h"

namespace lumo::pixels {
namespace {

class CapPainter final {
public:
    CapPainter(const CapPlanes& cap, const std::array<Lane, kBlockLanes>& color, Lane glow)
        : m_cap(cap), m_color(color), m_glow(glow) {}

    /// `left` and `right` in pixels, `out` at the cap's first one.
    void paintRow(std::uint8_t* out, int y, int left, int right) const {
        const int first = (left + kBlockPixels - 1) / kBlockPixels;
        const int end = right / kBlockPixels;
        if (first > end) return paintPartly(out, y, end, left, right);
        if (left % kBlockPixels > 0) paintPartly(out, y, first - 1, left, right);
        paintBlocks(out, y, first, end);
        if (right % kBlockPixels > 0) paintPartly(out, y, end, left, right);
    }

private:
    void paintBlocks(std::uint8_t* out, int y, int first, int end) const {
        const auto inside = [end](int block, int from) { return std::clamp(block, from, end); };
        const CapPlanes::Body& body = m_cap.bodies[y];
        const int bodyFirst = inside(body.first, first);
        const int evenFirst = inside(body.evenFirst, bodyFirst);
        const int evenEnd = inside(body.evenEnd, evenFirst);
        const int bodyEnd = inside(body.end, evenEnd);
        const int copiesFirst = std::min(evenFirst + 1, evenEnd);
        paint<true>(out, y, first, bodyFirst);
        paint<false>(out, y, bodyFirst, copiesFirst);
        for (int block = copiesFirst; block < evenEnd; ++block) {
            std::memcpy(at(out, block), at(out, evenFirst), kBlockLanes);
        }
        paint<false>(out, y, evenEnd, bodyEnd);
        paint<true>(out, y, bodyEnd, end);
    }

    /// The pixels of a block that lie between `left` and `right`.
    void paintPartly(std::uint8_t* out, int y, int block, int left, int right) const {
        const int first = std::max(left - block * kBlockPixels, 0);
        const int end = std::min(right - block * kBlockPixels, kBlockPixels);
        const auto bytes = static_cast<std::size_t>(end - first) * 4;
        std::array<std::uint8_t, kBlockLanes> pixels{};
        std::memcpy(pixels.data() + first * 4, at(out, block) + first * 4, bytes);
        paintBlock<true>(pixels.data(), lane(y, block));
        std::memcpy(at(out, block) + first * 4, pixels.data() + first * 4, bytes);
    }

    template <bool kShowsThrough>
    void paint(std::uint8_t* out, int y, int first, int end) const {
        for (int block = first; block < end; ++block) paintBlock<kShowsThrough>(at(out, block), lane(y, block));
    }

    template <bool kShowsThrough>
    void paintBlock(std::uint8_t* __restrict out, std::size_t lane) const {
        for (std::size_t i = 0; i < kBlockLanes; ++i) {
            int sum = m_cap.unlit[lane + i] + high(m_cap.perColor[lane + i], m_color[i]) +
                      high(m_cap.perGlow[lane + i], m_glow);
            if constexpr (kShowsThrough) sum += high(static_cast<Share>(out[i] << 8), m_cap.keep[lane + i]);
            out[i] = static_cast<std::uint8_t>(static_cast<Lane>(sum) >> 7);
        }
    }

    static std::uint8_t* at(std::uint8_t* out, int block) { return out + block * static_cast<int>(kBlockLanes); }
    [[nodiscard]] std::size_t lane(int y, int block) const {
        return (static_cast<std::size_t>(y) * m_cap.blocks + static_cast<std::size_t>(block)) * kBlockLanes;
    }

    CapPlanes m_cap;
    std::array<Lane, kBlockLanes> m_color;
    Lane m_glow;
};

void mixRow(std::uint8_t* __restrict out, const std::uint8_t* __restrict mask, std::size_t blocks,
            const std::array<Lane, kBlockLanes>& color) {
    for (std::size_t block = 0; block < blocks; ++block, out += kBlockLanes, mask += kBlockLanes) {
        for (std::size_t i = 0; i < kBlockLanes; ++i) {
            const Lane share = mask[i];
            const auto away = static_cast<Lane>(color[i] - out[i]);
            out[i] = static_cast<std::uint8_t>(out[i] + (static_cast<Lane>(static_cast<Lane>(share * away) + 64) >> 7));
        }
    }
}

void overlay(std::uint8_t* __restrict out, const std::uint8_t* __restrict add, const std::uint8_t* __restrict keep) {
    std::array<std::uint8_t, kBlockLanes> sums{};  // not stored one by one: `add` could lie behind `out`
    for (std::size_t i = 0; i < kBlockLanes; ++i) {
        const auto kept = static_cast<Share>(out[i] * static_cast<Share>(keep[i] + 1));
        sums[i] = static_cast<std::uint8_t>(add[i] + (kept >> 8));
    }
    std::ranges::copy(sums, out);
}

}  // namespace

LUMO_WIDEST void paintCap(const Part& part, const CapPlanes& cap, const CapLight& light) {
    const CapPainter painter{cap, repeated<kBlockLanes>(light.color), light.glow};
    for (int y = part.top; y < part.bottom; ++y) painter.paintRow(part.out + y * part.stride, y, part.left, part.right);
}

LUMO_WIDEST void blendColor(const Part& part, const std::uint8_t* mask, std::size_t blocks, const Pixel& color) {
    const auto lanes = repeated<kBlockLanes>(color);
    for (int y = part.top; y < part.bottom; ++y) {
        const std::size_t first = static_cast<std::size_t>(y) * blocks + static_cast<std::size_t>(part.left);
        std::uint8_t* const row = part.out + y * part.stride;
        mixRow(row + static_cast<std::size_t>(part.left) * kBlockLanes, mask + first * kBlockLanes,
               static_cast<std::size_t>(part.right - part.left), lanes);
    }
}

LUMO_WIDEST void layOver(const Part& part, std::span<const OverlayBlock> blocks) {
    for (const OverlayBlock& each : blocks) {
        if (each.row < part.top || each.row >= part.bottom || each.block < part.left || each.block >= part.right) {
            continue;
        }
        overlay(part.out + each.row * part.stride + static_cast<std::size_t>(each.block) * kBlockLanes, each.add.data(),
                each.keep.data());
    }
}

}  // namespace lumo::pixels
