#include "controls/Appearance.h"

#include "controls/Motion.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr double kRise = 8.0;

}  // namespace

Appearance::Appearance(int comingMs, std::function<void()> moved) : m_comingMs(comingMs), m_moved(std::move(moved)) {
    QObject::connect(&m_way, &QVariantAnimation::valueChanged, &m_way,
                     [this](const QVariant& share) { moveTo(share.toDouble()); });
}

void Appearance::setShown(bool isShown) {
    if (isShown == m_isShown) return;
    m_isShown = isShown;
    m_rises = isShown && !motionIsReduced();
    m_way.stop();
    m_way.setStartValue(m_share);
    m_way.setEndValue(isShown ? 1.0 : 0.0);
    m_way.setEasingCurve(isShown ? QEasingCurve::OutCubic : QEasingCurve::InQuad);
    const int durationMs = isShown ? m_comingMs : theme::kPromptOutMs;
    m_way.setDuration(motionIsReduced() ? theme::kReducedMs : durationMs);
    if (m_share == m_way.endValue().toDouble()) return moveTo(m_share);
    m_way.start();
}

double Appearance::drop() const { return m_rises ? kRise * (1.0 - m_share) : 0.0; }

void Appearance::moveTo(double share) {
    m_share = share;
    m_moved();
}

}  // namespace lumo
