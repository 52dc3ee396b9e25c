// Seconds since 1 January 2001, 00:00 UTC: the clock the animated effects are written for.
#pragma once

#include <chrono>

namespace lumo {

/// Whole and fractional seconds, leap seconds not counted; negative before that day. A double still tells moments of
/// this century apart that are less than a microsecond away from each other.
[[nodiscard]] inline double secondsSinceReferenceDate(std::chrono::system_clock::time_point moment) {
    using namespace std::chrono;
    constexpr sys_days kReferenceDate = 2001y / January / 1;
    return duration<double>(moment - kReferenceDate).count();
}

}  // namespace lumo
