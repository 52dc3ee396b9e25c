#include "keyboard/GlowField.h"

#include <algorithm>
#include <array>

#include "controls/Theme.h"
#include "keyboard/KeyboardCase.h"
#include "keyboard/LightLoops.h"
#include "keyboard/WideRegisters.h"

namespace lumo {
namespace {

// Cells. Pixels of the plate and of the desk lie between cells of their own part only.
constexpr int kPlateLeft = 4;
constexpr int kPlateRight = 322;
constexpr int kPlateTop = 8;
constexpr int kPlateBottom = 116;
constexpr QRect kPlate{QPoint(kPlateLeft, kPlateTop), QPoint(kPlateRight - 1, kPlateBottom - 1)};
constexpr std::array<QRect, 4> kDesk{{
    {QPoint(0, 0), QPoint(GlowField::kCells - 1, kPlateTop - 1)},
    {QPoint(0, kPlateBottom), QPoint(GlowField::kCells - 1, GlowField::kRows - 1)},
    {QPoint(0, kPlateTop), QPoint(kPlateLeft - 1, kPlateBottom - 1)},
    {QPoint(kPlateRight, kPlateTop), QPoint(GlowField::kCells - 1, kPlateBottom - 1)},
}};
constexpr std::size_t kPlateLane = kPlateLeft * pixels::kCellLanes;
constexpr std::size_t kPlateCells = kPlateRight - kPlateLeft;
constexpr int kFarRows = GlowField::kRows / 2;
constexpr QRect kFarPlate{QPoint(kPlateLeft / 2 - 1, kPlateTop / 2 - 1), QPoint(kPlateRight / 2, kPlateBottom / 2)};

constexpr double kDoubled = 65536.0 / pixels::kWhole / 4.0;  // what doubleCells and layUnder do to the far layer
constexpr GlowLayer kNearLayer{GlowField::kCell, {1, 1, 2}, 0.74};
constexpr GlowLayer kFarLayer{2.0 * GlowField::kCell, {3, 3, 3}, 0.38 * kDoubled};
// Seen from above its front edge, the case stands clear of the desk there: light comes out below it, hardly above.
constexpr GlowLayer kDeskLayer{GlowField::kCell, {3, 3, 3}, 0.16, 1.035, 1.10, 5.0};

pixels::Pixel pixelOf(const QColor& color) {
    const auto lane = [](int level) { return static_cast<pixels::Lane>(level); };
    return {lane(color.blue()), lane(color.green()), lane(color.red()), 255};
}

/// The plate is a little darker where the case shades it.
QColor plateColor(int row) {
    const double down = ((row + 0.5) * GlowField::kCell - kWellRect.top()) / kWellRect.height();
    const int lighter = down < 0.1 ? static_cast<int>(std::max(down, 0.0) * 60.0) : static_cast<int>(5.5 + down * 4.5);
    return {0x08 + lighter, 0x08 + lighter, 0x0A + lighter};
}

}  // namespace

GlowField::GlowField(const std::vector<KeyCap>& keys)
    : m_near(keys, kNearLayer, std::span(&kPlate, 1), kRows),
      m_desk(keys, kDeskLayer, kDesk, kRows),
      m_far(keys, kFarLayer, std::span(&kFarPlate, 1), kFarRows),
      m_lights(keys.size()),
      m_farSums(kFarRows * kFarRowLanes),
      m_mixed(kFarRowLanes),
      m_farRow(kRowLanes),
      m_row(kRowLanes),
      m_cover(kRowLanes),
      m_field(static_cast<std::size_t>(kRows * kRowLanes)),
      m_isKnown(kRows) {}

void GlowField::update(std::span<const KeyShade> shades) {
    pixels::clearWideRegisters();
    std::ranges::transform(shades, m_lights.begin(), emittedLight);
    gatherFar();
    m_isKnown.assign(m_isKnown.size(), false);
}

const pixels::Lane* GlowField::row(int row) {
    if (!m_isKnown[static_cast<std::size_t>(row)]) workOut(row);
    m_isKnown[static_cast<std::size_t>(row)] = true;
    return m_field.data() + row * kRowLanes;
}

void GlowField::workOut(int row) {
    std::ranges::fill(m_row, pixels::Share{0});
    gather(m_near, row, m_row.data());
    gather(m_desk, row, m_row.data());
    if (row < kPlateTop || row >= kPlateBottom) return addDesk(row, 0, kCells + 1);
    addDesk(row, 0, kPlateLeft);
    addPlate(row);
    addDesk(row, kPlateRight, kCells + 1);
}

void GlowField::gather(const GlowWeights& weights, int row, pixels::Share* sums) const {
    for (const GlowWeights::Stretch& stretch : weights.row(row)) {
        pixels::addWeighted(sums + stretch.firstCell * pixels::kCellLanes, weights.weights(stretch), stretch.cells,
                            m_lights[stretch.key]);
    }
}

void GlowField::gatherFar() {
    std::ranges::fill(m_farSums, pixels::Share{0});
    for (int row = 0; row < kFarRows; ++row) gather(m_far, row, m_farSums.data() + row * kFarRowLanes);
}

/// Rows of the field lie a quarter of a far row above or below the middle of one.
void GlowField::spreadFar(int row) {
    const int upper = (row + 1) / 2 - 1;
    const unsigned quarters = row % 2 == 0 ? 1 : 3;
    constexpr std::size_t kFirst = kPlateLeft / 2 * pixels::kCellLanes;
    constexpr std::size_t kCount = (kPlateRight - kPlateLeft) / 2;
    const pixels::Share* const from = m_farSums.data() + upper * kFarRowLanes + kFirst - pixels::kCellLanes;
    pixels::mixRows(m_mixed.data() + kFirst - pixels::kCellLanes, from, from + kFarRowLanes, quarters, kCount + 2);
    pixels::doubleCells(m_farRow.data() + kPlateLane, m_mixed.data() + kFirst, kCount);
}

void GlowField::addPlate(int row) {
    spreadFar(row);
    pixels::Share* const light = m_row.data() + kPlateLane;
    pixels::Share* const cover = m_cover.data() + kPlateLane;
    pixels::repeatCover(cover, light, kPlateCells);
    pixels::layUnder(light, m_farRow.data() + kPlateLane, cover, kPlateCells);
    pixels::repeatCover(cover, light, kPlateCells);
    pixels::changeGround(m_field.data() + row * kRowLanes + kPlateLane, light, cover, pixelOf(plateColor(row)),
                         kPlateCells);
}

void GlowField::addDesk(int row, int first, int end) {
    const std::size_t lane = static_cast<std::size_t>(first) * pixels::kCellLanes;
    const auto cells = static_cast<std::size_t>(end - first);
    pixels::repeatCover(m_cover.data() + lane, m_row.data() + lane, cells);
    pixels::changeGround(m_field.data() + row * kRowLanes + lane, m_row.data() + lane, m_cover.data() + lane,
                         pixelOf(theme::kWindow), cells);
}

}  // namespace lumo
