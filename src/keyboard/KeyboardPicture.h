// The on-screen keyboard's picture: composed pixel by pixel for the screen it is on, only where it changed.
#pragma once

#include <QPointF>
#include <QRect>
#include <future>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "controls/PictureSource.h"
#include "keyboard/DeviceGrid.h"
#include "keyboard/DrawnKeys.h"
#include "keyboard/GlowField.h"
#include "keyboard/KeyCap.h"
#include "keyboard/KeyLook.h"
#include "keyboard/KeyShade.h"

class QPainter;

namespace lumo {

class PictureLayers;

/// Main thread. 650 x 247 points. What depends on the screen is drawn in the first paint() and again when a painter
/// comes with another scale or place among the pixels.
class KeyboardPicture final {
public:
    /// `picture` shows case and plate, and may show the caps, which are drawn over it; where it is null, the case is
    /// drawn, too. It is asked for it in the first paint().
    KeyboardPicture(std::vector<KeyCap> keys, PictureSource picture);
    KeyboardPicture(const KeyboardPicture&) = delete;
    KeyboardPicture& operator=(const KeyboardPicture&) = delete;
    ~KeyboardPicture();

    /// Begins to draw the keys on another thread, as a screen of `scale` pixels a point will want them: in paint() they
    /// are at hand then.
    void drawAhead(double scale);

    /// One look a key, in the order of the keys. Returns what has changed, in points: everything when light did, else
    /// no more than the changed keys and the 2 points around them that their rings take. Empty when every pixel stays.
    QRect compose(std::span<const KeyLook> looks);

    /// Draws the part `dirty` of the picture, whose upper left corner is at `origin`. The ground is the window's
    /// colour.
    void paint(QPainter& painter, const QPointF& origin, const QRect& dirty);

private:
    struct Ahead {
        Ahead(const std::vector<KeyCap>& layout, const DeviceGrid& grid) : field(layout), keys(layout, grid) {}

        GlowField field;
        DrawnKeys keys;
    };

    [[nodiscard]] bool takeLights(std::span<const KeyLook> looks);
    [[nodiscard]] QRect takeTouches(std::span<const KeyLook> looks);
    void makeLayers(const DeviceGrid& grid);
    [[nodiscard]] DrawnKeys drawKeys(const DeviceGrid& grid);

    std::vector<KeyCap> m_keys;
    PictureSource m_picture;
    std::future<Ahead> m_ahead;
    std::optional<GlowField> m_field;  // none before the first paint(), as the layers
    std::vector<KeyShade> m_shades;
    std::vector<KeyTouch> m_touches;
    std::vector<std::size_t> m_touched;       // in this compose()
    std::unique_ptr<PictureLayers> m_layers;  // none before the first paint()
    bool m_isNew = true;
};

}  // namespace lumo
