// What the udev rule is told of one hidraw device.
#pragma once

#include <string>

namespace lumo {

/// A line as IMPORT{program} takes it: "VEXA_LUMO_65_INTERFACE=configuration" for the interface that takes the
/// configuration reports, "=other" for every other one and where nothing can be read. `syspath` is the device's
/// folder in sysfs.
[[nodiscard]] std::string interfaceProperty(const std::string& syspath);

}  // namespace lumo
