#include "controls/ColorWheel.h"

#include <QPainter>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <numbers>
#include <utility>

namespace lumo {
namespace {

constexpr auto kPace = std::chrono::milliseconds(200);
constexpr double kMarkerRadius = 8.0;
constexpr QColor kMarkerOutside{0, 0, 0, 140};
constexpr QColor kMarkerInside{0, 0, 0, 115};

// Qt's bridge to AT-SPI takes numbers for values, and complains about a change of others: there it is the description.
#ifdef Q_OS_MACOS
constexpr auto kValueText = QAccessible::Value;
constexpr auto kValueChange = QAccessible::ValueChanged;
#else
constexpr auto kValueText = QAccessible::Description;
constexpr auto kValueChange = QAccessible::DescriptionChanged;
#endif

class AccessibleWheel final : public QAccessibleWidget {
public:
    explicit AccessibleWheel(ColorWheel& wheel)
        : QAccessibleWidget(&wheel, QAccessible::ColorChooser), m_wheel(wheel) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value || kind == kValueText) return m_wheel.valueText();
        return QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QRect rect() const override {
        const QRect disc = m_wheel.discRect().toAlignedRect();
        return {m_wheel.mapToGlobal(disc.topLeft()), disc.size()};
    }

private:
    ColorWheel& m_wheel;
};

void paintCircle(QPainter& painter, const QPointF& centre, double outerRadius, double width, const QColor& color) {
    painter.setPen(QPen(color, width));
    painter.drawEllipse(centre, outerRadius - width / 2.0, outerRadius - width / 2.0);
}

void paintMarker(QPainter& painter, const QPointF& centre) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    paintCircle(painter, centre, kMarkerRadius + 1.0, 1.0, kMarkerOutside);
    paintCircle(painter, centre, kMarkerRadius - 2.0, 1.0, kMarkerInside);
    paintCircle(painter, centre, kMarkerRadius, 2.0, Qt::white);
}

}  // namespace

ColorWheel::ColorWheel(PictureSource picture, MainQueue main, QWidget* parent)
    : QWidget(parent),
      m_disc(std::move(picture)),
      m_reports(main, kPace, [this](const Color& color) { emit picked(color); }) {
    // A press takes the focus itself: beside the disc it belongs to the window.
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
}

void ColorWheel::setColor(const Color& color) {
    m_reports.setKnown(color);
    if (m_use == Use::none) follow(color);
}

QRectF ColorWheel::pictureRect() const {
    const int side = std::min(width(), height()) - 2 * kRoom;
    const QRect square((width() - side) / 2, (height() - side) / 2, side, side);
    return square;
}

QRectF ColorWheel::discRect() const {
    const QRectF picture = pictureRect();
    const double margin = picture.width() * (1.0 - WheelDisc::kRadiusShare) / 2.0;
    return picture.adjusted(margin, margin, -margin, -margin);
}

std::optional<RingShape> ColorWheel::ring() const {
    if (!hasFocus() || !m_hasKeyboardFocus) return std::nullopt;
    return ringAround(discRect(), discRect().width() / 2.0);
}

QPointF ColorWheel::markerCentre() const {
    const QRectF disc = discRect();
    const double reach = m_saturation * disc.width() / 2.0;
    const double angle = m_hue * 2.0 * std::numbers::pi;
    return disc.center() + reach * QPointF(std::cos(angle), -std::sin(angle));
}

void ColorWheel::placePicture(const QRect& inParent) { setGeometry(inParent.adjusted(-kRoom, -kRoom, kRoom, kRoom)); }

QString ColorWheel::valueText() const {
    const auto degrees = std::lround(m_hue * 360.0) % 360;
    return QString("Hue %1°, saturation %2%").arg(degrees).arg(std::lround(m_saturation * 100.0));
}

QSize ColorWheel::sizeHint() const { return {196 + 2 * kRoom, 196 + 2 * kRoom}; }

QAccessibleInterface* ColorWheel::makeAccessible() { return new AccessibleWheel(*this); }

void ColorWheel::end() {
    if (m_use == Use::none) return;
    m_use = Use::none;
    m_reports.finish();
    follow(m_reports.known());  // what the model was given from elsewhere in the meantime
}

void ColorWheel::follow(const Color& color) {
    if (toBytes(color) == toBytes(markerColor())) return;
    const Hsb hsb = toHsb(color);
    moveMarker(hsb.hue, hsb.saturation);
}

void ColorWheel::moveMarker(double hue, double saturation) {
    if (hue == m_hue && saturation == m_saturation) return;
    updateMarker();
    m_hue = hue;
    m_saturation = saturation;
    updateMarker();
    QAccessibleEvent event(this, kValueChange);
    QAccessible::updateAccessibility(&event);
}

void ColorWheel::updateMarker() {
    const double reach = kMarkerRadius + 2.0;
    const QPointF centre = markerCentre();
    update(QRectF(centre - QPointF(reach, reach), QSizeF(2.0 * reach, 2.0 * reach)).toAlignedRect());
}

void ColorWheel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled()) end();
    QWidget::changeEvent(event);
}

void ColorWheel::focusOutEvent(QFocusEvent*) { end(); }

void ColorWheel::hideEvent(QHideEvent*) { end(); }

void ColorWheel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    m_disc.paint(painter, pictureRect());
    paintMarker(painter, markerCentre());
}

}  // namespace lumo
