// The device's end of a USB/IP stream socket.
#pragma once

#include <cstdint>
#include <set>
#include <span>

#include "usbip/UsbDevice.h"
#include "usbip/UsbipWire.h"

namespace lumo::vk {

/// One thread. Owns the socket; destroying it is pulling the plug.
class UsbipConnection final {
public:
    UsbipConnection(int socket, UsbDevice device);
    UsbipConnection(const UsbipConnection&) = delete;
    UsbipConnection& operator=(const UsbipConnection&) = delete;
    ~UsbipConnection();

    [[nodiscard]] int descriptor() const { return m_socket; }

    /// Reads one packet and answers it as far as it has an answer now. False once the device is gone: the host
    /// let go, spoke nonsense, or the firmware vanished.
    [[nodiscard]] bool serveOne();

private:
    [[nodiscard]] bool serve(const UsbipSubmit& submit);
    [[nodiscard]] bool serve(const UsbipUnlink& unlink);
    [[nodiscard]] bool receive(std::span<std::uint8_t> bytes) const;
    [[nodiscard]] bool send(std::span<const std::uint8_t> bytes) const;

    int m_socket;
    UsbDevice m_device;
    std::set<std::uint32_t> m_pending;  // transfers without an answer: interrupt IN, and whatever hangs
};

}  // namespace lumo::vk
