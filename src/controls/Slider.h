// A horizontal slider that moves in steps.
#pragma once

#include <QWidget>
#include <cstdint>
#include <optional>

#include "controls/Accessible.h"
#include "controls/Fade.h"
#include "controls/Rest.h"
#include "controls/SliderRange.h"
#include "foundation/RunLoop.h"

namespace lumo {

/// Main thread. Every use of it, by the mouse, the keyboard, the mouse wheel or assistive technology, is one
/// `editingChanged(true)`, then the values passed through, then one `editingChanged(false)`. A held key or a spun wheel
/// is one use, until it has rested for a quarter of a second. Whatever takes the slider away in the middle ends the use
/// at once: the focus or the mouse going elsewhere, being hidden, disabled or destroyed. Only a parent's destructor
/// that takes the slider along ends it silently, since what listens there is half gone.
/// The wheel turns the slider only while it has the focus; before that it belongs to the page. The left is always less.
class Slider final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    static constexpr int kHitHeight = 20;
    static constexpr int kSideRoom = 6;  // beyond the track's ends, for the halo
    static constexpr int kTopRoom = 4;   // above and below what can be pressed, for the same

    Slider(const SliderRange& range, MainQueue main, QWidget* parent);
    Slider(const Slider&) = delete;
    Slider& operator=(const Slider&) = delete;
    ~Slider() override;

    /// From the model: tells nobody but assistive technology. Also takes values between the steps.
    void setValue(double value);
    [[nodiscard]] double value() const { return m_value; }
    [[nodiscard]] const SliderRange& range() const { return m_range; }

    /// A whole use that leads to the nearest step.
    void useOnce(double value);

    /// Whether each step has its dot below the track; it has from the start.
    void setStepDots(bool shown);

    /// What can be pressed: as wide as the track, 20 points high. Around it the widget needs its room.
    [[nodiscard]] QRect hitArea() const;
    void placeHitArea(const QRect& inParent);
    [[nodiscard]] QRectF trackRect() const;
    /// The place of the knob's centre for a value.
    [[nodiscard]] double knobX(double value) const;

    [[nodiscard]] bool showsRing() const { return hasFocus() && m_showsRing; }

    [[nodiscard]] QSize sizeHint() const override;
    QAccessibleInterface* makeAccessible() override;

signals:
    void valueChanged(double value);
    void editingChanged(bool begins);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    enum class Use : std::uint8_t { none, pointer, keys };

    /// Ends any other use. False when who listens has ended this one already.
    [[nodiscard]] bool begin(Use use);
    void end();
    void changeTo(double value);
    void store(double value);
    void dragTo(double x);
    void step(double target);
    void letKeyGo();
    [[nodiscard]] std::optional<double> keyTarget(const QKeyEvent& event) const;
    [[nodiscard]] int wholeSteps(QPoint wheelAngle);
    void setHovered(bool hovered);
    void setShowsRing(bool shown);

    SliderRange m_range;
    double m_value;
    Use m_use = Use::none;
    Rest m_rest;
    Fade m_hover{*this};
    Fade m_press{*this};
    double m_grip = 0.0;  // where the knob is held, from its centre
    double m_pressX = 0.0;
    bool m_isDragged = false;
    int m_heldKey = 0;
    int m_wheelAngle = 0;  // not a whole step yet
    bool m_hasStepDots = true;
    bool m_showsRing = false;
};

}  // namespace lumo
