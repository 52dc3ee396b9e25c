// One HID interface that lives as long as this object, through /dev/uhid.
#pragma once

#include <linux/uhid.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "daemon/DaemonOptions.h"

namespace lumo::vk {

/// One thread. Destroying it removes the interface from the kernel, also with requests unanswered.
class UhidInterface final {
public:
    /// Throws std::system_error without /dev/uhid or the right to it.
    UhidInterface(const DaemonOptions& options, int number, std::span<const std::uint8_t> reportDescriptor);
    UhidInterface(const UhidInterface&) = delete;
    UhidInterface& operator=(const UhidInterface&) = delete;
    ~UhidInterface();

    [[nodiscard]] int descriptor() const { return m_descriptor; }

    /// The next event, absent when there is none. Throws std::system_error when the kernel side is broken.
    [[nodiscard]] std::optional<uhid_event> next() const;

    /// A refused request fails with EIO, whatever the number: the kernel passes none on.
    void answerSet(std::uint32_t request, bool accepted) const;
    void refuseGet(std::uint32_t request) const;
    void answerGet(std::uint32_t request, std::span<const std::uint8_t> bytes) const;

private:
    void send(const uhid_event& event) const;

    int m_descriptor;
};

}  // namespace lumo::vk
