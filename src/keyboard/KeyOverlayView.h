// One key of the on-screen keyboard, as it is shown in one frame.
#pragma once

#include <cstdint>

#include "keyboard/KeyCap.h"
#include "keyboard/LightingEngine.h"

namespace lumo {

/// Any thread. Lives no longer than the key it points to.
struct KeyOverlayView {
    const KeyCap& key;
    bool isSelected = false;
    bool isHovered = false;
    std::int64_t activeModeId = 0;
    double time = 0.0;  // seconds
    ColorBytes baseColor;
    double brightnessLevel = 0.0;  // 0 to 4
    double speedLevel = 0.0;       // 0 to 4

    [[nodiscard]] KeyLight lighting() const {
        return LightingEngine::color(key, activeModeId, time, baseColor, brightnessLevel, speedLevel);
    }
};

}  // namespace lumo
