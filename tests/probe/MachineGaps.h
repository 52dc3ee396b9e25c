// How long the machine itself stood still: what a thread missed that does nothing but sleep.
#pragma once

#include <mutex>
#include <thread>

#include "probe/Gaps.h"

namespace lumo::test {

class MachineGaps final {
public:
    explicit MachineGaps(Clock::duration tick)
        : m_sleeper([this, tick](const std::stop_token& stop) {
              while (!stop.stop_requested()) {
                  std::this_thread::sleep_for(tick);
                  const std::lock_guard lock(m_mutex);
                  m_gaps.tick();
              }
          }) {}

    /// As Gaps::take().
    [[nodiscard]] Gaps take() {
        const std::lock_guard lock(m_mutex);
        return m_gaps.take();
    }

private:
    std::mutex m_mutex;
    Gaps m_gaps;
    std::jthread m_sleeper;  // last: it uses the two above
};

}  // namespace lumo::test
