// The packets of USB/IP as the kernel's vhci_hcd driver sends and expects them: headers of 48 bytes, big-endian.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <variant>

#include "usbip/UsbDevice.h"

namespace lumo::vk {

inline constexpr std::size_t kUsbipHeaderSize = 48;
using UsbipHeader = std::array<std::uint8_t, kUsbipHeaderSize>;

/// A transfer the host begins; `length` bytes follow when they go to the device.
struct UsbipSubmit {
    std::uint32_t sequence = 0;
    bool toHost = false;
    std::uint32_t endpoint = 0;
    std::uint32_t length = 0;
    UsbSetup setup;
};

/// The host takes back the transfer `victim`.
struct UsbipUnlink {
    std::uint32_t sequence = 0;
    std::uint32_t victim = 0;
};

/// std::monostate for a packet that is neither.
using UsbipCommand = std::variant<std::monostate, UsbipSubmit, UsbipUnlink>;
[[nodiscard]] UsbipCommand parseUsbip(std::span<const std::uint8_t, kUsbipHeaderSize> header);

/// `status` is 0 or a negative errno; `length` what was transferred in bytes.
[[nodiscard]] UsbipHeader submitReply(std::uint32_t sequence, std::int32_t status, std::uint32_t length);

/// `status`: -ECONNRESET when the victim will get no answer any more, 0 when it has had one.
[[nodiscard]] UsbipHeader unlinkReply(std::uint32_t sequence, std::int32_t status);

}  // namespace lumo::vk
