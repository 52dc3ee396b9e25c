#include "controls/SoftShadow.h"

#include <cmath>
#include <numbers>
#include <vector>

namespace lumo {
namespace {

constexpr double kSigmasSeen = 3.0;

/// How much of a blurred stretch from 0 to `length` arrives at each pixel, whose first lies at `begin`. The blur of a
/// box is the product of the two directions; rounded corners are lost in it.
std::vector<double> blurredStretch(double begin, double length, double sigma, int pixels, double scale) {
    const double width = sigma * std::numbers::sqrt2;
    std::vector<double> shares;
    for (int pixel = 0; pixel < pixels; ++pixel) {
        const double at = begin + (pixel + 0.5) / scale;
        shares.push_back((std::erf(at / width) - std::erf((at - length) / width)) / 2.0);
    }
    return shares;
}

}  // namespace

QRectF SoftShadow::reach(const QRectF& box) const {
    const double reach = std::ceil(kSigmasSeen * m_sigma);
    return box.translated(0.0, m_drop).adjusted(-reach, -reach, reach, reach);
}

void SoftShadow::paint(QPainter& painter, const QRectF& box) {
    painter.drawPixmap(reach(box).topLeft(), pictureFor(box.size(), painter.device()->devicePixelRatioF()));
}

const QPixmap& SoftShadow::pictureFor(const QSizeF& box, double scale) {
    // Not the picture's own size, which is one of whole pixels.
    if (m_picture.isNull() || m_box != box || m_picture.devicePixelRatio() != scale) {
        m_picture = draw(box, scale);
        m_box = box;
    }
    return m_picture;
}

QPixmap SoftShadow::draw(const QSizeF& box, double scale) const {
    const double reach = std::ceil(kSigmasSeen * m_sigma);
    const QSize pixels = ((box + QSizeF(2.0 * reach, 2.0 * reach)) * scale).toSize();
    const auto across = blurredStretch(-reach, box.width(), m_sigma, pixels.width(), scale);
    const auto down = blurredStretch(-reach, box.height(), m_sigma, pixels.height(), scale);
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < pixels.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double ofLine = m_opacity * down[static_cast<std::size_t>(y)];
        for (int x = 0; x < pixels.width(); ++x) {
            line[x] = qRgba(0, 0, 0, qRound(255.0 * ofLine * across[static_cast<std::size_t>(x)]));
        }
    }
    QPixmap picture = QPixmap::fromImage(std::move(image));
    picture.setDevicePixelRatio(scale);
    return picture;
}

}  // namespace lumo
