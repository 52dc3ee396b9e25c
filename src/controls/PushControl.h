// What all our buttons have in common: how they are pressed, and how they follow the pointer, the keyboard and the
// state they show.
#pragma once

#include <QAbstractButton>

#include "controls/Accessible.h"
#include "controls/Fade.h"
#include "controls/FocusRing.h"

namespace lumo {

/// Main thread. `clicked` comes from the mouse, Space, Return or assistive technology; being selected is set from
/// outside and never by a click. Arrow keys are left to whoever stands around the control.
class PushControl : public QAbstractButton, public AccessibleSource, public RingWearer {
    Q_OBJECT

public:
    /// The text is the accessible name, too. An ampersand in it stands for itself.
    PushControl(const QString& text, QAccessible::Role role, QWidget* parent);

    void setSelected(bool selected);
    [[nodiscard]] bool isSelected() const { return m_selected; }
    /// Has the focus, and got it from the keyboard.
    [[nodiscard]] bool showsRing() const { return hasFocus() && m_hasKeyboardFocus; }

    /// To be called before it is hidden: its focus goes there, if it has it, with a ring only where it shows one
    /// itself.
    void handFocusTo(PushControl& other);

    [[nodiscard]] std::optional<RingShape> ring() const final;
    QAccessibleInterface* makeAccessible() final;

protected:
    /// Gives it another text.
    void rename(const QString& text);
    /// The ring, were it shown.
    [[nodiscard]] virtual RingShape ringShape() const = 0;
    /// Hover help for a text that is elided; empty where there is nothing to say.
    [[nodiscard]] virtual QString toolTipText() const { return {}; }

    /// Shares of the way from rest, 0 to 1.
    [[nodiscard]] double hover() const { return m_hover.value(); }
    [[nodiscard]] double press() const { return m_press.value(); }
    [[nodiscard]] double selection() const { return m_selection.value(); }

    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QAccessible::Role m_role;
    Fade m_hover{*this};
    Fade m_press{*this};
    Fade m_selection{*this};
    bool m_selected = false;
    bool m_hasKeyboardFocus = false;
};

}  // namespace lumo
