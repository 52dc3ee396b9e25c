// The ring around the control that the keyboard works on: one for the whole window, above everything in it.
#pragma once

#include <QPointer>
#include <QWidget>
#include <optional>

namespace lumo {

struct RingShape {
    QRectF outer;  // the ring's outer edge, in the control's coordinates
    double radius = 0.0;
};

/// A control that may wear the ring. It may lie outside the control.
class RingWearer {
public:
    RingWearer() = default;
    RingWearer(const RingWearer&) = delete;
    RingWearer& operator=(const RingWearer&) = delete;
    virtual ~RingWearer() = default;

    /// None while the control has not got the focus from the keyboard.
    [[nodiscard]] virtual std::optional<RingShape> ring() const = 0;

protected:
    /// 2 points away from a control of that shape.
    [[nodiscard]] static RingShape ringAround(const QRectF& control, double radius);
    /// For a ring that moves while the widget that wears it stays.
    static void tellOfRing(QWidget& wearer);
};

/// Main thread. Child of the view it lies over, which it follows through every change of the focus. The ring is brought
/// up to date in the turn of the loop after a change.
class FocusRing final : public QWidget {
    Q_OBJECT

public:
    explicit FocusRing(QWidget& view);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow(QWidget* focused);
    void requestPlace();
    void place();

    QPointer<QWidget> m_focused;
    std::optional<RingShape> m_shape;  // in this widget's coordinates
    bool m_isPlacePending = false;
};

}  // namespace lumo
