#include "controls/Appearance.h"

#include <QSignalBlocker>
#include <cmath>

#include "controls/Motion.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr double kRise = 8.0;

}  // namespace

Appearance::Appearance(int comingMs, std::function<void()> moved) : m_comingMs(comingMs), m_moved(std::move(moved)) {
    m_way.setStartValue(0.0);
    m_way.setEndValue(1.0);
    QObject::connect(&m_way, &QVariantAnimation::valueChanged, &m_way,
                     [this](const QVariant& progress) { moveOn(progress.toDouble()); });
}

void Appearance::setShown(bool isShown) {
    if (isShown == m_isShown) return;
    m_isShown = isShown;
    if (isShown && m_share == 0.0) m_drop = motionIsReduced() ? 0.0 : kRise;
    m_shareBefore = m_share;
    m_dropBefore = m_drop;
    setOut();
}

void Appearance::setOut() {
    m_way.stop();
    {
        const QSignalBlocker stillTheOldWay(m_way);
        m_way.setEasingCurve(m_isShown ? QEasingCurve::OutCubic : QEasingCurve::InQuad);
        const int durationMs = m_isShown ? m_comingMs : theme::kPromptOutMs;
        m_way.setDuration(motionIsReduced() ? theme::kReducedMs : durationMs);
    }
    m_moved();
    if (!isResting()) m_way.start();
}

void Appearance::moveOn(double progress) {
    m_share = std::lerp(m_shareBefore, end(), progress);
    if (m_isShown) m_drop = std::lerp(m_dropBefore, 0.0, progress);  // it goes without falling
    m_moved();
}

}  // namespace lumo
