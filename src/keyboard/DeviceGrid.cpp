#include "keyboard/DeviceGrid.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "keyboard/PixelBlocks.h"

namespace lumo {
namespace {

constexpr double kStepsPerPixel = 64.0;

/// Rests of calculations with fractional scales must not make another grid.
double toStep(double pixels) { return std::round(pixels * kStepsPerPixel) / kStepsPerPixel; }

constexpr int blocksFor(int pixels) { return (pixels + pixels::kBlockPixels - 1) / pixels::kBlockPixels; }

}  // namespace

BlockArea BlockArea::intersected(const BlockArea& other) const {
    return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
            std::min(bottom, other.bottom)};
}

BlockArea BlockArea::translated(int blocks, int rows) const {
    return {left + blocks, top + rows, right + blocks, bottom + rows};
}

QRect BlockArea::pixels() const { return {left * pixels::kBlockPixels, top, width() * pixels::kBlockPixels, height()}; }

QSize DeviceGrid::pixels() const {
    return {static_cast<int>(std::ceil(shift.x() + toStep(kPictureSize.width() * scale))),
            static_cast<int>(std::ceil(shift.y() + toStep(kPictureSize.height() * scale)))};
}

BlockArea DeviceGrid::blocks() const { return {0, 0, blocksFor(pixels().width()), pixels().height()}; }

QTransform DeviceGrid::toPixels() const { return {scale, 0.0, 0.0, scale, shift.x(), shift.y()}; }

QRect DeviceGrid::pixelsAround(const QRectF& points) const {
    return toPixels().mapRect(points).toAlignedRect().intersected(QRect(QPoint(), pixels()));
}

BlockArea DeviceGrid::blocksAround(const QRectF& points) const {
    const QRect rect = pixelsAround(points);
    if (rect.isEmpty()) return {};
    return {rect.left() / pixels::kBlockPixels, rect.top(), blocksFor(rect.right() + 1), rect.bottom() + 1};
}

DevicePlace placeOnDevice(const QTransform& toDevice, const QPointF& origin) {
    const QPointF exact = toDevice.map(origin);
    const QPointF stepped(toStep(exact.x()), toStep(exact.y()));
    const QPoint corner(static_cast<int>(std::floor(stepped.x())), static_cast<int>(std::floor(stepped.y())));
    return {corner, {toDevice.m11(), stepped - corner}};
}

void paintPixels(QPainter& painter, const DevicePlace& place, const QImage& image, const QRect& part) {
    const QTransform fromDevice = painter.deviceTransform().inverted();
    painter.save();
    painter.setWorldTransform(QTransform::fromTranslate(place.corner.x(), place.corner.y()) * fromDevice, true);
    painter.drawImage(part.topLeft(), image, part);
    painter.restore();
}

}  // namespace lumo
