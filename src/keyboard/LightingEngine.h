// What the keyboard's effects would look like: one key's colour and glow at one moment.
#pragma once

#include <cstdint>
#include <span>

#include "foundation/Color.h"
#include "keyboard/KeyCap.h"

namespace lumo {

struct KeyLight {
    Color color;
    double glowOpacity = 0.0;  // 0 is dark
    bool operator==(const KeyLight&) const = default;
};

/// Any thread; no state. Frames can be computed in any order.
class LightingEngine final {
public:
    /// `mode` is the effect's number (an unknown one shows the steady base colour), `time` in seconds from any origin,
    /// the levels 0 to 4. Of the key it reads place, number and colour; one without a colour of its own shows the
    /// base colour. No effect listens to the frequency levels. A key number whose multiples leave 64 bits ends the
    /// process.
    [[nodiscard]] static KeyLight color(const KeyCap& key, std::int64_t mode, double time, ColorBytes baseColor,
                                        double brightnessLevel, double speedLevel,
                                        std::span<const double> frequencyLevels = {});

    /// Whether the effect looks different at another time. The others need one frame only.
    [[nodiscard]] static constexpr bool isMoving(std::int64_t mode) {
        return mode >= 2 && mode <= 18 && mode != kReactionModeId;
    }

private:
    static constexpr std::int64_t kReactionModeId = 12;  // lights up when a key is struck; nobody strikes any here
};

}  // namespace lumo
