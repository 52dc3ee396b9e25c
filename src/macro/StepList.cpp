#include "macro/StepList.h"

#include <QCursor>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <span>
#include <utility>

#include "controls/FocusGroup.h"
#include "controls/Panel.h"
#include "controls/ScrollBox.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"
#include "macro/AccessibleSteps.h"

namespace lumo {
namespace {

int pitch() { return StepRow::rowHeight() + StepRow::kGap; }

/// Fades the light in where it comes to another place, and out where it goes.
void light(std::optional<std::size_t>& lit, Fade& hover, std::optional<std::size_t> now) {
    if (!now) return hover.to(0.0, theme::kHoverOutMs);
    if (lit != now) hover.to(0.0, 0);
    lit = now;
    hover.to(1.0, theme::kHoverInMs);
}

bool isWithoutFirst(std::span<const MacroEvent> before, std::span<const MacroEvent> now) {
    return !before.empty() && std::ranges::equal(before.subspan(1), now);
}

}  // namespace

StepList::StepList(QWidget* parent) : QWidget(parent) {
    setAccessibleName("TIMELINE");
    setMouseTracking(true);
}

void StepList::setSteps(const std::vector<MacroEvent>& steps) {
    if (steps == m_steps) return;
    const std::vector<MacroEvent> before = std::exchange(m_steps, steps);
    m_current = std::min(m_current, std::max<std::size_t>(m_steps.size(), 1) - 1);
    m_pressed.reset();
    m_press.to(0.0, 0);
    m_row.layOut(width(), m_steps.size());
    setMinimumHeight(static_cast<int>(m_steps.size()) * pitch());
    setFocusPolicy(m_steps.empty() ? Qt::NoFocus : Qt::TabFocus);
    showAfter(before);
    tellOfSteps(*this, before);
    tellOfRing(*this);
    update();
}

/// Steps that were added come into view, another macro is shown from its beginning, and where one was deleted nothing
/// moves.
void StepList::showAfter(const std::vector<MacroEvent>& before) {
    if (m_steps.empty()) return;
    const auto [old, now] = std::ranges::mismatch(before, m_steps);
    if (old == before.end() && !before.empty()) return ScrollBox::bringIntoView(*this, rowRect(m_steps.size() - 1));
    if (now != m_steps.begin() || isWithoutFirst(before, m_steps)) return;
    m_current = 0;
    ScrollBox::bringIntoView(*this, rowRect(0));
}

void StepList::setCurrentStep(std::size_t index) {
    m_current = index;
    ScrollBox::bringIntoView(*this, rowRect(index));
    tellOfRing(*this);
    tellOfFocus(*this, index);
}

QRect StepList::rowRect(std::size_t index) const {
    return {0, static_cast<int>(index) * pitch(), width(), StepRow::rowHeight()};
}

QRect StepList::partRect(std::size_t index, StepPart part) const {
    return m_row.place(part, m_steps[index]).translated(rowRect(index).topLeft()).toAlignedRect();
}

std::optional<std::size_t> StepList::stepAt(QPoint place) const {
    if (place.y() < 0 || place.y() % pitch() >= StepRow::rowHeight()) return std::nullopt;
    const auto index = static_cast<std::size_t>(place.y() / pitch());
    return index < m_steps.size() ? Index(index) : std::nullopt;
}

StepList::Index StepList::buttonAt(QPoint place) const {
    const Index step = stepAt(place);
    return step && partRect(*step, StepPart::remove).contains(place) ? step : std::nullopt;
}

std::optional<RingShape> StepList::ring() const {
    if (!showsRing() || m_steps.empty()) return std::nullopt;
    return ringAround(partRect(m_current, StepPart::remove), StepRow::kRemoveRadius);
}

QAccessibleInterface* StepList::makeAccessible() { return new AccessibleSteps(*this); }

bool StepList::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto& help = *static_cast<QHelpEvent*>(event);
    const Index step = stepAt(help.pos());
    const bool isCut =
        step && m_row.isDelayElided(m_steps[*step]) && partRect(*step, StepPart::delay).contains(help.pos());
    showPlainToolTip(help.globalPos(), isCut ? stepText(StepPart::delay, *step, m_steps[*step]) : QString(), this);
    return true;
}

void StepList::focusInEvent(QFocusEvent* event) {
    m_hasKeyboardFocus = showsFocusRing(event->reason(), m_hasKeyboardFocus);
    if (m_hasKeyboardFocus && !m_steps.empty()) setCurrentStep(m_current);
    QWidget::focusInEvent(event);
}

void StepList::keyPressEvent(QKeyEvent* event) {
    if (m_steps.empty() || !isPlain(*event)) return event->ignore();
    const std::size_t last = m_steps.size() - 1;
    const auto rowsInView = static_cast<std::size_t>(std::max(1, visibleRegion().boundingRect().height() / pitch()));
    const auto goTo = [this](std::size_t index) {
        m_hasKeyboardFocus = true;
        setCurrentStep(index);
    };
    switch (event->key()) {
        case Qt::Key_Up:
            return goTo(m_current - std::min<std::size_t>(m_current, 1));
        case Qt::Key_Down:
            return goTo(std::min(m_current + 1, last));
        case Qt::Key_PageUp:
            return goTo(m_current - std::min(m_current, rowsInView));
        case Qt::Key_PageDown:
            return goTo(std::min(m_current + rowsInView, last));
        case Qt::Key_Home:
            return goTo(0);
        case Qt::Key_End:
            return goTo(last);
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!event->isAutoRepeat()) emit deleted(static_cast<std::int64_t>(m_current));
            return;
        default:
            event->ignore();
    }
}

void StepList::mouseMoveEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    point(place);
    if (m_pressed) m_press.to(buttonAt(place) == m_pressed ? 1.0 : 0.0, 0);
}

void StepList::mousePressEvent(QMouseEvent* event) {
    m_hasKeyboardFocus = false;
    const Index button = buttonAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !button) return event->ignore();
    m_pressed = button;
    m_current = *button;
    setFocus(Qt::MouseFocusReason);
    m_press.to(1.0, 0);
}

void StepList::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_pressed) return event->ignore();
    const std::size_t pressed = *std::exchange(m_pressed, std::nullopt);
    m_press.to(0.0, theme::kPressOutMs);
    if (buttonAt(event->position().toPoint()) == pressed) emit deleted(static_cast<std::int64_t>(pressed));
}

void StepList::leaveEvent(QEvent*) { forgetPointer(); }

void StepList::moveEvent(QMoveEvent*) {
    if (underMouse()) point(mapFromGlobal(QCursor::pos()));  // the rows moved, and the pointer did not
}

void StepList::point(QPoint place) {
    light(m_lit, m_rowHover, stepAt(place));
    light(m_litButton, m_buttonHover, buttonAt(place));
}

void StepList::forgetPointer() {
    light(m_lit, m_rowHover, std::nullopt);
    light(m_litButton, m_buttonHover, std::nullopt);
}

StepGlow StepList::glowOf(std::size_t index) const {
    StepGlow glow;
    if (index == m_lit) glow.row = m_rowHover.value();
    if (index == m_litButton) glow.removeHover = m_buttonHover.value();
    if (index == m_pressed || (!m_pressed && index == m_litButton)) glow.removePress = m_press.value();
    return glow;
}

void StepList::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const auto first = static_cast<std::size_t>(std::max(0, event->rect().top() / pitch()));
    for (std::size_t i = first; i < m_steps.size() && rowRect(i).top() <= event->rect().bottom(); ++i) {
        painter.save();
        painter.translate(rowRect(i).topLeft());
        m_row.paint(painter, i, m_steps[i], glowOf(i));
        painter.restore();
    }
}

void StepList::resizeEvent(QResizeEvent*) { m_row.layOut(width(), m_steps.size()); }

}  // namespace lumo
