#include "controls/Panel.h"

#include <cmath>

#include "controls/Fade.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

void paintRounded(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill, const QColor& line) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(rect, radius, radius);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(line, 1.0));
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
}

/// Without corners; `fill` is opaque and `rect` lies on whole pixels.
void paintStraight(QPainter& painter, const QRectF& rect, const QColor& fill, const QColor& line) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(rect, mix(fill, QColor(line.rgb()), line.alphaF()));
    painter.fillRect(rect.adjusted(1.0, 0.0, -1.0, 0.0), fill);
    painter.setRenderHint(QPainter::Antialiasing);
}

bool isWhole(double number) { return number == std::round(number); }

/// Whether every point of the painter's is a number of whole pixels, and the rectangle begins and ends between two.
bool isOnPixels(const QPainter& painter, const QRectF& rect) {
    const QTransform device = painter.deviceTransform();
    if (device.type() > QTransform::TxScale || !isWhole(device.m11()) || !isWhole(device.m22())) return false;
    const QRectF pixels = device.mapRect(rect);
    return pixels == QRectF(pixels.toRect());
}

}  // namespace

// The form with corners is filled pixel by pixel, and by threads that wait for each other where it is large; between
// its corners it is a rectangle.
void paintPanel(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill, const QColor& line) {
    const double corner = std::ceil(radius);
    const QRectF middle = rect.adjusted(0.0, corner, 0.0, -corner);
    if (!fill.isOpaque() || fill.style() != Qt::SolidPattern || middle.height() < corner ||
        !isOnPixels(painter, rect)) {
        return paintRounded(painter, rect, radius, fill, line);
    }
    paintStraight(painter, middle, fill.color(), line);
    const QSizeF end(rect.width(), corner);
    for (const QRectF& part : {QRectF(rect.topLeft(), end), QRectF(middle.bottomLeft(), end)}) {
        painter.save();
        painter.setClipRect(part, Qt::IntersectClip);
        paintRounded(painter, rect, radius, fill, line);
        painter.restore();
    }
}

void paintCard(QPainter& painter, const QRectF& rect) {
    paintPanel(painter, rect, theme::kCardRadius, theme::kCard, theme::kCardLine);
}

void paintFocusRing(QPainter& painter, const QRectF& rect, double outerRadius) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme::kFocus, 2.0));
    painter.drawRoundedRect(rect.adjusted(1.0, 1.0, -1.0, -1.0), outerRadius - 1.0, outerRadius - 1.0);
}

bool showsFocusRing(Qt::FocusReason reason, bool before) {
    switch (reason) {
        case Qt::MouseFocusReason:
            return false;
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
            return before;
        default:
            return true;
    }
}

}  // namespace lumo
