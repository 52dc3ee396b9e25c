// One step of a macro.
#pragma once

#include <cstdint>

#include "foundation/Uuid.h"

namespace lumo {

struct MacroEvent {
    Uuid id = Uuid::random();
    std::uint8_t keyCode = 0;  // goes into the macro image unchanged
    bool isDown = false;       // press or release
    std::int64_t delayMs = 0;  // wait after the step; any integer, limited only when compiled
    bool operator==(const MacroEvent&) const = default;
};

}  // namespace lumo
