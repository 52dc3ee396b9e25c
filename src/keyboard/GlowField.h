// The light that the keys throw on their surroundings, in places of two points by two.
#pragma once

#include <QColor>
#include <span>
#include <vector>

#include "keyboard/GlowWeights.h"
#include "keyboard/KeyShade.h"

namespace lumo {

/// By how much light changes what lies below it: on the plate among the keys, and on the desk around the case. Nothing
/// in between, where the case is. One thread at a time.
class GlowField final {
public:
    static constexpr double kCell = 2.0;  // points
    static constexpr int kCells = 325;
    static constexpr int kRows = 124;

    explicit GlowField(const std::vector<KeyCap>& keys);

    /// One shade a key, in the order of the keys.
    void update(std::span<const KeyShade> shades);

    /// The places of one row, in pixels::kLightLevel, until the next update(). Worked out when it is first needed, so
    /// that it is still at hand when it is.
    [[nodiscard]] const pixels::Lane* row(int row);

private:
    static constexpr int kRowCells = 328;  // room for pairs of cells
    static constexpr int kRowLanes = kRowCells * static_cast<int>(pixels::kCellLanes);
    static constexpr int kFarRowCells = 168;
    static constexpr int kFarRowLanes = kFarRowCells * static_cast<int>(pixels::kCellLanes);

    using Sums = std::vector<pixels::Share>;

    void gather(const GlowWeights& weights, int row, pixels::Share* sums) const;
    void gatherFar();
    void workOut(int row);
    void spreadFar(int row);
    void addDesk(int row, int first, int end);
    void addPlate(int row);

    GlowWeights m_near;
    GlowWeights m_desk;
    GlowWeights m_far;
    std::vector<pixels::Shares> m_lights;
    Sums m_farSums;  // all rows
    Sums m_mixed;    // one row between two of them
    Sums m_farRow;   // the same in full width
    Sums m_row;      // the upper layer of one row, then both
    Sums m_cover;    // its opacity
    std::vector<pixels::Lane> m_field;
    std::vector<bool> m_isKnown;  // its rows
};

}  // namespace lumo
