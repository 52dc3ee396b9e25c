// What udev and sysfs tell about one hidraw interface, without opening its node.
#pragma once

#include <libudev.h>

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Hid.h"
#include "platform/linux/Sysfs.h"

namespace lumo {

struct HidrawInterface {
    std::string syspath;
    std::string node;  // empty when the kernel made none: opening it fails then
    SysfsIdentity identity;
    HidMatch ids;
    std::optional<std::string> product;                // as the device tells it, control characters included
    std::optional<std::int64_t> maxFeatureReportSize;  // bytes
};

/// Reads the facts of a device of subsystem "hidraw". Absent when the device is gone, even in the middle, or has no
/// HID parent with ids. Main thread; reads a handful of sysfs files and never the node.
[[nodiscard]] std::optional<HidrawInterface> readHidrawInterface(udev_device* device);

}  // namespace lumo
