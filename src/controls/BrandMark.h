// The product's mark: the violet hexagon.
#pragma once

#include <QColor>
#include <QPainter>

namespace lumo {

/// Main thread.
class BrandMark final {
public:
    /// Paints into a square, in the accent violet or in a hovered or pressed one.
    void paint(QPainter& painter, const QRectF& rect, const QColor& fill) const;
};

}  // namespace lumo
