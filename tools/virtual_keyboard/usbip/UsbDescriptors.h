// What the USB device says about itself: device, configuration and string descriptors of the USB 2.0 standard.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "FirmwareModel.h"
#include "daemon/DaemonOptions.h"

namespace lumo::vk {

inline constexpr std::uint8_t kTypingInterface = 0;
inline constexpr std::uint8_t kConfigurationInterface = 1;

/// Text that must become a string descriptor (UTF-8) and ids come from the options. Throws std::runtime_error
/// when the name is not UTF-8.
class UsbDescriptors final {
public:
    explicit UsbDescriptors(const DaemonOptions& options);

    /// The descriptor that a GET_DESCRIPTOR with this wValue and wIndex asks for; absent: stall.
    [[nodiscard]] std::optional<Bytes> find(std::uint16_t value, std::uint16_t index) const;

private:
    [[nodiscard]] std::optional<Bytes> string(std::uint8_t index) const;

    Bytes m_device;
    Bytes m_product;
};

/// The report descriptor of an interface; empty for one that does not exist.
[[nodiscard]] std::span<const std::uint8_t> reportDescriptorOf(std::uint16_t interfaceNumber);

}  // namespace lumo::vk
