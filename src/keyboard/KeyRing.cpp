#include "keyboard/KeyRing.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "keyboard/Opacity.h"

namespace lumo {
namespace {

constexpr double kRingWidth = 1.8;
constexpr double kSelectionOut = 0.9;  // of its middle line from the key
constexpr double kSelectionRadius = 6.9;
constexpr double kShadowWidth = 1.2;
constexpr double kFocusInSelection = 2.0;  // further in: on the skirt's edge, clear of the face
constexpr double kDash = 4.0;
constexpr double kDashGap = 2.5;
constexpr QColor kFocusColor{0xC3, 0xB0, 0xFF};

void strokeOut(QPainter& painter, const QRectF& key, double out, const QPen& pen) {
    const double radius = kSelectionRadius - kSelectionOut + out;
    painter.setPen(pen);
    painter.drawRoundedRect(key.adjusted(-out, -out, out, out), radius, radius);
}

/// A whole number of dashes, so that none is cut where the ring closes.
QPen dashed(const QRectF& key, double out) {
    const double radius = kSelectionRadius - kSelectionOut + out;
    const double length = 2.0 * (key.width() + key.height() + 4.0 * out) - (8.0 - 2.0 * std::numbers::pi) * radius;
    const double step = length / std::round(length / (kDash + kDashGap));
    const double dash = step * kDash / (kDash + kDashGap);
    QPen pen(kFocusColor, kRingWidth, Qt::SolidLine, Qt::FlatCap);
    pen.setDashPattern({dash / kRingWidth, (step - dash) / kRingWidth});
    return pen;
}

}  // namespace

QRectF ringBounds(const QRectF& key) { return key.adjusted(-2.0, -2.0, 2.0, 2.0); }

void paintKeyRing(QPainter& painter, const QRectF& key, const RingLook& look) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    if (look.hover > 0.0) strokeOut(painter, key, -0.5, QPen(withOpacity(Qt::white, 0.5 * look.hover), 1.0));
    if (look.isSelected) {
        strokeOut(painter, key, -kShadowWidth / 2.0, QPen(withOpacity(Qt::black, 0.6), kShadowWidth));
        strokeOut(painter, key, kSelectionOut, QPen(Qt::white, kRingWidth));
    }
    if (!look.isFocused) return;
    const double out = look.isSelected ? kSelectionOut - kFocusInSelection : kSelectionOut;
    strokeOut(painter, key, out, dashed(key, out));
}

KeyRing::KeyRing(const QRectF& key, const RingLook& look, const DeviceGrid& grid)
    : m_area(grid.blocksAround(ringBounds(key))) {
    if (m_area.isEmpty()) return;
    QImage image(m_area.width() * pixels::kBlockPixels, m_area.height(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setTransform(grid.toPixels() * QTransform::fromTranslate(-m_area.left * pixels::kBlockPixels, -m_area.top));
    paintKeyRing(painter, key, look);
    painter.end();
    keepVisible(image);
}

void KeyRing::keepVisible(const QImage& image) {
    for (int row = 0; row < m_area.height(); ++row) {
        for (int block = 0; block < m_area.width(); ++block) {
            const std::uint8_t* const lanes = image.constScanLine(row) + block * static_cast<int>(pixels::kBlockLanes);
            pixels::OverlayBlock made{static_cast<std::uint16_t>(block), static_cast<std::uint16_t>(row), {}, {}};
            std::copy_n(lanes, pixels::kBlockLanes, made.add.begin());
            for (std::size_t i = 0; i < made.keep.size(); ++i) {
                made.keep[i] = static_cast<std::uint8_t>(255 - lanes[i / 4 * 4 + 3]);
            }
            const bool isVisible = std::ranges::any_of(made.keep, [](std::uint8_t keep) { return keep < 255; });
            if (isVisible) m_blocks.push_back(made);
        }
    }
}

void KeyRing::paint(const FrameView& frame, const BlockArea& area) const {
    const BlockArea shown = m_area.intersected(area);
    if (!shown.isEmpty()) pixels::layOver(frame.part(m_area, shown), m_blocks);
}

}  // namespace lumo
