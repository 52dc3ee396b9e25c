// The hands on a slider: mouse, keyboard and mouse wheel.
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "controls/Slider.h"
#include "controls/SliderLooks.h"

namespace lumo {
namespace {

constexpr double kJitter = 3.0;  // a press on the knob becomes a drag beyond it

}  // namespace

void Slider::enterEvent(QEnterEvent* event) { setHovered(hitArea().contains(event->position().toPoint())); }

void Slider::leaveEvent(QEvent*) { setHovered(false); }

void Slider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !hitArea().contains(event->position().toPoint())) return event->ignore();
    setFocus(Qt::MouseFocusReason);
    if (m_showsRing) setShowsRing(false);  // the focus may have been here before the mouse was
    m_pressX = event->position().x();
    m_grip = m_pressX - knobX(m_value);
    m_isDragged = std::abs(m_grip) > SliderLooks::kKnobRadius;
    if (m_isDragged) m_grip = 0.0;
    if (begin(Use::pointer)) dragTo(m_pressX);
}

void Slider::mouseMoveEvent(QMouseEvent* event) {
    if (m_use == Use::pointer && !(event->buttons() & Qt::LeftButton)) end();  // the release went elsewhere
    if (m_use == Use::pointer) return dragTo(event->position().x());
    setHovered(hitArea().contains(event->position().toPoint()));
}

void Slider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    if (m_use == Use::pointer) dragTo(event->position().x());
    if (m_use == Use::pointer) end();
    setHovered(hitArea().contains(event->position().toPoint()));
}

void Slider::dragTo(double x) {
    m_isDragged = m_isDragged || std::abs(x - m_pressX) >= kJitter;
    if (!m_isDragged) return;
    const double first = knobX(m_range.minimum);
    const double way = knobX(m_range.maximum) - first;
    if (way > 0.0) changeTo(m_range.nearest((x - m_grip - first) / way));
}

void Slider::step(double target) {
    if (m_use == Use::pointer) return;
    if (m_use == Use::keys || begin(Use::keys)) changeTo(target);
}

std::optional<double> Slider::keyTarget(const QKeyEvent& event) const {
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return {};
    const int page = std::max(2, m_range.lastStep() / 5);
    switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Down:
            return m_range.onwards(m_value, -1);
        case Qt::Key_Right:
        case Qt::Key_Up:
            return m_range.onwards(m_value, 1);
        case Qt::Key_PageDown:
            return m_range.onwards(m_value, -page);
        case Qt::Key_PageUp:
            return m_range.onwards(m_value, page);
        case Qt::Key_Home:
            return m_range.valueAt(0);
        case Qt::Key_End:
            return m_range.valueAt(m_range.lastStep());
        default:
            return {};
    }
}

void Slider::keyPressEvent(QKeyEvent* event) {
    const auto target = keyTarget(*event);
    if (!target) {
        letKeyGo();  // macOS tells of no release while Command is held
        return event->ignore();
    }
    if (!m_showsRing) setShowsRing(true);
    step(*target);
    if (m_use != Use::keys) return;
    m_heldKey = event->key();
    m_rest.cancel();
}

void Slider::keyReleaseEvent(QKeyEvent* event) {
    if (event->isAutoRepeat() || event->key() != m_heldKey) return event->ignore();
    letKeyGo();
}

/// A held key repeats only after half a second or more: the rest counts from its release.
void Slider::letKeyGo() {
    if (m_heldKey == 0) return;
    m_heldKey = 0;
    m_rest.begin();
}

void Slider::wheelEvent(QWheelEvent* event) {
    if (!hasFocus()) return event->ignore();
    const int steps = wholeSteps(event->angleDelta());
    if (steps != 0) step(m_range.onwards(m_value, steps));
    if (m_use == Use::keys && m_heldKey == 0) m_rest.begin();
}

int Slider::wholeSteps(QPoint wheelAngle) {
    // Scrolling to the right gives negative angles.
    const int angle = std::abs(wheelAngle.x()) > std::abs(wheelAngle.y()) ? -wheelAngle.x() : wheelAngle.y();
    if ((angle < 0) != (m_wheelAngle < 0)) m_wheelAngle = 0;
    m_wheelAngle += angle;
    const int steps = m_wheelAngle / QWheelEvent::DefaultDeltasPerStep;
    m_wheelAngle %= QWheelEvent::DefaultDeltasPerStep;
    return steps;
}

}  // namespace lumo
