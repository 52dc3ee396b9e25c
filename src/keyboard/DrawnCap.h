// One key of the on-screen keyboard, drawn once for a device.
#pragma once

#include <QPoint>
#include <QRect>
#include <map>
#include <memory>
#include <tuple>

#include "keyboard/KeyLook.h"
#include "keyboard/KeyShade.h"
#include "keyboard/KeycapSprite.h"
#include "keyboard/LegendMask.h"

namespace lumo {

/// Keeps what caps at rest look like, so that those of a size are drawn only once. One thread at a time.
class CapSprites final {
public:
    /// `key` in pixels, measured from the corner of the sprite's first pixel.
    [[nodiscard]] std::shared_ptr<const KeycapSprite> find(const QRectF& key, double scale, const KeycapLook& look);

private:
    // Width, height, kind, the legend's place, the cap's in the first pixel and the scale: caps that share these look
    // the same.
    using Likeness = std::tuple<double, double, bool, double, double, double, double>;

    std::map<Likeness, std::shared_ptr<const KeycapSprite>> m_known;
};

/// Value; any thread.
class DrawnCap final {
public:
    DrawnCap(const KeyCap& key, const KeyTouch& touch, const DeviceGrid& grid, CapSprites& sprites);

    /// In pixels.
    [[nodiscard]] QRect rect() const { return {m_corner, m_sprite->size()}; }
    /// The pixels of a row, from the first one of `rect()`, through which nothing shows.
    [[nodiscard]] KeycapSprite::Opaque opaque(int row) const { return m_sprite->opaque(row); }

    /// Only inside of `area`, which lies inside of the frame.
    void paint(const FrameView& frame, const BlockArea& area, const KeyShade& shade) const;

private:
    std::shared_ptr<const KeycapSprite> m_sprite;
    QPoint m_corner;  // its first pixel
    LegendMask m_legend;
    LegendMask m_fnLegend;
};

}  // namespace lumo
