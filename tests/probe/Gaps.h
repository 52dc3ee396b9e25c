// The longest time between two ticks of something that ought to tick all the time.
#pragma once

#include <algorithm>
#include <chrono>

namespace lumo::test {

using Clock = std::chrono::steady_clock;

class Gaps final {
public:
    void tick() {
        const auto now = Clock::now();
        m_longest = std::max(m_longest, now - m_last);
        m_last = now;
        ++m_ticks;
    }
    [[nodiscard]] int ticks() const { return m_ticks; }
    [[nodiscard]] long long longestUs() const {
        return std::chrono::duration_cast<std::chrono::microseconds>(m_longest).count();
    }

    /// Takes what was counted so far; the time since the last tick stays part of the next gap.
    [[nodiscard]] Gaps take() {
        Gaps taken = *this;
        m_longest = {};
        m_ticks = 0;
        return taken;
    }

private:
    Clock::time_point m_last = Clock::now();
    Clock::duration m_longest{};
    int m_ticks = 0;
};

}  // namespace lumo::test
