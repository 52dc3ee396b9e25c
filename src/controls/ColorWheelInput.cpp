// The hands on the colour wheel: mouse and keyboard.
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "controls/ColorWheel.h"
#include "controls/Panel.h"

namespace lumo {
namespace {

struct Way {
    double hue = 0.0;
    double saturation = 0.0;
};

std::optional<Way> keyWay(const QKeyEvent& event) {
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return {};
    const bool isFine = event.modifiers().testFlag(Qt::ShiftModifier);
    const double turn = (isFine ? 1.0 : 5.0) / 360.0;
    const double outwards = isFine ? 0.01 : 0.05;
    switch (event.key()) {
        case Qt::Key_Left:
            return Way{-turn, 0.0};
        case Qt::Key_Right:
            return Way{turn, 0.0};
        case Qt::Key_Up:
            return Way{0.0, outwards};
        case Qt::Key_Down:
            return Way{0.0, -outwards};
        default:
            return {};
    }
}

double withinCircle(double hue) { return hue - std::floor(hue); }

}  // namespace

bool ColorWheel::isOnDisc(const QPointF& place) const {
    const QRectF disc = discRect();
    const QPointF from = place - disc.center();
    return std::hypot(from.x(), from.y()) <= disc.width() / 2.0;
}

void ColorWheel::moveMarkerTo(const QPointF& place) {
    const QRectF disc = discRect();
    const QPointF from = place - disc.center();
    const double hue = withinCircle(std::atan2(-from.y(), from.x()) / (2.0 * std::numbers::pi));
    moveMarker(hue, std::min(1.0, std::hypot(from.x(), from.y()) / (disc.width() / 2.0)));
}

void ColorWheel::dragTo(const QPointF& place) {
    moveMarkerTo(place);
    m_reports.offer(markerColor());
}

void ColorWheel::focusInEvent(QFocusEvent* event) {
    m_hasKeyboardFocus = showsFocusRing(event->reason(), m_hasKeyboardFocus);
}

void ColorWheel::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !isOnDisc(event->position())) return event->ignore();
    setFocus(Qt::MouseFocusReason);
    m_hasKeyboardFocus = false;  // the focus may have been here before the mouse was
    end();
    m_use = Use::pointer;
    moveMarkerTo(event->position());
    m_reports.begin(markerColor());  // also the colour it has: there may be other keys to paint by now
}

void ColorWheel::mouseMoveEvent(QMouseEvent* event) {
    if (m_use != Use::pointer) return;
    if (!(event->buttons() & Qt::LeftButton)) return end();  // the release went elsewhere
    dragTo(event->position());
}

void ColorWheel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    if (m_use != Use::pointer) return;
    dragTo(event->position());
    end();
}

void ColorWheel::keyPressEvent(QKeyEvent* event) {
    const auto way = keyWay(*event);
    if (!way) {
        if (m_use == Use::keys) end();  // macOS tells of no release while Command is held
        return event->ignore();
    }
    if (m_use == Use::pointer) return;
    m_use = Use::keys;
    moveMarker(withinCircle(m_hue + way->hue), std::clamp(m_saturation + way->saturation, 0.0, 1.0));
    m_reports.offer(markerColor());
}

void ColorWheel::keyReleaseEvent(QKeyEvent* event) {
    if (m_use != Use::keys || event->isAutoRepeat()) return event->ignore();
    end();
}

}  // namespace lumo
