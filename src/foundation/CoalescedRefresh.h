// Turns any number of change notices into one refresh in the next turn of the main loop.
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "foundation/RunLoop.h"

namespace lumo {

/// Main thread. Destroying it cancels a refresh that is still to come.
class CoalescedRefresh final {
public:
    CoalescedRefresh(MainQueue main, std::function<void()> refresh)
        : m_main(main), m_refresh(std::make_shared<std::function<void()>>(std::move(refresh))) {}

    void request() {
        if (std::exchange(*m_pending, true)) return;
        m_main.run.post([pending = m_pending, weak = std::weak_ptr(m_refresh)] {
            *pending = false;  // before drawing, so that a request made while drawing is not lost
            if (const auto refresh = weak.lock()) (*refresh)();  // the view may be gone by now
        });
    }

private:
    MainQueue m_main;
    std::shared_ptr<std::function<void()>> m_refresh;
    std::shared_ptr<bool> m_pending = std::make_shared<bool>(false);
};

}  // namespace lumo
