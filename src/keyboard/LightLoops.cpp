#include "keyboard/LightLoops.h"

#include <algorithm>

#include "keyboard/WidestVectors.h"

namespace lumo::pixels {
namespace {

constexpr std::size_t kPairLanes = 2 * kCellLanes;

constexpr auto kToLightLevels = static_cast<Share>(255ULL * kLightLevel * 65536 / kWhole);

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

}  // namespace

LUMO_WIDEST void addWeighted(Share* __restrict sum, const Share* __restrict weights, std::size_t cells,
                             const Shares& light) {
    const auto lanes = repeated<kPairLanes>(light);
    for (std::size_t at = 0; at < cells * kCellLanes; at += kPairLanes) {
        for (std::size_t i = 0; i < kPairLanes; ++i) {
            sum[at + i] = static_cast<Share>(sum[at + i] + high(weights[at + i], lanes[i]));
        }
    }
}

LUMO_WIDEST void mixRows(Share* __restrict out, const Share* __restrict upper, const Share* __restrict lower,
                         unsigned quarters, std::size_t cells) {
    const auto top = static_cast<Share>(quarters);
    const auto bottom = static_cast<Share>(4 - quarters);
    for (std::size_t i = 0; i < cells * kCellLanes; ++i) {
        out[i] = static_cast<Share>(static_cast<Share>(upper[i] * top + lower[i] * bottom) >> 2);
    }
}

LUMO_WIDEST void doubleCells(Share* __restrict out, const Share* __restrict row, std::size_t cells) {
    for (std::size_t cell = 0; cell < cells; ++cell, out += kPairLanes, row += kCellLanes) {
        const Share* const left = row - kCellLanes;
        const Share* const right = row + kCellLanes;
        for (std::size_t i = 0; i < kCellLanes; ++i) out[i] = static_cast<Share>(left[i] + 3 * row[i]);
        for (std::size_t i = 0; i < kCellLanes; ++i) out[kCellLanes + i] = static_cast<Share>(3 * row[i] + right[i]);
    }
}

LUMO_WIDEST void repeatCover(Share* __restrict out, const Share* __restrict cells, std::size_t count) {
    for (std::size_t cell = 0; cell < count; ++cell, out += kCellLanes, cells += kCellLanes) {
        const Share cover = cells[3];
        for (std::size_t i = 0; i < kCellLanes; ++i) out[i] = cover;
    }
}

LUMO_WIDEST void layUnder(Share* __restrict upper, const Share* __restrict lower, const Share* __restrict cover,
                          std::size_t cells) {
    for (std::size_t i = 0; i < cells * kCellLanes; ++i) {
        upper[i] = static_cast<Share>(upper[i] + high(lower[i], static_cast<Share>(kWhole - cover[i])));
    }
}

LUMO_WIDEST void changeGround(Lane* __restrict out, const Share* __restrict light, const Share* __restrict cover,
                              const Pixel& ground, std::size_t cells) {
    const auto shares = repeated<kPairLanes>(groundShares(ground));
    for (std::size_t at = 0; at < cells * kCellLanes; at += kPairLanes) {
        for (std::size_t i = 0; i < kPairLanes; ++i) {
            out[at + i] = static_cast<Lane>(high(light[at + i], kToLightLevels) - high(cover[at + i], shares[i]));
        }
    }
}

LUMO_WIDEST void spreadCells(Lane* out, const Lane* cells, CellSteps steps, std::span<const Run> runs) {
    for (const Run& run : runs) {
        const std::size_t pixel = static_cast<std::size_t>(run.first) * kBlockPixels;
        spreadRun(out + pixel * 4, cells, steps.cell + pixel, steps.left + pixel * 4, steps.right + pixel * 4,
                  static_cast<std::size_t>(run.end - run.first) * kBlockPixels);
    }
}

LUMO_WIDEST void addLight(const LightTarget& target, const LightRows& light, std::span<const Run> runs) {
    for (const Run& run : runs) {
        const auto [first, lanes] = clip(run, target);
        if (lanes == 0) continue;
        lightRun(target.out + first, target.ground + first, light.upper + first, light.lower + first, light.upperShare,
                 light.lowerShare, lanes);
    }
}

LUMO_WIDEST void addMaskedLight(const LightTarget& target, const LightRows& light, std::span<const Run> runs,
                                const Lane* masks) {
    for (const Run& run : runs) {
        const auto [first, lanes] = clip(run, target);
        if (lanes == 0) continue;
        lightMaskedRun(target.out + first, target.ground + first, light.upper + first, light.lower + first,
                       light.upperShare, light.lowerShare, masks + run.mask + first - run.first * kBlockLanes, lanes);
    }
}

}  // namespace lumo::pixels
