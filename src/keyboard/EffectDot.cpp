#include "keyboard/EffectDot.h"

#include <QConicalGradient>
#include <QPainterPath>
#include <array>

#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr QColor kRingOfNone{0x77, 0x77, 0x7D};
constexpr std::array<QColor, 6> kOwnColors{{{0xFF, 0x4D, 0x4D},
                                            {0xFF, 0xD2, 0x4D},
                                            {0x4D, 0xFF, 0x88},
                                            {0x4D, 0xD2, 0xFF},
                                            {0x8B, 0x5C, 0xFF},
                                            {0xFF, 0x4D, 0xC4}}};

void paintRing(QPainter& painter, const QRectF& rect, const QColor& color, double width) {
    const double inset = width / 2.0;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width));
    painter.drawEllipse(rect.adjusted(inset, inset, -inset, -inset));
}

/// Clockwise from the top.
QConicalGradient ownColors(const QPointF& centre) {
    QConicalGradient gradient(centre, 90.0);
    for (std::size_t i = 0; i <= kOwnColors.size(); ++i) {
        const double share = static_cast<double>(i) / static_cast<double>(kOwnColors.size());
        gradient.setColorAt(1.0 - share, kOwnColors[i % kOwnColors.size()]);
    }
    return gradient;
}

void paintQuarters(QPainter& painter, const QRectF& rect) {
    QPainterPath square;
    square.addRoundedRect(rect, 2.5, 2.5);
    const QSizeF half = rect.size() / 2.0;
    const auto quarter = [&](double x, double y, const QColor& color) {
        QPainterPath part;
        part.addRect(QRectF(rect.topLeft() + QPointF(x * half.width(), y * half.height()), half));
        painter.fillPath(square.intersected(part), color);
    };
    quarter(1, 0, {0x00, 0xD2, 0xFF});
    quarter(1, 1, {0xFF, 0x00, 0x78});
    quarter(0, 1, {0xFF, 0xC8, 0x00});
    quarter(0, 0, {0x00, 0xFF, 0x64});
}

}  // namespace

void paintEffectDot(QPainter& painter, const QRectF& rect, EffectColors colors, const QColor& chosen) {
    painter.setRenderHint(QPainter::Antialiasing);
    if (colors == EffectColors::none) return paintRing(painter, rect, kRingOfNone, 1.5);
    if (colors == EffectColors::perKey) return paintQuarters(painter, rect);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors == EffectColors::chosen ? QBrush(chosen) : QBrush(ownColors(rect.center())));
    painter.drawEllipse(rect);
    if (colors == EffectColors::chosen) paintRing(painter, rect, theme::white(42), 1.0);
}

}  // namespace lumo
