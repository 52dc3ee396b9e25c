// How far each key of the on-screen keyboard is hovered and pressed.
#pragma once

#include <QVariantAnimation>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "controls/Fade.h"

namespace lumo {

/// Main thread. Member of the widget that shows the keys; `changed` is called whenever a value of a key moved.
class KeyMotion final {
public:
    KeyMotion(QWidget& owner, std::function<void()> changed) : m_owner(owner), m_changed(std::move(changed)) {}

    /// None lets go of all.
    void setHovered(std::optional<std::size_t> key);
    void setPressed(std::optional<std::size_t> key);

    /// From 0 to 1.
    [[nodiscard]] double hover(std::size_t key) const;
    [[nodiscard]] double press(std::size_t key) const;

private:
    struct Motion {
        Motion(QWidget& owner, const std::function<void()>& moved) : hover(owner, moved), press(owner, moved) {}
        Fade hover;
        Fade press;
    };
    [[nodiscard]] Motion& motionOf(std::size_t key);

    QWidget& m_owner;
    std::function<void()> m_changed;
    std::map<std::size_t, std::unique_ptr<Motion>> m_motions;  // of the keys that were ever touched
    std::optional<std::size_t> m_hovered;
    std::optional<std::size_t> m_pressed;
};

}  // namespace lumo
