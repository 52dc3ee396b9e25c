#include "controls/WheelDisc.h"

#include <QConicalGradient>
#include <QRadialGradient>
#include <cmath>

namespace lumo {
namespace {

constexpr int kHues = 6;

QConicalGradient hues(const QPointF& centre) {
    QConicalGradient gradient(centre, 0.0);  // counter-clockwise from three o'clock
    for (int i = 0; i <= kHues; ++i) {
        const double share = static_cast<double>(i) / kHues;
        gradient.setColorAt(share, QColor::fromHsvF(static_cast<float>(i % kHues) / kHues, 1.0F, 1.0F));
    }
    return gradient;
}

QRadialGradient paling(const QPointF& centre, double radius) {
    QRadialGradient gradient(centre, radius);
    gradient.setColorAt(0.0, Qt::white);
    gradient.setColorAt(1.0, QColor(255, 255, 255, 0));
    return gradient;
}

QImage plainDisc(int pixels) {
    QImage disc(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    disc.fill(Qt::transparent);
    const QPointF centre(pixels / 2.0, pixels / 2.0);
    const double radius = WheelDisc::kRadiusShare * pixels / 2.0;
    QPainter painter(&disc);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(hues(centre));
    painter.drawEllipse(centre, radius, radius);
    painter.setBrush(paling(centre, radius));
    painter.drawEllipse(centre, radius, radius);
    return disc;
}

QImage scaled(const QImage& picture, int pixels) {
    return picture.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

}  // namespace

void WheelDisc::paint(QPainter& painter, const QRectF& square) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(square,
                      drawn(static_cast<int>(std::lround(square.width() * painter.device()->devicePixelRatioF()))));
}

const QImage& WheelDisc::drawn(int pixels) {
    if (m_drawn.width() != pixels) {
        const QImage picture = m_picture();
        m_drawn = picture.isNull() ? plainDisc(pixels) : scaled(picture, pixels);
    }
    return m_drawn;
}

}  // namespace lumo
