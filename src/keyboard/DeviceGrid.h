// Where the keyboard's picture lies among the pixels of a device. Values; any thread.
#pragma once

#include <QPoint>
#include <QRectF>
#include <QSize>
#include <QTransform>

class QImage;
class QPainter;

namespace lumo {

inline constexpr QSizeF kPictureSize{650.0, 247.0};  // points

/// Rows of pixels and blocks of four pixels; right and bottom are not included.
struct BlockArea {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    [[nodiscard]] bool isEmpty() const { return left >= right || top >= bottom; }
    [[nodiscard]] int width() const { return right - left; }
    [[nodiscard]] int height() const { return bottom - top; }
    [[nodiscard]] BlockArea intersected(const BlockArea& other) const;
    [[nodiscard]] BlockArea translated(int blocks, int rows) const;
    [[nodiscard]] QRect pixels() const;
};

/// The picture is composed in these pixels and never resampled.
struct DeviceGrid {
    double scale = 1.0;  // pixels a point
    QPointF shift;       // of the picture's corner from the corner of the first pixel, in 64ths of a pixel
    bool operator==(const DeviceGrid&) const = default;

    [[nodiscard]] QSize pixels() const;
    [[nodiscard]] BlockArea blocks() const;
    [[nodiscard]] QTransform toPixels() const;
    /// What a rectangle of points touches.
    [[nodiscard]] QRect pixelsAround(const QRectF& points) const;
    [[nodiscard]] BlockArea blocksAround(const QRectF& points) const;
};

struct DevicePlace {
    QPoint corner;  // the first pixel
    DeviceGrid grid;
};

/// Turned or sheared devices do not exist for it.
[[nodiscard]] DevicePlace placeOnDevice(const QTransform& toDevice, const QPointF& origin);

/// Draws that part of an image of pixels at its place: pixel on pixel, whatever the device does to points on their way
/// to it.
void paintPixels(QPainter& painter, const DevicePlace& place, const QImage& image, const QRect& part);

}  // namespace lumo
