// Macro steps written shortly.
#pragma once

#include <cstdint>
#include <ostream>
#include <vector>

#include "macro/MacroEvent.h"

namespace lumo::test {

/// A step without its identity.
struct Step {
    int keyCode = 0;
    bool isDown = false;
    std::int64_t delayMs = 0;
    bool operator==(const Step&) const = default;

    friend std::ostream& operator<<(std::ostream& out, const Step& step) {
        return out << step.keyCode << (step.isDown ? " down " : " up ") << step.delayMs;
    }
};

[[nodiscard]] inline MacroEvent press(std::uint8_t keyCode, std::int64_t delayMs) {
    return {Uuid::random(), keyCode, true, delayMs};
}

[[nodiscard]] inline MacroEvent release(std::uint8_t keyCode, std::int64_t delayMs) {
    return {Uuid::random(), keyCode, false, delayMs};
}

[[nodiscard]] inline std::vector<Step> stepsOf(const std::vector<MacroEvent>& events) {
    std::vector<Step> steps;
    for (const MacroEvent& event : events) steps.push_back({event.keyCode, event.isDown, event.delayMs});
    return steps;
}

}  // namespace lumo::test
