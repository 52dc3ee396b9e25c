// Everything of the on-screen keyboard that is drawn once for a device, and the frame that is put together from it.
#pragma once

#include <QImage>
#include <optional>
#include <span>
#include <vector>

#include "keyboard/DrawnKeys.h"
#include "keyboard/GlowPass.h"
#include "keyboard/KeyRing.h"

namespace lumo {

/// Main thread. The keys outlive it.
class PictureLayers final {
public:
    /// `picture` may be null; then the case is drawn.
    PictureLayers(DrawnKeys drawn, const std::vector<KeyCap>& keys, const QImage& picture);

    [[nodiscard]] const DeviceGrid& grid() const { return m_drawn.grid; }
    [[nodiscard]] const QImage& frame() const { return m_frame; }

    /// Draws what the pointer, the selection or the focus changed on a key. Its place is not composed yet.
    void setTouch(std::size_t key, const KeyTouch& touch);

    void composeAll(std::span<const KeyShade> shades, GlowField& field);
    /// The key and its rings.
    void composeKey(std::size_t key, std::span<const KeyShade> shades, GlowField& field);

private:
    [[nodiscard]] std::vector<CapCover> covers() const;
    [[nodiscard]] GlowPass makeGlow(const QImage& picture) const;
    void compose(const BlockArea& area, std::span<const KeyShade> shades, GlowField& field);
    void paintRings(const BlockArea& area);

    const std::vector<KeyCap>& m_keys;
    DrawnKeys m_drawn;
    std::vector<std::optional<DrawnCap>> m_touchedCaps;  // in the place of those at rest
    std::vector<std::optional<KeyRing>> m_rings;
    std::vector<bool> m_isMarked;  // selected or focused: drawn after all others
    GlowPass m_glow;
    QImage m_frame;
};

}  // namespace lumo
