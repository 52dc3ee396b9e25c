// The interface that commands go to: replaced as a whole on the main thread, copied out on the I/O queue.
#pragma once

#include <memory>
#include <mutex>
#include <utility>

#include "platform/Hid.h"

namespace lumo {

/// A mutex around a shared pointer: the handle stays valid until a running exchange lets go of its copy.
class HeldDevice final {
public:
    /// Main thread.
    void replace(std::shared_ptr<HidDevice> device) {
        const std::lock_guard lock(m_mutex);
        m_device.swap(device);
    }

    /// Any thread.
    [[nodiscard]] std::shared_ptr<HidDevice> get() const {
        const std::lock_guard lock(m_mutex);
        return m_device;
    }

private:
    mutable std::mutex m_mutex;
    std::shared_ptr<HidDevice> m_device;
};

}  // namespace lumo
