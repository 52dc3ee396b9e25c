#include "controls/ScrollBar.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr double kRadius = ScrollBar::kThickness / 2.0;
constexpr double kShortestThumb = 24.0;
constexpr QColor kThumb = theme::white(24);
constexpr QColor kThumbHover = theme::white(36);

}  // namespace

ScrollBar::ScrollBar(QScrollBar& followed, QWidget* parent) : QScrollBar(Qt::Vertical, parent), m_followed(followed) {
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::NoContextMenu);  // Qt's own would come, in other words and looks than ours
    setAttribute(Qt::WA_Hover);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    connect(&followed, &QScrollBar::rangeChanged, this, &ScrollBar::follow);
    connect(&followed, &QScrollBar::valueChanged, this, &ScrollBar::follow);
    connect(this, &QScrollBar::valueChanged, &followed, &QScrollBar::setValue);
    follow();
}

void ScrollBar::follow() {
    setPageStep(m_followed.pageStep());
    setSingleStep(m_followed.singleStep());
    setRange(m_followed.minimum(), m_followed.maximum());
    setValue(m_followed.value());
    setVisible(maximum() > minimum());
}

QRectF ScrollBar::thumb() const {
    const double whole = maximum() - minimum() + pageStep();
    const double length = std::max(kShortestThumb, height() * pageStep() / whole);
    const int steps = std::max(1, maximum() - minimum());
    return {0.0, (height() - length) * (value() - minimum()) / steps, static_cast<double>(width()), length};
}

void ScrollBar::moveThumbTo(double top) {
    const double room = height() - thumb().height();
    if (room > 0.0) setValue(minimum() + qRound(top / room * (maximum() - minimum())));
}

bool ScrollBar::event(QEvent* event) {
    if (event->type() == QEvent::HoverEnter) m_hover.to(1.0, theme::kHoverInMs);
    if (event->type() == QEvent::HoverLeave) m_hover.to(0.0, theme::kHoverOutMs);
    return QScrollBar::event(event);
}

void ScrollBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    const double at = event->position().y();
    const QRectF taken = thumb();
    const bool isOnThumb = at >= taken.top() && at <= taken.bottom();
    m_grip = isOnThumb ? at - taken.top() : taken.height() / 2.0;  // beside the thumb: it comes below the pointer
    moveThumbTo(at - m_grip);
}

void ScrollBar::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton) moveThumbTo(event->position().y() - m_grip);
}

void ScrollBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mix(kThumb, kThumbHover, m_hover.value()));
    painter.drawRoundedRect(thumb(), kRadius, kRadius);
}

}  // namespace lumo
