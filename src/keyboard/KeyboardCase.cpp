#include "keyboard/KeyboardCase.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPolygonF>

#include "keyboard/Opacity.h"

namespace lumo {
namespace {

constexpr double kCaseRadius = 16.0;
constexpr QColor kBlockColor{0x29, 0x29, 0x2C};

QLinearGradient downwards(const QRectF& rect, const QGradientStops& stops) {
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setStops(stops);
    return gradient;
}

/// The block fills the place of a key: square towards the case, round towards the keys.
QPainterPath blockPath() {
    QPainterPath path(QPointF(597, 23));
    path.lineTo(638, 23);
    path.lineTo(638, 66);
    path.lineTo(605, 66);
    path.arcTo(QRectF(597, 50, 16, 16), 270, -90);
    path.closeSubpath();
    return path;
}

QPainterPath plate() {
    QPainterPath path;
    path.addRoundedRect(kWellRect, 10, 10);
    return path;
}

/// A blurred shape as a stack of ever smaller ones.
void paintShadow(QPainter& painter) {
    constexpr int kLayers = 14;
    for (int i = 0; i < kLayers; ++i) {
        const QRectF rect(-2.0 + 0.9 * i, 10.25 + 0.675 * i, 655.0 - 1.8 * i, 235.95 - 1.18 * i);
        const double radius = 24.1 - 0.81 * i;
        painter.setBrush(withOpacity(Qt::black, 0.012 + 0.00523 * i));
        painter.drawRoundedRect(rect, radius, radius);
    }
}

void paintBody(QPainter& painter) {
    painter.setBrush(downwards(
        kCaseRect, {{0, QColor(0x3C3C41)}, {0.06, QColor(0x313135)}, {0.9, QColor(0x29292C)}, {1, QColor(0x212124)}}));
    painter.drawPath(casePath());
    const QLinearGradient edge = downwards(
        kCaseRect,
        {{0, withOpacity(Qt::white, 0.22)}, {0.12, withOpacity(Qt::white, 0.07)}, {1, withOpacity(Qt::white, 0.03)}});
    painter.strokePath(
        [] {
            QPainterPath path;
            path.addRoundedRect(kCaseRect.adjusted(0.5, 0.5, -0.5, -0.5), kCaseRadius - 0.5, kCaseRadius - 0.5);
            return path;
        }(),
        QPen(edge, 1));
}

void paintPlate(QPainter& painter) {
    painter.setBrush(withOpacity(Qt::black, 0.5));
    painter.drawRoundedRect(kWellRect.adjusted(-1, -1, 1, 1), 11, 11);
    painter.fillPath(plate(),
                     downwards(kWellRect, {{0, QColor(0x08080A)}, {0.1, QColor(0x0E0E10)}, {1, QColor(0x121214)}}));
}

void paintBlock(QPainter& painter) {
    painter.fillPath(blockPath() & plate(), kBlockColor);
    const QPolygonF hexagon({{617.5, 37.6}, {623.6, 41.1}, {623.6, 48.1}, {617.5, 51.6}, {611.4, 48.1}, {611.4, 41.1}});
    painter.setBrush(QColor(0x1C1C1E));
    painter.setPen(QPen(withOpacity(Qt::white, 0.16), 1, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    painter.drawPolygon(hexagon);
}

}  // namespace

QPainterPath casePath() {
    QPainterPath path;
    path.addRoundedRect(kCaseRect, kCaseRadius, kCaseRadius);
    return path;
}

QPainterPath wellPath() { return plate() - blockPath(); }

void paintKeyboardCase(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    paintShadow(painter);
    paintBody(painter);
    paintPlate(painter);
    paintBlock(painter);
}

}  // namespace lumo
