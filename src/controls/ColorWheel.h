// The disc on which a colour is picked by hue and saturation, at full brightness.
#pragma once

#include <QWidget>
#include <cstdint>

#include "controls/Accessible.h"
#include "controls/FocusRing.h"
#include "controls/PacedColor.h"
#include "controls/PictureSource.h"
#include "controls/WheelDisc.h"
#include "foundation/Color.h"
#include "foundation/RunLoop.h"

namespace lumo {

/// Main thread. Red is at three o'clock, the hues run counter-clockwise, white is the centre.
/// Left and right arrows turn the hue by 5 degrees, up and down change the saturation by 0.05; with Shift by 1 and
/// 0.01.
class ColorWheel final : public QWidget, public AccessibleSource, public RingWearer {
    Q_OBJECT

public:
    static constexpr int kRoom = 8;  // around the picture, for a marker at the rim

    /// The picture as in `WheelDisc`.
    ColorWheel(PictureSource picture, MainQueue main, QWidget* parent);

    /// From the model: tells nobody but assistive technology. The marker follows it once the user lets go.
    void setColor(const Color& color);

    /// In the wheel's own coordinates.
    [[nodiscard]] QRectF discRect() const;
    [[nodiscard]] QPointF markerCentre() const;
    /// The square of the picture, which is a little wider than the disc.
    void placePicture(const QRect& inParent);

    /// "Hue 263°, saturation 96%"
    [[nodiscard]] QString valueText() const;

    [[nodiscard]] std::optional<RingShape> ring() const override;
    [[nodiscard]] QSize sizeHint() const override;
    QAccessibleInterface* makeAccessible() override;

signals:
    /// At every press, then at most every 200 ms while it changes, and the last one when the user lets go.
    void picked(lumo::Color color);

protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    enum class Use : std::uint8_t { none, pointer, keys };

    [[nodiscard]] QRectF pictureRect() const;
    [[nodiscard]] bool isOnDisc(const QPointF& place) const;
    void moveMarkerTo(const QPointF& place);
    void dragTo(const QPointF& place);
    void end();
    void follow(const Color& color);
    void moveMarker(double hue, double saturation);
    void updateMarker();
    [[nodiscard]] Color markerColor() const { return Color::fromHsb(m_hue, m_saturation, 1.0); }

    // Not kept as a colour: at the centre the hue would be lost, and near it most of its precision.
    double m_hue = 0.0;
    double m_saturation = 0.0;
    WheelDisc m_disc;
    PacedColor m_reports;
    Use m_use = Use::none;
    bool m_hasKeyboardFocus = false;
};

}  // namespace lumo
