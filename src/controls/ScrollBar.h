// A slim bar that says where in something longer the view stands, and can be dragged there.
#pragma once

#include <QScrollBar>

#include "controls/Fade.h"

namespace lumo {

/// Main thread. Follows the scroll bar of a scroll area, which itself stays hidden; is shown while there is something
/// to scroll. Not a stop for Tab: the keyboard scrolls by moving the focus.
class ScrollBar final : public QScrollBar {
    Q_OBJECT

public:
    static constexpr int kThickness = 6;

    ScrollBar(QScrollBar& followed, QWidget* parent);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();
    [[nodiscard]] QRectF thumb() const;
    void moveThumbTo(double top);

    QScrollBar& m_followed;
    Fade m_hover{*this};
    double m_grip = 0.0;  // where in the thumb it was taken
};

}  // namespace lumo
