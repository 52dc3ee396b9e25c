#include "keyboard/GlowPass.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace lumo {
namespace {

using pixels::kBlockLanes;
using pixels::kBlockPixels;
using pixels::Lane;

struct Step {
    int cell;
    Lane share;  // of that cell; the next one has the rest of kShares
};
constexpr Lane kShares = 32767;
constexpr Lane restOf(Lane share) { return static_cast<Lane>(kShares - share); }

/// Blocks come from left to right.
void extend(std::vector<pixels::Run>& runs, int block, std::uint32_t mask) {
    const auto at = static_cast<std::uint16_t>(block);
    if (runs.empty() || runs.back().end != at) runs.push_back({at, at, mask});
    ++runs.back().end;
}

/// Where the middle of a pixel lies between the middles of two cells.
Step stepAt(int pixel, double shift, double scale, int cells) {
    const double place = ((pixel + 0.5 - shift) / scale) / GlowField::kCell - 0.5;
    const double inside = std::clamp(place, 0.0, cells - 1.001);
    const double cell = std::floor(inside);
    return {static_cast<int>(cell), static_cast<Lane>((1.0 - inside + cell) * kShares)};
}

}  // namespace

GlowPass::GlowPass(const DeviceGrid& grid, QImage ground, const QImage& lightMask, std::span<const CapCover> covers)
    : m_ground(std::move(ground)),
      m_blocks(grid.blocks()),
      m_open(static_cast<std::size_t>(m_blocks.bottom)),
      m_masked(m_open.size()),
      m_spread(GlowField::kRows),
      m_upper(static_cast<std::size_t>(m_blocks.right) * kBlockLanes),
      m_lower(m_upper.size()) {
    placePixels(grid);
    findRuns(lightMask, covers);
    findNeededCells();
}

void GlowPass::placePixels(const DeviceGrid& grid) {
    for (int x = 0; x < m_blocks.right * kBlockPixels; ++x) {
        const Step step = stepAt(x, grid.shift.x(), grid.scale, GlowField::kCells);
        m_cells.push_back(static_cast<std::uint16_t>(step.cell));
        m_leftShares.insert(m_leftShares.end(), 4, step.share);
        m_rightShares.insert(m_rightShares.end(), 4, restOf(step.share));
    }
    for (int y = 0; y < m_blocks.bottom; ++y) {
        const Step step = stepAt(y, grid.shift.y(), grid.scale, GlowField::kRows);
        m_rowPlaces.push_back({step.cell, step.share});
    }
}

void GlowPass::findRuns(const QImage& lightMask, std::span<const CapCover> covers) {
    std::size_t place = 0;
    for (int row = 0; row < m_blocks.bottom; ++row) {
        for (int block = 0; block < m_blocks.right; ++block) {
            const CapCover cover = covers[place++];
            if (cover == CapCover::whole) continue;
            const std::uint8_t* const mask = lightMask.constScanLine(row) + block * kBlockPixels;
            const bool takesLight = std::any_of(mask, mask + kBlockPixels, [](std::uint8_t part) { return part > 0; });
            // What lies below a cap's edge is restored for each frame, also where no light falls.
            if (takesLight || cover == CapCover::partly) addBlock(row, block, lightMask);
        }
    }
}

void GlowPass::addBlock(int row, int block, const QImage& lightMask) {
    const std::uint8_t* const mask = lightMask.constScanLine(row) + block * kBlockPixels;
    const bool isOpen = std::all_of(mask, mask + kBlockPixels, [](std::uint8_t part) { return part == 255; });
    extend((isOpen ? m_open : m_masked)[static_cast<std::size_t>(row)], block,
           static_cast<std::uint32_t>(m_masks.size()));
    if (isOpen) return;
    for (int pixel = 0; pixel < kBlockPixels; ++pixel) {
        m_masks.insert(m_masks.end(), 4, static_cast<Lane>(mask[pixel] * kShares / 255));
    }
}

void GlowPass::findNeededCells() {
    std::vector<bool> isNeeded(m_spread.size() * static_cast<std::size_t>(m_blocks.right));
    for (const Runs* const runs : {&m_open, &m_masked}) {
        for (std::size_t row = 0; row < runs->size(); ++row) {
            const int upper = m_rowPlaces[row].upper * m_blocks.right;
            for (const pixels::Run& run : (*runs)[row]) {
                for (const int first : {upper, upper + m_blocks.right}) {
                    std::fill(isNeeded.begin() + first + run.first, isNeeded.begin() + first + run.end, true);
                }
            }
        }
    }
    for (std::size_t i = 0; i < isNeeded.size(); ++i) {
        const auto width = static_cast<std::size_t>(m_blocks.right);
        if (isNeeded[i]) extend(m_spread[i / width], static_cast<int>(i % width), 0);
    }
}

void GlowPass::spread(int row, std::vector<Lane>& out, GlowField& field) const {
    pixels::spreadCells(out.data(), field.row(row), {m_cells.data(), m_leftShares.data(), m_rightShares.data()},
                        m_spread[static_cast<std::size_t>(row)]);
}

void GlowPass::spreadAround(int upper, GlowField& field) {
    if (upper == m_upperRow) return;
    if (upper == m_upperRow + 1 && m_upperRow >= 0) {
        m_upper.swap(m_lower);
    } else {
        spread(upper, m_upper, field);
    }
    spread(upper + 1, m_lower, field);
    m_upperRow = upper;
}

void GlowPass::paint(const FrameView& frame, const BlockArea& area, GlowField& field) {
    m_upperRow = -1;  // the field may have changed
    for (int row = area.top; row < area.bottom; ++row) {
        const auto index = static_cast<std::size_t>(row);
        const RowPlace& place = m_rowPlaces[index];
        spreadAround(place.upper, field);
        const pixels::LightTarget target{frame.block(0, row), m_ground.constScanLine(row), area.left, area.right};
        const pixels::LightRows light{m_upper.data(), m_lower.data(), place.share, restOf(place.share)};
        pixels::addLight(target, light, m_open[index]);
        pixels::addMaskedLight(target, light, m_masked[index], m_masks.data());
    }
}

}  // namespace lumo
