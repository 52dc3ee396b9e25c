// Artwork, drawn smaller than it is kept.
#pragma once

#include <QImage>
#include <QPainter>

namespace lumo {

/// Main thread. Stretches the picture over `frame`, every pixel of it counted in; the last ones drawn are kept at their
/// size. Null paints nothing.
void paintPicture(QPainter& painter, const QRectF& frame, const QImage& picture);

}  // namespace lumo
