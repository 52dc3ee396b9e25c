#include "keyboard/KeyMotion.h"

#include "controls/Motion.h"
#include "controls/Theme.h"

namespace lumo {

void KeyMotion::setHovered(std::optional<std::size_t> key) {
    if (key == m_hovered) return;
    if (m_hovered) motionOf(*m_hovered).hover.to(0.0, theme::kHoverOutMs);
    if (key) motionOf(*key).hover.to(1.0, theme::kHoverInMs);
    m_hovered = key;
}

void KeyMotion::setPressed(std::optional<std::size_t> key) {
    if (key == m_pressed) return;
    if (m_pressed) motionOf(*m_pressed).press.to(0.0, theme::kKeyUpMs);
    // Where motion is reduced, a key does not travel at all.
    if (key && !motionIsReduced()) motionOf(*key).press.to(1.0, theme::kKeyDownMs);
    m_pressed = key;
}

double KeyMotion::hover(std::size_t key) const {
    const auto found = m_motions.find(key);
    return found == m_motions.end() ? 0.0 : found->second->hover.value();
}

double KeyMotion::press(std::size_t key) const {
    const auto found = m_motions.find(key);
    return found == m_motions.end() ? 0.0 : found->second->press.value();
}

KeyMotion::Motion& KeyMotion::motionOf(std::size_t key) {
    auto& motion = m_motions[key];
    if (!motion) motion = std::make_unique<Motion>(m_owner, m_changed);
    return *motion;
}

}  // namespace lumo
