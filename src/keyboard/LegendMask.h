// Letters as shares of a colour, drawn once for a device.
#pragma once

#include <QPainterPath>
#include <cstdint>
#include <vector>

#include "foundation/Color.h"
#include "keyboard/DeviceGrid.h"
#include "keyboard/FrameView.h"

namespace lumo {

/// Value; any thread.
class LegendMask final {
public:
    LegendMask() = default;
    /// `letters` in points.
    LegendMask(const QPainterPath& letters, const DeviceGrid& grid);

    /// Only inside of `area`.
    void paint(const FrameView& frame, const BlockArea& area, ColorBytes color) const;

private:
    BlockArea m_area;
    std::vector<std::uint8_t> m_shares;  // one a channel, 128 is all of it
};

}  // namespace lumo
