// The rings around a key of the on-screen keyboard: under the pointer, selected, in the focus.
#pragma once

#include <QRectF>
#include <vector>

#include "keyboard/DeviceGrid.h"
#include "keyboard/FrameView.h"

class QPainter;

namespace lumo {

struct RingLook {
    bool isSelected = false;
    bool isFocused = false;
    double hover = 0.0;  // 0 to 1
    bool operator==(const RingLook&) const = default;

    [[nodiscard]] bool isVisible() const { return isSelected || isFocused || hover > 0.0; }
};

/// Everything a key and its rings paint into.
[[nodiscard]] QRectF ringBounds(const QRectF& key);

/// Points, antialiased.
void paintKeyRing(QPainter& painter, const QRectF& key, const RingLook& look);

/// The same, drawn once for a device. Value; any thread.
class KeyRing final {
public:
    KeyRing(const QRectF& key, const RingLook& look, const DeviceGrid& grid);

    /// Only inside of `area`.
    void paint(const FrameView& frame, const BlockArea& area) const;

private:
    void keepVisible(const QImage& image);

    BlockArea m_area;
    std::vector<pixels::OverlayBlock> m_blocks;  // those where something is drawn
};

}  // namespace lumo
