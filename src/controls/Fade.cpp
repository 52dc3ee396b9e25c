#include "controls/Fade.h"

#include "controls/Motion.h"

namespace lumo {
namespace {

bool animationsAreOn(const QWidget& widget) { return widget.isVisible() && !motionIsReduced(); }

}  // namespace

Fade::Fade(QWidget& owner) : Fade(owner, [&owner] { owner.update(); }) {}

Fade::Fade(QWidget& owner, std::function<void()> moved) : m_owner(owner), m_moved(std::move(moved)) {
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
    m_moved();
}

QColor mix(const QColor& from, const QColor& to, double share) {
    const auto between = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {between(from.red(), to.red()), between(from.green(), to.green()), between(from.blue(), to.blue()),
            between(from.alpha(), to.alpha())};
}

QColor faded(QColor color, double share) {
    color.setAlphaF(color.alphaF() * static_cast<float>(share));
    return color;
}

}  // namespace lumo
