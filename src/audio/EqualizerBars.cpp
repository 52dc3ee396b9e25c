#include "audio/EqualizerBars.h"

#include <QLinearGradient>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr double kBarWidth = 14.0;
constexpr double kLowestBar = 6.0;
constexpr double kBarRadius = 3.0;
constexpr int kLinePitch = 20;
constexpr QColor kLine = theme::white(5);
constexpr QColor kBaseLine = theme::white(10);

struct BarColors {
    QColor top;
    QColor middle;
    QColor foot;
};
constexpr BarColors kRunning{{0xC4, 0xB0, 0xFF}, {0x7A, 0x45, 0xF0}, theme::kAccent};
constexpr BarColors kResting{{0x6B, 0x6B, 0x72}, {0x4A, 0x4A, 0x50}, {0x3A, 0x3A, 0x3F}};

QLinearGradient gradient(const QRectF& bar, const BarColors& colors) {
    QLinearGradient gradient(bar.topLeft(), bar.bottomLeft());
    gradient.setColorAt(0.0, colors.top);
    gradient.setColorAt(0.55, colors.middle);
    gradient.setColorAt(1.0, colors.foot);
    return gradient;
}

/// Edges on whole pixels: bars between them would be blurred, each in its own way.
QRectF onPixels(const QRectF& rect, double scale) {
    const auto snap = [scale](double place) { return std::round(place * scale) / scale; };
    return {QPointF(snap(rect.left()), snap(rect.top())), QPointF(snap(rect.right()), snap(rect.bottom()))};
}

}  // namespace

EqualizerBars::EqualizerBars(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

void EqualizerBars::setLevels(const BandLevels& levels) {
    if (levels == m_levels) return;
    m_levels = levels;
    update();
}

void EqualizerBars::setRunning(bool isRunning) {
    if (isRunning == m_isRunning) return;
    m_isRunning = isRunning;
    update();
}

double EqualizerBars::cellX(std::size_t band) const {
    return static_cast<double>(band) * (width() - kCellWidth) / (kBandCount - 1);
}

QRectF EqualizerBars::barRect(std::size_t band) const {
    const double barHeight = std::max(m_levels.at(band) * kHighestBar, kLowestBar);
    return {cellX(band) + (kCellWidth - kBarWidth) / 2.0, kHighestBar - barHeight, kBarWidth, barHeight};
}

QAccessibleInterface* EqualizerBars::makeAccessible() { return new QAccessibleWidget(this, QAccessible::Graphic); }

void EqualizerBars::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::kInset);
    for (int y = 0; y < kHighestBar; y += kLinePitch) painter.fillRect(0, y, width(), 1, kLine);
    painter.fillRect(0, kHighestBar, width(), 1, kBaseLine);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (std::size_t band = 0; band < kBandCount; ++band) {
        const QRectF bar = onPixels(barRect(band), devicePixelRatioF());
        painter.setBrush(gradient(bar, m_isRunning ? kRunning : kResting));
        painter.drawRoundedRect(bar, kBarRadius, kBarRadius);
    }
}

}  // namespace lumo
