// Everything of the on-screen keyboard that is drawn once for a device, and the frame that is put together from it.
#pragma once

#include <QImage>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <tuple>
#include <vector>

#include "keyboard/GlowPass.h"
#include "keyboard/KeyLook.h"
#include "keyboard/KeyRing.h"
#include "keyboard/KeycapSprite.h"
#include "keyboard/LegendMask.h"

namespace lumo {

/// Main thread. The keys outlive it.
class PictureLayers final {
public:
    /// `picture` may be null; then the case is drawn.
    PictureLayers(const DeviceGrid& grid, const std::vector<KeyCap>& keys, const QImage& picture);

    [[nodiscard]] const DeviceGrid& grid() const { return m_grid; }
    [[nodiscard]] const QImage& frame() const { return m_frame; }

    /// Draws what the pointer, the selection or the focus changed on a key. Its place is not composed yet.
    void setTouch(std::size_t key, const KeyTouch& touch);

    void composeAll(std::span<const KeyShade> shades, GlowField& field);
    /// The key and its rings.
    void composeKey(std::size_t key, std::span<const KeyShade> shades, GlowField& field);

private:
    struct Cap {
        [[nodiscard]] QRect rect() const { return {corner, sprite->size()}; }

        std::shared_ptr<const KeycapSprite> sprite;
        QPoint corner;  // its first pixel
        LegendMask legend;
        LegendMask fnLegend;
    };
    // Width, height, kind, the legend's place, and the cap's in the first pixel: caps that share these look the same.
    using Likeness = std::tuple<double, double, bool, double, double, double>;

    [[nodiscard]] Cap makeCap(const KeyCap& key, const KeyTouch& touch);
    [[nodiscard]] std::shared_ptr<const KeycapSprite> sprite(const QRectF& inPixel, const KeycapLook& look);
    [[nodiscard]] std::vector<CapCover> covers() const;
    [[nodiscard]] GlowPass makeGlow(const QImage& picture) const;
    void compose(const BlockArea& area, std::span<const KeyShade> shades, GlowField& field);
    void paintCap(const Cap& cap, const BlockArea& area, const KeyShade& shade);
    void paintRings(const BlockArea& area);

    const std::vector<KeyCap>& m_keys;
    DeviceGrid m_grid;
    std::map<Likeness, std::shared_ptr<const KeycapSprite>> m_sprites;
    std::vector<Cap> m_caps;
    std::vector<std::optional<Cap>> m_touchedCaps;  // in the place of those at rest
    std::vector<std::optional<KeyRing>> m_rings;
    std::vector<bool> m_isMarked;  // selected or focused: drawn after all others
    GlowPass m_glow;
    QImage m_frame;
};

}  // namespace lumo
