// One colour of the palette.
#pragma once

#include "controls/PushControl.h"

namespace lumo {

/// Main thread. Needs room around the colour for the ring of the selected one.
class ColorSwatch final : public PushControl {
    Q_OBJECT

public:
    static constexpr int kRoom = 4;

    ColorSwatch(const QString& name, const QColor& color, QWidget* parent);

    /// Where the colour itself shall stand, in the parent's coordinates.
    void setColorRect(const QRect& rect) { setGeometry(rect.adjusted(-kRoom, -kRoom, kRoom, kRoom)); }

protected:
    [[nodiscard]] RingShape ringShape() const override;
    [[nodiscard]] bool hitButton(const QPoint& position) const override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRect colorRect() const { return rect().adjusted(kRoom, kRoom, -kRoom, -kRoom); }

    QColor m_color;
};

}  // namespace lumo
