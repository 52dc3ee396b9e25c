#include "keyboard/ColorSwatch.h"

#include <QPainter>

#include "controls/Panel.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr double kDarkenedWhenPressed = 0.14;

void paintRing(QPainter& painter, const QRectF& outer, double outerRadius, double width, const QColor& color) {
    const double inset = width / 2.0;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width));
    painter.drawRoundedRect(outer.adjusted(inset, inset, -inset, -inset), outerRadius - inset, outerRadius - inset);
}

}  // namespace

ColorSwatch::ColorSwatch(const QString& name, const QColor& color, QWidget* parent)
    : PushControl(name, QAccessible::PushButton, parent), m_color(color) {}

RingShape ColorSwatch::ringShape() const { return ringAround(colorRect(), theme::kSwatchRadius); }

bool ColorSwatch::hitButton(const QPoint& position) const { return colorRect().contains(position); }

void ColorSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF color = colorRect();
    paintPanel(painter, color, theme::kSwatchRadius, mix(m_color, Qt::black, kDarkenedWhenPressed * press()),
               faded(theme::white(16), 1.0 - hover()));
    paintRing(painter, color, theme::kSwatchRadius, 2.0, faded(theme::white(55), hover() * (1.0 - press())));
    paintRing(painter, rect(), theme::kSwatchRadius + kRoom, 2.0, faded(Qt::white, selection()));
}

}  // namespace lumo
