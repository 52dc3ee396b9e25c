// Lays the keys' light on the case's picture, wherever no cap covers it.
#pragma once

#include <QImage>
#include <cstdint>
#include <span>
#include <vector>

#include "keyboard/DeviceGrid.h"
#include "keyboard/FrameView.h"
#include "keyboard/GlowField.h"
#include "keyboard/LightLoops.h"

namespace lumo {

/// What the caps do to the blocks below them.
enum class CapCover : std::uint8_t { none, partly, whole };

/// For one device. Main thread: paints with rows of its own.
class GlowPass final {
public:
    /// `ground` is the case's picture over the window, QImage::Format_RGB32 and whole blocks wide; `lightMask` of the
    /// same size says in each pixel how much of the light it takes; `covers` has one entry a block, row by row.
    GlowPass(const DeviceGrid& grid, QImage ground, const QImage& lightMask, std::span<const CapCover> covers);

    [[nodiscard]] const QImage& ground() const { return m_ground; }

    /// Only inside of `area`.
    void paint(const FrameView& frame, const BlockArea& area, GlowField& field);

private:
    struct RowPlace {  // of a row of pixels among the rows of the field
        int upper = 0;
        pixels::Lane share = 0;  // of the upper one
    };
    using Runs = std::vector<std::vector<pixels::Run>>;

    void placePixels(const DeviceGrid& grid);
    void findRuns(const QImage& lightMask, std::span<const CapCover> covers);
    void addBlock(int row, int block, const QImage& lightMask);
    void findNeededCells();
    void spread(int row, std::vector<pixels::Lane>& out, GlowField& field) const;
    void spreadAround(int upper, GlowField& field);

    QImage m_ground;
    BlockArea m_blocks;
    std::vector<std::uint16_t> m_cells;      // left one of each pixel's two
    std::vector<pixels::Lane> m_leftShares;  // of those two
    std::vector<pixels::Lane> m_rightShares;
    std::vector<RowPlace> m_rowPlaces;
    Runs m_open;    // blocks that take light fully, by row of pixels
    Runs m_masked;  // those that take a part of it
    Runs m_spread;  // those that need a row of the field
    std::vector<pixels::Lane> m_masks;
    std::vector<pixels::Lane> m_upper;  // rows of the field, spread to pixels
    std::vector<pixels::Lane> m_lower;
    int m_upperRow = -1;
};

}  // namespace lumo
