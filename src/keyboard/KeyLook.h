// One key of the on-screen keyboard in one frame. Values.
#pragma once

#include "keyboard/LightingEngine.h"

namespace lumo {

struct KeyLook {
    KeyLight light;
    bool selected = false;
    bool focused = false;
    double hover = 0.0;  // 0 to 1
    double press = 0.0;  // 0 to 1: the face lies that many points lower
};

/// What the user does to the key.
struct KeyTouch {
    bool isSelected = false;
    bool isFocused = false;
    double hover = 0.0;
    double press = 0.0;
    bool operator==(const KeyTouch&) const = default;
};
[[nodiscard]] constexpr KeyTouch touchOf(const KeyLook& look) {
    return {look.selected, look.focused, look.hover, look.press};
}

}  // namespace lumo
