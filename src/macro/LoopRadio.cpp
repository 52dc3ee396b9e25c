#include "macro/LoopRadio.h"

#include <QPainter>
#include <cmath>

#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr double kDot = 16.0;
constexpr double kTitleX = kDot + 9.0;
constexpr double kCentre = 6.0;
constexpr double kRim = 1.5;
constexpr double kSelectedRim = 1.0;
constexpr double kRingReach = 5.0;
constexpr double kRingRadius = 8.0;
constexpr QColor kFill{0x1B, 0x1B, 0x1D};
constexpr QColor kFillPressed{0x2B, 0x2B, 0x2E};
constexpr QColor kRimColor{0x6E, 0x6E, 0x74};
constexpr QColor kRimHover{0xA0, 0xA0, 0xA6};

void paintRim(QPainter& painter, const QRectF& dot, double width, const QColor& color) {
    const double inset = width / 2.0;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width));
    painter.drawEllipse(dot.adjusted(inset, inset, -inset, -inset));
}

}  // namespace

LoopRadio::LoopRadio(const QString& title, std::function<void()> action, QWidget* parent)
    : PushControl(title, QAccessible::RadioButton, parent), m_lettering(theme::kRadioStyle) {
    connect(this, &QAbstractButton::clicked, this, std::move(action));
}

void LoopRadio::setTitle(const QString& title) { rename(title); }

QSize LoopRadio::sizeHint() const {
    return {static_cast<int>(std::ceil(kTitleX + m_lettering.widthOf(text()))), theme::kRadioStyle.linePx()};
}

QRectF LoopRadio::dotRect() const { return {0.0, (height() - kDot) / 2.0, kDot, kDot}; }

RingShape LoopRadio::ringShape() const {
    const QRectF inside(0.0, dotRect().top(), width(), kDot);
    return {inside.adjusted(-kRingReach, -kRingReach, kRingReach, kRingReach), kRingRadius};
}

void LoopRadio::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintDot(painter);
    painter.setPen(mix(theme::kTextRow, theme::kTextRowSelected, selection()));
    m_lettering.paint(painter, QRectF(rect()).adjusted(kTitleX, 0.0, 0.0, 0.0), text());
}

void LoopRadio::paintDot(QPainter& painter) const {
    const QRectF dot = dotRect();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mix(mix(kFill, kFillPressed, press()), theme::kAccent, selection()));
    painter.drawEllipse(dot);
    paintRim(painter, dot, kRim, faded(mix(kRimColor, kRimHover, hover()), 1.0 - selection()));
    paintRim(painter, dot, kSelectedRim, faded(theme::kAccentLine, selection()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(faded(Qt::white, selection()));
    painter.drawEllipse(dot.center(), kCentre / 2.0, kCentre / 2.0);
}

}  // namespace lumo
