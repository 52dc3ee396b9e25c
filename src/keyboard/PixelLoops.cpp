#include "keyboard/PixelLoops.h"

#include <algorithm>
#include <cstring>

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace lumo::pixels {
namespace {

#ifdef __x86_64__
__attribute__((target("avx"))) void zeroUpperHalves() { _mm256_zeroupper(); }
#endif

constexpr std::size_t kPairLanes = 2 * kCellLanes;

/// The upper half of a product: one vector instruction, signed or not.
constexpr Lane high(Lane a, Lane b) { return static_cast<Lane>((a * b) >> 16); }
constexpr Share high(Share a, Share b) { return static_cast<Share>((static_cast<unsigned>(a) * b) >> 16); }

template <std::size_t kLanes, typename T>
std::array<T, kLanes> repeated(const std::array<T, 4>& four) {
    std::array<T, kLanes> lanes{};
    for (std::size_t i = 0; i < kLanes; ++i) lanes[i] = four[i % 4];
    return lanes;
}

constexpr auto kToLightLevels = static_cast<Share>(kLightLevel * 255.0 / kWhole * 65536.0 + 0.5);

Shares groundShares(const Pixel& ground) {
    Shares shares{};
    for (std::size_t i = 0; i < shares.size(); ++i) {
        shares[i] = static_cast<Share>(kToLightLevels * ground[i] / 255);
    }
    return shares;
}

/// What is left of kLightLevel after two ways of mixing.
constexpr int kQuarterLevelBits = 5;
static_assert(kLightLevel == 4 << kQuarterLevelBits);
template <int kBits>
constexpr std::uint8_t lit(std::uint8_t ground, Lane light) {
    const auto levels = static_cast<Lane>(light + (1 << (kBits - 1))) >> kBits;
    return static_cast<std::uint8_t>(std::clamp<Lane>(static_cast<Lane>(ground + levels), 0, 255));
}

struct Clipped {
    std::size_t first;
    std::size_t lanes;
};
/// None where the run ends before it begins.
Clipped clip(const Run& run, const LightTarget& target) {
    const int first = std::max<int>(run.first, target.left);
    const int blocks = std::max(std::min<int>(run.end, target.right) - first, 0);
    return {static_cast<std::size_t>(first) * kBlockLanes, static_cast<std::size_t>(blocks) * kBlockLanes};
}

void lightRun(std::uint8_t* __restrict out, const std::uint8_t* __restrict ground, const Lane* __restrict upper,
              const Lane* __restrict lower, Lane upperShare, Lane lowerShare, std::size_t lanes) {
    for (std::size_t at = 0; at < lanes; at += kBlockLanes) {
        for (std::size_t i = at; i < at + kBlockLanes; ++i) {
            const auto light = static_cast<Lane>(high(upper[i], upperShare) + high(lower[i], lowerShare));
            out[i] = lit<kQuarterLevelBits>(ground[i], light);
        }
    }
}

void lightMaskedRun(std::uint8_t* __restrict out, const std::uint8_t* __restrict ground, const Lane* __restrict upper,
                    const Lane* __restrict lower, Lane upperShare, Lane lowerShare, const Lane* __restrict mask,
                    std::size_t lanes) {
    for (std::size_t at = 0; at < lanes; at += kBlockLanes) {
        for (std::size_t i = at; i < at + kBlockLanes; ++i) {
            const auto light = static_cast<Lane>(high(upper[i], upperShare) + high(lower[i], lowerShare));
            out[i] = lit<kQuarterLevelBits - 1>(ground[i], high(light, mask[i]));
        }
    }
}

void spreadRun(Lane* __restrict out, const Lane* __restrict cells, const std::uint16_t* __restrict cell,
               const Lane* __restrict leftShares, const Lane* __restrict rightShares, std::size_t pixels) {
    for (std::size_t pixel = 0; pixel < pixels; ++pixel, out += 4, leftShares += 4, rightShares += 4) {
        const Lane* const left = cells + cell[pixel] * kCellLanes;
        for (std::size_t i = 0; i < 4; ++i) {
            out[i] = static_cast<Lane>(high(left[i], leftShares[i]) + high(left[kCellLanes + i], rightShares[i]));
        }
    }
}

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

void clearWideRegisters() {
#ifdef __x86_64__
    if (__builtin_cpu_supports("avx")) zeroUpperHalves();
#endif
}

void addWeighted(Share* __restrict sum, const Share* __restrict weights, std::size_t cells, const Shares& light) {
    const auto lanes = repeated<kPairLanes>(light);
    for (std::size_t at = 0; at < cells * kCellLanes; at += kPairLanes) {
        for (std::size_t i = 0; i < kPairLanes; ++i) {
            sum[at + i] = static_cast<Share>(sum[at + i] + high(weights[at + i], lanes[i]));
        }
    }
}

void mixRows(Share* __restrict out, const Share* __restrict upper, const Share* __restrict lower, unsigned quarters,
             std::size_t cells) {
    const auto top = static_cast<Share>(quarters);
    const auto bottom = static_cast<Share>(4 - quarters);
    for (std::size_t i = 0; i < cells * kCellLanes; ++i) {
        out[i] = static_cast<Share>(static_cast<Share>(upper[i] * top + lower[i] * bottom) >> 2);
    }
}

void doubleCells(Share* __restrict out, const Share* __restrict row, std::size_t cells) {
    for (std::size_t cell = 0; cell < cells; ++cell, out += kPairLanes, row += kCellLanes) {
        const Share* const left = row - kCellLanes;
        const Share* const right = row + kCellLanes;
        for (std::size_t i = 0; i < kCellLanes; ++i) out[i] = static_cast<Share>(left[i] + 3 * row[i]);
        for (std::size_t i = 0; i < kCellLanes; ++i) out[kCellLanes + i] = static_cast<Share>(3 * row[i] + right[i]);
    }
}

void repeatCover(Share* __restrict out, const Share* __restrict cells, std::size_t count) {
    for (std::size_t cell = 0; cell < count; ++cell, out += kCellLanes, cells += kCellLanes) {
        const Share cover = cells[3];
        for (std::size_t i = 0; i < kCellLanes; ++i) out[i] = cover;
    }
}

void layUnder(Share* __restrict upper, const Share* __restrict lower, const Share* __restrict cover,
              std::size_t cells) {
    for (std::size_t i = 0; i < cells * kCellLanes; ++i) {
        upper[i] = static_cast<Share>(upper[i] + high(lower[i], static_cast<Share>(kWhole - cover[i])));
    }
}

void changeGround(Lane* __restrict out, const Share* __restrict light, const Share* __restrict cover,
                  const Pixel& ground, std::size_t cells) {
    const auto shares = repeated<kPairLanes>(groundShares(ground));
    for (std::size_t at = 0; at < cells * kCellLanes; at += kPairLanes) {
        for (std::size_t i = 0; i < kPairLanes; ++i) {
            out[at + i] = static_cast<Lane>(high(light[at + i], kToLightLevels) - high(cover[at + i], shares[i]));
        }
    }
}

void spreadCells(Lane* out, const Lane* cells, CellSteps steps, std::span<const Run> runs) {
    for (const Run& run : runs) {
        const std::size_t pixel = static_cast<std::size_t>(run.first) * kBlockPixels;
        spreadRun(out + pixel * 4, cells, steps.cell + pixel, steps.left + pixel * 4, steps.right + pixel * 4,
                  static_cast<std::size_t>(run.end - run.first) * kBlockPixels);
    }
}

void addLight(const LightTarget& target, const LightRows& light, std::span<const Run> runs) {
    for (const Run& run : runs) {
        const auto [first, lanes] = clip(run, target);
        lightRun(target.out + first, target.ground + first, light.upper + first, light.lower + first, light.upperShare,
                 light.lowerShare, lanes);
    }
}

void addMaskedLight(const LightTarget& target, const LightRows& light, std::span<const Run> runs, const Lane* masks) {
    for (const Run& run : runs) {
        const auto [first, lanes] = clip(run, target);
        lightMaskedRun(target.out + first, target.ground + first, light.upper + first, light.lower + first,
                       light.upperShare, light.lowerShare, masks + run.mask + first - run.first * kBlockLanes, lanes);
    }
}

void paintCap(const Part& part, const CapPlanes& cap, const CapLight& light) {
    const CapPainter painter{cap, repeated<kBlockLanes>(light.color), light.glow};
    for (int y = part.top; y < part.bottom; ++y) painter.paintRow(part.out + y * part.stride, y, part.left, part.right);
}

void blendColor(const Part& part, const std::uint8_t* mask, std::size_t blocks, const Pixel& color) {
    const auto lanes = repeated<kBlockLanes>(color);
    for (int y = part.top; y < part.bottom; ++y) {
        const std::size_t first = static_cast<std::size_t>(y) * blocks + static_cast<std::size_t>(part.left);
        std::uint8_t* const row = part.out + y * part.stride;
        mixRow(row + static_cast<std::size_t>(part.left) * kBlockLanes, mask + first * kBlockLanes,
               static_cast<std::size_t>(part.right - part.left), lanes);
    }
}

void layOver(const Part& part, std::span<const OverlayBlock> blocks) {
    for (const OverlayBlock& each : blocks) {
        if (each.row < part.top || each.row >= part.bottom || each.block < part.left || each.block >= part.right) {
            continue;
        }
        overlay(part.out + each.row * part.stride + static_cast<std::size_t>(each.block) * kBlockLanes, each.add.data(),
                each.keep.data());
    }
}

}  // namespace lumo::pixels
