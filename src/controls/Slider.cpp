#include "controls/Slider.h"

#include <QFocusEvent>
#include <QPainter>
#include <chrono>
#include <cmath>

#include "controls/Panel.h"
#include "controls/SliderLooks.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr auto kRest = std::chrono::milliseconds(250);
constexpr int kHaloMs = 120;

/// One range of values, whatever is between its steps.
class AccessibleSlider final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleSlider(Slider& slider) : QAccessibleWidget(&slider, QAccessible::Slider), m_slider(slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QRect rect() const override {
        const QRect area = m_slider.hitArea();
        return {m_slider.mapToGlobal(area.topLeft()), area.size()};
    }
    [[nodiscard]] QVariant currentValue() const override { return m_slider.value(); }
    void setCurrentValue(const QVariant& value) override {
        bool isNumber = false;
        const double wanted = value.toDouble(&isNumber);
        if (isNumber && std::isfinite(wanted)) m_slider.useOnce(wanted);
    }
    [[nodiscard]] QVariant minimumValue() const override { return m_slider.range().minimum; }
    [[nodiscard]] QVariant maximumValue() const override { return m_slider.range().maximum; }
    [[nodiscard]] QVariant minimumStepSize() const override { return m_slider.range().step; }

private:
    Slider& m_slider;
};

}  // namespace

Slider::Slider(const SliderRange& range, MainQueue main, QWidget* parent)
    : QWidget(parent), m_range(range), m_value(range.minimum), m_rest(main, kRest, [this] { end(); }) {
    // A press takes the focus itself: beside the track it belongs to the window.
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
}

Slider::~Slider() {
    // A parent's destructor takes its children off its list before it deletes them.
    if (!parent() || parent()->children().contains(this)) end();
}

void Slider::setValue(double value) {
    if (value != m_value) store(value);
}

void Slider::useOnce(double value) {
    if (!begin(Use::keys)) return;
    changeTo(m_range.nearest(m_range.share(value)));
    end();
}

void Slider::setStepDots(bool shown) {
    if (shown == m_hasStepDots) return;
    m_hasStepDots = shown;
    update();
}

QRect Slider::hitArea() const { return {kSideRoom, (height() - kHitHeight) / 2, width() - 2 * kSideRoom, kHitHeight}; }

void Slider::placeHitArea(const QRect& inParent) {
    setGeometry(inParent.adjusted(-kSideRoom, -kTopRoom, kSideRoom, kTopRoom));
}

QRectF Slider::trackRect() const {
    const double margin = (kHitHeight - SliderLooks::kTrackHeight) / 2.0;
    return QRectF(hitArea()).adjusted(0.0, margin, 0.0, -margin);
}

double Slider::knobX(double value) const {
    const QRectF track = trackRect();
    return track.left() + SliderLooks::kKnobRadius +
           m_range.share(value) * (track.width() - 2.0 * SliderLooks::kKnobRadius);
}

QSize Slider::sizeHint() const { return {160 + 2 * kSideRoom, kHitHeight + 2 * kTopRoom}; }

QAccessibleInterface* Slider::makeAccessible() { return new AccessibleSlider(*this); }

bool Slider::begin(Use use) {
    end();
    m_use = use;
    if (use == Use::pointer) m_press.to(1.0, 0);
    emit editingChanged(true);
    return m_use == use;
}

void Slider::end() {
    if (m_use == Use::none) return;
    m_use = Use::none;
    m_rest.cancel();
    m_heldKey = 0;
    m_wheelAngle = 0;
    m_press.to(0.0, theme::kPressOutMs);
    emit editingChanged(false);
}

void Slider::changeTo(double value) {
    if (value == m_value) return;
    store(value);
    emit valueChanged(value);
}

void Slider::store(double value) {
    m_value = value;
    update();
    QAccessibleValueChangeEvent event(this, value);
    QAccessible::updateAccessibility(&event);
}

bool Slider::event(QEvent* event) {
    if (event->type() == QEvent::UngrabMouse && m_use == Use::pointer) end();
    return QWidget::event(event);
}

void Slider::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled()) end();
    QWidget::changeEvent(event);
}

void Slider::hideEvent(QHideEvent* event) {
    end();
    setHovered(false);
    QWidget::hideEvent(event);
}

void Slider::focusInEvent(QFocusEvent* event) { setShowsRing(showsFocusRing(event->reason(), m_showsRing)); }

void Slider::focusOutEvent(QFocusEvent*) {
    end();
    m_wheelAngle = 0;
    if (m_showsRing) update();
}

void Slider::setShowsRing(bool shown) {
    if (shown || m_showsRing) update();
    m_showsRing = shown;
}

void Slider::setHovered(bool hovered) { m_hover.to(hovered ? 1.0 : 0.0, kHaloMs); }

void Slider::paintEvent(QPaintEvent*) {
    SliderLooks looks{trackRect(), knobX(m_value), {}, m_hover.value(), m_press.value(), showsRing()};
    for (int i = 0; m_hasStepDots && i <= m_range.lastStep(); ++i) looks.dotXs.push_back(knobX(m_range.valueAt(i)));
    QPainter painter(this);
    paintSlider(painter, looks);
}

}  // namespace lumo
