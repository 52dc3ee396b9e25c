// The keyboard as a USB device of this machine's kernel, through vhci_hcd.
#pragma once

#include <optional>

#include "daemon/KernelKeyboard.h"
#include "usbip/UsbipConnection.h"
#include "usbip/VhciPort.h"

namespace lumo::vk {

/// One thread; the firmware outlives it.
class UsbipKeyboard final : public KernelKeyboard {
public:
    /// Throws std::runtime_error when the name cannot be a USB string.
    UsbipKeyboard(const DaemonOptions& options, LoggedFirmware& firmware);

    void plug() override;
    void unplug() override;
    [[nodiscard]] std::vector<int> descriptors() const override;
    void serve(int descriptor) override;

private:
    UsbDevice m_unplugged;  // as it comes out of the box: nothing configured
    VhciPort m_port;
    std::optional<UsbipConnection> m_connection;
};

}  // namespace lumo::vk
