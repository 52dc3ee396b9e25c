#include "foundation/FrameDeadlines.h"

namespace lumo {
namespace {

constexpr double kUsualRateHz = 60.0;
constexpr double kSlowestRateHz = 10.0;
constexpr double kFastestRateHz = 1000.0;  // timers count in milliseconds

bool isPlausible(double rateHz) { return rateHz >= kSlowestRateHz && rateHz <= kFastestRateHz; }

}  // namespace

std::chrono::steady_clock::duration framePeriod(double refreshRateHz) {
    const double rateHz = isPlausible(refreshRateHz) ? refreshRateHz : kUsualRateHz;
    return std::chrono::round<std::chrono::steady_clock::duration>(std::chrono::duration<double>(1.0 / rateHz));
}

std::chrono::steady_clock::time_point FrameDeadlines::next(std::chrono::steady_clock::time_point now,
                                                           double refreshRateHz) {
    const auto period = framePeriod(refreshRateHz);
    m_last += period;
    const bool isInStep = m_last > now && m_last <= now + period;
    if (!isInStep) m_last = now + period;
    return m_last;
}

}  // namespace lumo
