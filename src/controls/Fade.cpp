#include "controls/Fade.h"

#include <QStyle>

namespace lumo {
namespace {

bool animationsAreOn(const QWidget& widget) {
    return widget.isVisible() && widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) > 0;
}

}  // namespace

Fade::Fade(QWidget& owner, double initial) : m_owner(owner), m_from(initial), m_value(initial), m_target(initial) {
    m_way.setStartValue(0.0);
    m_way.setEndValue(1.0);
    m_way.setEasingCurve(QEasingCurve::OutCubic);
    QObject::connect(&m_way, &QVariantAnimation::valueChanged, &m_way,
                     [this](const QVariant& share) { set(m_from + (m_target - m_from) * share.toDouble()); });
}

void Fade::to(double target, int durationMs) {
    if (target == m_target) return;
    m_way.stop();
    m_from = m_value;
    m_target = target;
    if (durationMs == 0 || !animationsAreOn(m_owner)) return set(target);
    m_way.setDuration(durationMs);
    m_way.start();
}

void Fade::set(double value) {
    if (value == m_value) return;
    m_value = value;
    m_owner.update();
}

QColor mix(const QColor& from, const QColor& to, double share) {
    const auto between = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {between(from.red(), to.red()), between(from.green(), to.green()), between(from.blue(), to.blue()),
            between(from.alpha(), to.alpha())};
}

}  // namespace lumo
