#include "controls/PushControl.h"

#include <QHelpEvent>
#include <QKeyEvent>

#include "controls/Panel.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

class AccessibleControl final : public AccessibleButton {
public:
    AccessibleControl(PushControl& control, QAccessible::Role role)
        : AccessibleButton(control, role), m_control(control) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = AccessibleButton::state();
        if (role() == QAccessible::RadioButton) {
            state.checkable = true;
            state.checked = m_control.isSelected();
        } else if (role() != QAccessible::PushButton || m_control.isSelected()) {
            state.selectable = true;
            state.selected = m_control.isSelected();
        }
        return state;
    }

private:
    PushControl& m_control;
};

void tellOfSelection(PushControl& control, QAccessible::Role role) {
    if (role == QAccessible::RadioButton) {
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(&control, changed);
        return QAccessible::updateAccessibility(&event);
    }
    QAccessibleEvent event(&control, control.isSelected() ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

PushControl::PushControl(const QString& text, QAccessible::Role role, QWidget* parent)
    : QAbstractButton(parent), m_role(role) {
    rename(text);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::pressed, this, [this] { m_press.to(1.0, 0); });
    connect(this, &QAbstractButton::released, this, [this] { m_press.to(0.0, theme::kPressOutMs); });
}

void PushControl::setSelected(bool selected) {
    if (selected == m_selected) return;
    m_selected = selected;
    m_selection.to(selected ? 1.0 : 0.0, theme::kSelectMs);
    update();
    tellOfSelection(*this, m_role);
}

void PushControl::handFocusTo(PushControl& other) {
    if (window()->focusWidget() != this) return;  // not hasFocus: the window may come to the front only later
    other.setFocus(m_hasKeyboardFocus ? Qt::OtherFocusReason : Qt::MouseFocusReason);
    other.m_hasKeyboardFocus = m_hasKeyboardFocus;
}

void PushControl::rename(const QString& text) {
    if (text == this->text()) return;
    setText(text);
    setShortcut({});  // that Qt makes of an ampersand
    setAccessibleName(text);
}

std::optional<RingShape> PushControl::ring() const {
    if (!showsRing()) return std::nullopt;
    return ringShape();
}

QAccessibleInterface* PushControl::makeAccessible() { return new AccessibleControl(*this, m_role); }

bool PushControl::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::HoverEnter:
            m_hover.to(1.0, theme::kHoverInMs);
            break;
        case QEvent::HoverLeave:
            m_hover.to(0.0, theme::kHoverOutMs);
            break;
        case QEvent::ToolTip:
            showPlainToolTip(static_cast<QHelpEvent*>(event)->globalPos(), toolTipText(), this);
            return true;
        default:
            break;
    }
    return QAbstractButton::event(event);
}

void PushControl::focusInEvent(QFocusEvent* event) {
    m_hasKeyboardFocus = showsFocusRing(event->reason(), m_hasKeyboardFocus);
    QAbstractButton::focusInEvent(event);
}

void PushControl::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!event->isAutoRepeat()) click();
            return;
        case Qt::Key_Space:
            return QAbstractButton::keyPressEvent(event);
        default:
            event->ignore();
    }
}

void PushControl::mousePressEvent(QMouseEvent* event) {
    m_hasKeyboardFocus = false;  // the focus may have been here before the mouse was
    QAbstractButton::mousePressEvent(event);
}

}  // namespace lumo
