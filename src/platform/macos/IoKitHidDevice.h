// One HID interface, as IOKit knows it.
// Made on the main thread by IoKitHidManager; reports run on the I/O queue, and the last reference may be
// dropped on either. Outlives the manager without harm: it holds a count of its own on the IOKit object.
#pragma once

#include <IOKit/hid/IOHIDDevice.h>

#include "platform/Hid.h"
#include "platform/macos/CfRef.h"

namespace lumo {

class IoKitHidDevice final : public HidDevice {
public:
    explicit IoKitHidDevice(CfRef<IOHIDDeviceRef> device);

    /// A property that is no number, or whose value is not a whole one, counts as absent.
    [[nodiscard]] std::optional<std::int64_t> maxFeatureReportSize() const override;
    [[nodiscard]] std::optional<std::string> product() const override;
    [[nodiscard]] bool setFeatureReport(std::uint8_t reportId, std::span<const std::uint8_t> bytes) override;
    [[nodiscard]] std::optional<std::size_t> getFeatureReport(std::uint8_t reportId,
                                                              std::span<std::uint8_t> buffer) override;

    /// True when both stand for the same interface. IOKit may show one interface through several objects;
    /// CFEqual, not the address, tells.
    [[nodiscard]] bool isSameInterface(IOHIDDeviceRef other) const;

private:
    const CfRef<IOHIDDeviceRef> m_device;
};

}  // namespace lumo
