// Tells when something has been left alone for a while.
#pragma once

#include <memory>
#include <utility>

#include "foundation/RunLoop.h"

namespace lumo {

/// Main thread. Calls `over` once, `length` after the last `begin`, unless it is cancelled or destroyed before.
class Rest final {
public:
    Rest(MainQueue main, Duration length, Task over) : m_main(main), m_length(length), m_over(std::move(over)) {}

    void begin() {
        m_waiting = m_main.run.repeatEvery(m_length, [this] {
            cancel();
            m_over();
        });
    }
    void cancel() { m_waiting.reset(); }

private:
    MainQueue m_main;
    Duration m_length;
    Task m_over;
    std::unique_ptr<Registration> m_waiting;
};

}  // namespace lumo
