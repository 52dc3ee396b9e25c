// The keyboard's answers to USB control transfers.
#pragma once

#include <cstdint>
#include <span>

#include "daemon/LoggedFirmware.h"
#include "usbip/UsbDescriptors.h"

namespace lumo::vk {

/// The eight bytes that begin a control transfer (USB 2.0 standard, table 9-2), in the host's byte order.
struct UsbSetup {
    std::uint8_t requestType = 0;
    std::uint8_t request = 0;
    std::uint16_t value = 0;
    std::uint16_t index = 0;
    std::uint16_t length = 0;
};

/// One thread; the firmware outlives it. One object for each time the keyboard is plugged.
class UsbDevice final {
public:
    UsbDevice(const DaemonOptions& options, LoggedFirmware& firmware) : m_descriptors(options), m_firmware(firmware) {}

    /// `data`: what the host sends along. The answer's bytes are never more than setup.length.
    [[nodiscard]] FirmwareModel::Answer control(const UsbSetup& setup, std::span<const std::uint8_t> data);

private:
    [[nodiscard]] FirmwareModel::Answer standard(const UsbSetup& setup) const;
    [[nodiscard]] FirmwareModel::Answer hidClass(const UsbSetup& setup, std::span<const std::uint8_t> data);
    [[nodiscard]] FirmwareModel::Answer setReport(const UsbSetup& setup, std::span<const std::uint8_t> data);

    UsbDescriptors m_descriptors;
    LoggedFirmware& m_firmware;
    std::uint8_t m_configuration = 0;
};

}  // namespace lumo::vk
