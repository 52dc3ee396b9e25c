#include "controls/SliderLooks.h"

#include <QLinearGradient>
#include <QRadialGradient>
#include <algorithm>
#include <array>

#include "controls/Fade.h"
#include "controls/Panel.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr QColor kTrack{0x3B, 0x3B, 0x3F};
constexpr QColor kFillStart{0x7A, 0x45, 0xF0};
constexpr QColor kFillEnd = theme::kAccentLine;
constexpr QColor kDot = theme::white(28);
constexpr QColor kKnobTop{0xFF, 0xFF, 0xFF};
constexpr QColor kKnobBottom{0xE4, 0xE4, 0xEA};
constexpr QColor kKnobPressed{0xD9, 0xD2, 0xEE};
constexpr QColor kRim{0, 0, 0, 128};
constexpr QColor kHaloHovered = theme::white(10);
constexpr QColor kHaloPressed{0x8B, 0x5C, 0xFF, 71};

constexpr double kRimWidth = 0.5;
constexpr double kDotRadius = 1.0;
constexpr double kTrackToDot = 10.0;  // centre to centre
constexpr double kRingGap = 2.0;
constexpr double kRingWidth = 2.0;

/// A disc of the knob's size in black/50, 1 point lower and blurred by 3: its opacity by the distance from its centre.
struct ShadowStop {
    double radius;
    int alpha;
};
constexpr double kShadowDrop = 1.0;
constexpr std::array<ShadowStop, 7> kShadow{{{6, 116}, {7, 95}, {8, 64}, {9, 32}, {10, 12}, {11, 3}, {12, 0}}};

QRectF disc(const QPointF& centre, double radius) {
    return {centre.x() - radius, centre.y() - radius, 2.0 * radius, 2.0 * radius};
}

QColor clear(QColor color) {
    color.setAlpha(0);
    return color;
}

void fill(QPainter& painter, const QRectF& rect, double radius, const QBrush& brush) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(rect, radius, radius);
}

void paintTrack(QPainter& painter, const SliderLooks& looks) {
    const double radius = SliderLooks::kTrackHeight / 2.0;
    fill(painter, looks.track, radius, kTrack);
    QRectF filled = looks.track;
    filled.setRight(looks.knobX);
    QLinearGradient gradient(filled.topLeft(), filled.topRight());
    gradient.setColorAt(0.0, kFillStart);
    gradient.setColorAt(1.0, kFillEnd);
    fill(painter, filled, radius, gradient);
}

void paintDots(QPainter& painter, const SliderLooks& looks) {
    const double y = looks.track.center().y() + kTrackToDot;
    for (const double x : looks.dotXs) fill(painter, disc({x, y}, kDotRadius), kDotRadius, kDot);
}

void paintShadow(QPainter& painter, const QPointF& knob, double strength) {
    const QPointF centre = knob + QPointF(0.0, kShadowDrop);
    const double reach = kShadow.back().radius;
    QRadialGradient gradient(centre, reach);
    for (const auto& [radius, alpha] : kShadow) {
        gradient.setColorAt(radius / reach, QColor(0, 0, 0, qRound(alpha * strength)));
    }
    fill(painter, disc(centre, reach), reach, gradient);
}

void paintHalo(QPainter& painter, const QPointF& knob, double hover, double press) {
    const QColor color = mix(mix(clear(kHaloHovered), kHaloHovered, hover), kHaloPressed, press);
    fill(painter, disc(knob, SliderLooks::kHaloRadius), SliderLooks::kHaloRadius, color);
}

void paintRing(QPainter& painter, const QPointF& knob) {
    const double gap = SliderLooks::kKnobRadius + kRingGap;
    fill(painter, disc(knob, gap), gap, theme::kCard);
    paintFocusRing(painter, disc(knob, gap + kRingWidth), gap + kRingWidth);
}

void paintKnob(QPainter& painter, const QPointF& centre, double press) {
    const QRectF knob = disc(centre, SliderLooks::kKnobRadius);
    QLinearGradient gradient(knob.topLeft(), knob.bottomLeft());
    gradient.setColorAt(0.0, mix(kKnobTop, kKnobPressed, press));
    gradient.setColorAt(1.0, mix(kKnobBottom, kKnobPressed, press));
    fill(painter, knob, SliderLooks::kKnobRadius, gradient);
}

}  // namespace

void paintSlider(QPainter& painter, const SliderLooks& looks) {
    painter.setRenderHint(QPainter::Antialiasing);
    paintDots(painter, looks);
    paintTrack(painter, looks);
    const QPointF knob(looks.knobX, looks.track.center().y());
    const double halo = std::max(looks.hover, looks.press);
    if (!looks.showsRing && halo < 1.0) paintShadow(painter, knob, 1.0 - halo);
    if (halo > 0.0) paintHalo(painter, knob, looks.hover, looks.press);
    if (looks.showsRing) {
        paintRing(painter, knob);
    } else {
        const double rim = SliderLooks::kKnobRadius + kRimWidth;
        fill(painter, disc(knob, rim), rim, kRim);
    }
    paintKnob(painter, knob, looks.press);
}

}  // namespace lumo
