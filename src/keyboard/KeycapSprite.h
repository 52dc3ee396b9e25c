// One cap as it looks in any light: drawn once, then only reckoned.
#pragma once

#include <QRectF>
#include <QSize>
#include <vector>

#include "keyboard/CapLoops.h"
#include "keyboard/DeviceGrid.h"
#include "keyboard/KeyShade.h"
#include "keyboard/KeycapRecipe.h"

namespace lumo {

/// Value; any thread.
class KeycapSprite final {
public:
    /// `key` in pixels, measured from the corner of the sprite's first pixel.
    KeycapSprite(const QRectF& key, double scale, const KeycapLook& look);

    [[nodiscard]] QSize size() const { return m_size; }
    /// The pixels of a row through which nothing shows.
    struct Opaque {
        int first;
        int end;
    };
    [[nodiscard]] Opaque opaque(int row) const;

    void paint(const pixels::Part& part, const KeyShade& shade) const;

private:
    struct Tint {
        std::vector<pixels::Lane> perColor;
        std::vector<pixels::Lane> perGlow;
    };
    struct Rows {
        int first = 0;
        int end = 0;
    };

    [[nodiscard]] std::ptrdiff_t rowLanes() const {
        return std::ptrdiff_t{m_blocks} * std::ptrdiff_t{pixels::kBlockLanes};
    }
    void draw(const KeycapRecipe& recipe, double scale);
    void store(std::size_t firstLane, const KeycapPixel& pixel);
    void addHalo(const QPointF& centre, double radius);
    void addHaloAt(int x, int y, int share);  // of 65536
    void findBodies();
    void findEvenRun(int start, pixels::CapPlanes::Body& body) const;
    [[nodiscard]] bool isOpaque(int block) const;
    [[nodiscard]] bool areAlike(int one, int other) const;
    void paintRows(pixels::Part part, const Rows& rows, const Tint& tint, int tinted,
                   const pixels::CapLight& light) const;

    QSize m_size;      // pixels
    int m_blocks = 0;  // in a row
    std::vector<pixels::Lane> m_unlit;
    std::vector<pixels::Share> m_keep;
    Tint m_plain;
    Rows m_haloRows;
    Tint m_haloed;  // of those rows
    std::vector<pixels::CapPlanes::Body> m_bodies;
};

}  // namespace lumo
