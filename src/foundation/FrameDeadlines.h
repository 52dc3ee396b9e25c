// When the next frame is due, at a screen's refresh rate.
#pragma once

#include <chrono>

namespace lumo {

/// From one frame to the next. A rate that no screen has (placeholders of virtual and remote screens, not a number)
/// counts as 60 Hz.
[[nodiscard]] std::chrono::steady_clock::duration framePeriod(double refreshRateHz);

/// Absolute deadlines, a period apart: a frame that comes a little late does not make the next one late too. Whoever
/// is late by a period or more (the machine slept, the thread was busy) goes on from now and catches up with nothing.
class FrameDeadlines final {
public:
    /// Asked once a frame. Later than `now`, by no more than a period; the rate may be another one each time.
    [[nodiscard]] std::chrono::steady_clock::time_point next(std::chrono::steady_clock::time_point now,
                                                             double refreshRateHz);

private:
    std::chrono::steady_clock::time_point m_last;  // long ago at first, so that the first frame counts from now
};

}  // namespace lumo
