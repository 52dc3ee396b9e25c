#include "keyboard/DrawnCap.h"

#include "keyboard/KeyLegend.h"

namespace lumo {

std::shared_ptr<const KeycapSprite> CapSprites::find(const QRectF& key, double scale, const KeycapLook& look) {
    const auto draw = [&] { return std::make_shared<const KeycapSprite>(key, scale, look); };
    if (look.hover > 0.0 || look.press > 0.0) return draw();
    auto& known = m_known[{key.width(), key.height(), look.isModifier, look.legendRise, key.x(), key.y(), scale}];
    if (!known) known = draw();
    return known;
}

DrawnCap::DrawnCap(const KeyCap& key, const KeyTouch& touch, const DeviceGrid& grid, CapSprites& sprites)
    : m_corner(grid.pixelsAround(capBounds(rectOf(key))).topLeft()) {
    const QRectF rect = grid.toPixels().mapRect(rectOf(key)).translated(-m_corner);
    const QRectF face = faceOf(rectOf(key), touch.press);
    const KeyLegend legend = legendOf(key, face);
    m_sprite = sprites.find(rect, grid.scale, {isModifier(key), touch.hover, touch.press, legendRise(key, face)});
    m_legend = LegendMask(legend.main, grid);
    m_fnLegend = LegendMask(legend.fn, grid);
}

void DrawnCap::paint(const FrameView& frame, const BlockArea& area, const KeyShade& shade) const {
    const QRect shown = rect().intersected(area.pixels());
    if (shown.isEmpty()) return;
    const LegendColors colors = legendColors(shade);
    m_sprite->paint(frame.part(m_corner, shown), shade);
    m_legend.paint(frame, area, colors.main);
    m_fnLegend.paint(frame, area, colors.fn);
}

}  // namespace lumo
