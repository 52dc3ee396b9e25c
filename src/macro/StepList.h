// The steps of the macro being edited, one row each.
#pragma once

#include <QWidget>
#include <cstdint>
#include <optional>
#include <vector>

#include "controls/Accessible.h"
#include "controls/Fade.h"
#include "controls/FocusRing.h"
#include "macro/StepRow.h"

namespace lumo {

/// Main thread. As high as its steps, and paints no more of them than can be seen, so that thousands cost nothing. One
/// stop for Tab: arrow keys go from one step's button to the next, Space and Return press it. A press beside the
/// buttons goes to what lies behind, and leaves the focus where it is.
class StepList final : public QWidget, public AccessibleSource, public RingWearer {
    Q_OBJECT

public:
    explicit StepList(QWidget* parent);

    /// The same steps again change nothing.
    void setSteps(const std::vector<MacroEvent>& steps);
    [[nodiscard]] const std::vector<MacroEvent>& steps() const { return m_steps; }

    /// The step whose button the keyboard works on.
    [[nodiscard]] std::size_t currentStep() const { return m_current; }
    void setCurrentStep(std::size_t index);
    [[nodiscard]] bool showsRing() const { return hasFocus() && m_hasKeyboardFocus; }

    // In this widget's coordinates.
    [[nodiscard]] QRect rowRect(std::size_t index) const;
    [[nodiscard]] QRect partRect(std::size_t index, StepPart part) const;
    [[nodiscard]] std::optional<std::size_t> stepAt(QPoint place) const;

    [[nodiscard]] std::optional<RingShape> ring() const override;
    QAccessibleInterface* makeAccessible() override;

signals:
    void deleted(std::int64_t index);

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    using Index = std::optional<std::size_t>;

    [[nodiscard]] Index buttonAt(QPoint place) const;
    [[nodiscard]] StepGlow glowOf(std::size_t index) const;
    void point(QPoint place);
    void forgetPointer();
    void showAfter(const std::vector<MacroEvent>& before);

    std::vector<MacroEvent> m_steps;
    StepRow m_row;
    std::size_t m_current = 0;
    Index m_lit;        // the row below the pointer, or the one it left last
    Index m_litButton;  // the same of the buttons
    Index m_pressed;
    Fade m_rowHover{*this};
    Fade m_buttonHover{*this};
    Fade m_press{*this};
    bool m_hasKeyboardFocus = false;
};

}  // namespace lumo
