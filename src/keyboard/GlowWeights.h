// How much of each key's light reaches each place of the keyboard's picture.
#pragma once

#include <QRect>
#include <QRectF>
#include <QSize>
#include <array>
#include <cstdint>
#include <map>
#include <span>
#include <tuple>
#include <vector>

#include "keyboard/KeyCap.h"
#include "keyboard/PixelBlocks.h"

namespace lumo {

/// One layer of blurred light: what shines below each key, drawn into coarse cells and blurred by three boxes.
struct GlowLayer {
    double cell = 2.0;              // points
    std::array<int, 3> boxRadii{};  // cells
    double strength = 1.0;          // 0 to 1
    double widening = 1.0;          // of the whole about the picture's centre
    double heightening = 1.0;
    double lowering = 0.0;  // points
};

/// Immutable; any thread.
class GlowWeights final {
public:
    struct Stretch {  // a piece of one row of cells that a key lights
        std::uint16_t key = 0;
        std::uint16_t firstCell = 0;
        std::uint16_t cells = 0;  // even; the last one may stand for nothing
        std::uint32_t weights = 0;
    };

    /// Light is taken in inside of `shown` only, which may be several parts of the picture, in cells.
    GlowWeights(const std::vector<KeyCap>& keys, const GlowLayer& layer, std::span<const QRect> shown, int rows);

    [[nodiscard]] std::span<const Stretch> row(int row) const { return m_rows[static_cast<std::size_t>(row)]; }
    [[nodiscard]] const pixels::Share* weights(const Stretch& stretch) const {
        return m_weights.data() + stretch.weights;
    }

private:
    struct Table {  // one key's, cell by cell
        QSize size;
        int stride = 0;  // lanes from one row to the next
        std::size_t first = 0;
    };
    // Size and place among the cells: keys that share these light their surroundings alike.
    using Likeness = std::tuple<double, double, double, double>;

    const Table& table(const QRectF& emitter, QSize size, const QSizeF& radii, const GlowLayer& layer);
    [[nodiscard]] Table addTable(const QRectF& emitter, QSize size, const QSizeF& radii, const GlowLayer& layer);
    void addStretches(std::size_t key, const Table& table, QPoint corner, const QRect& shown);

    std::vector<pixels::Share> m_weights;  // each repeated in every channel
    std::map<Likeness, Table> m_tables;
    std::vector<std::vector<Stretch>> m_rows;
};

}  // namespace lumo
