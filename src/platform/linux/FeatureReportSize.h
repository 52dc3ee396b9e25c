// The size of an interface's feature reports, from sysfs: needs no right on its node.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace lumo {

/// Bytes of the largest feature report of the HID device at this path in sysfs; absent when its report descriptor
/// cannot be read or has no feature item. Any thread.
[[nodiscard]] std::optional<std::int64_t> featureReportSize(const std::string& hidPath);

}  // namespace lumo
