#include "controls/FocusGroup.h"

#include <QKeyEvent>
#include <algorithm>

#include "controls/PushControl.h"

namespace lumo {

bool isPlain(const QKeyEvent& event) { return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier; }

FocusGroup::FocusGroup(Steps steps, QWidget* parent) : QObject(parent), m_steps(steps) {}

void FocusGroup::add(PushControl& control) {
    m_controls.push_back(&control);
    control.installEventFilter(this);
    placeTabStop();
}

void FocusGroup::remove(PushControl& control) {
    std::erase(m_controls, &control);
    control.removeEventFilter(this);
    placeTabStop();
}

void FocusGroup::placeTabStop() {
    if (m_controls.empty()) return;
    const PushControl* const stop = tabStop();
    for (PushControl* const control : m_controls) {
        control->setFocusPolicy(control == stop ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

int FocusGroup::focusedIndex() const {
    const auto found = std::ranges::find_if(m_controls, [](const PushControl* control) { return control->hasFocus(); });
    return found == m_controls.end() ? -1 : static_cast<int>(found - m_controls.begin());
}

PushControl* FocusGroup::tabStop() const {
    const int focused = focusedIndex();
    if (focused >= 0) return m_controls[static_cast<std::size_t>(focused)];
    const auto selected = std::ranges::find_if(m_controls, &PushControl::isSelected);
    return selected == m_controls.end() ? m_controls.front() : *selected;
}

bool FocusGroup::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) placeTabStop();
    if (event->type() == QEvent::KeyPress) {
        const auto& keyPress = *static_cast<QKeyEvent*>(event);
        if (isPlain(keyPress) && moveBy(keyPress.key())) return true;
    }
    return QObject::eventFilter(watched, event);
}

/// True when the key is one of the group's, also at its edge.
bool FocusGroup::moveBy(int key) {
    const int from = focusedIndex();
    switch (key) {
        case Qt::Key_Left:
            return m_steps.across != 0 && moveTo(from - m_steps.across);
        case Qt::Key_Right:
            return m_steps.across != 0 && moveTo(from + m_steps.across);
        case Qt::Key_Up:
            return m_steps.down != 0 && moveTo(from - m_steps.down);
        case Qt::Key_Down:
            return m_steps.down != 0 && moveTo(from + m_steps.down);
        case Qt::Key_Home:
            return moveTo(0);
        case Qt::Key_End:
            return moveTo(static_cast<int>(m_controls.size()) - 1);
        default:
            return false;
    }
}

bool FocusGroup::moveTo(int index) {
    if (index < 0 || index >= static_cast<int>(m_controls.size())) return true;
    m_controls[static_cast<std::size_t>(index)]->setFocus(Qt::TabFocusReason);
    return true;
}

}  // namespace lumo
