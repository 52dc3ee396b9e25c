// The picture of all hues and saturations.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <utility>

#include "controls/PictureSource.h"

namespace lumo {

/// Main thread. Scaled from the artwork, or drawn where there is none, once for each size in pixels.
class WheelDisc final {
public:
    /// The disc's radius, of the picture's half width.
    static constexpr double kRadiusShare = 0.98;

    /// The picture is a square, transparent around the disc, or null.
    explicit WheelDisc(PictureSource picture) : m_picture(std::move(picture)) {}

    void paint(QPainter& painter, const QRectF& square);

    /// Square, `pixels` wide.
    [[nodiscard]] const QImage& drawn(int pixels);

private:
    PictureSource m_picture;
    QImage m_drawn;
};

}  // namespace lumo
