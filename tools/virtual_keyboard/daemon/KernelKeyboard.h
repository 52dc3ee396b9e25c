// A keyboard that a kernel sees, as the control loop handles it.
#pragma once

#include <vector>

namespace lumo::vk {

/// One thread. Leaves the bus when destroyed.
class KernelKeyboard {
public:
    KernelKeyboard() = default;
    KernelKeyboard(const KernelKeyboard&) = delete;
    KernelKeyboard& operator=(const KernelKeyboard&) = delete;
    virtual ~KernelKeyboard() = default;

    /// Joins the bus; called while unplugged. Throws std::system_error when the kernel will not have it.
    virtual void plug() = 0;
    /// Leaves the bus, whatever is under way; nothing happens while unplugged.
    virtual void unplug() = 0;

    /// The descriptors on which the kernel speaks to it; empty exactly while it is unplugged.
    [[nodiscard]] virtual std::vector<int> descriptors() const = 0;

    /// One of `descriptors` can be read or was closed by the kernel. May leave the bus.
    virtual void serve(int descriptor) = 0;
};

}  // namespace lumo::vk
