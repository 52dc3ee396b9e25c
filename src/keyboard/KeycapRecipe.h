// What one cap of the on-screen keyboard is painted of, pixel by pixel, in any light. Without its legend.
#pragma once

#include <QRectF>
#include <array>

#include "keyboard/KeyCap.h"
#include "keyboard/RoundedRect.h"

namespace lumo {

[[nodiscard]] bool isModifier(const KeyCap& key);
[[nodiscard]] inline QRectF rectOf(const KeyCap& key) { return {key.x, key.y, key.width, key.height}; }

/// The upper side, where the legend stands. `press` is how many points lower it lies.
[[nodiscard]] QRectF faceOf(const QRectF& key, double press = 0.0);
/// Everything the cap paints into.
[[nodiscard]] QRectF capBounds(const QRectF& key);

struct KeycapLook {
    bool isModifier = false;  // a darker cap
    double hover = 0.0;       // 0 to 1
    double press = 0.0;       // 0 to 1
    double legendRise = 0.0;  // of the legend's middle above the face's, in points
};

/// A pixel of the cap, 0 to 1: opacity of the cap, its colour unlit and in full black light (already shared out by
/// opacity), and the share that light of another colour adds to the latter. In between everything is linear but for
/// less than a level.
struct KeycapPixel {
    using Rgb = std::array<float, 3>;

    Rgb unlit{};
    Rgb inBlackLight{};
    float ofLight = 0.0F;
    float opacity = 0.0F;
};

/// Immutable; any thread. Points; the caller chooses the origin.
class KeycapRecipe final {
public:
    KeycapRecipe(const QRectF& key, const KeycapLook& look, double pixelsPerPoint);

    [[nodiscard]] KeycapPixel at(double x, double y) const;

    /// Between these, the pixels of a row are all alike.
    [[nodiscard]] double evenFrom() const;
    [[nodiscard]] double evenTo() const;

private:
    void paintSkirt(KeycapPixel& pixel, float x, float y) const;
    void paintFace(KeycapPixel& pixel, float x, float y) const;

    RoundedRect m_shadow;
    RoundedRect m_skirt;
    RoundedRect m_faceShadow;
    RoundedRect m_face;
    float m_scale;
    float m_hover;
    bool m_isModifier;
};

}  // namespace lumo
