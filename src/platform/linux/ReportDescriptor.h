// What a HID report descriptor says about the size of an interface's feature reports.
// Pure; any thread.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace lumo {

/// Bytes of the largest feature report, the report id byte included where the interface uses report ids; absent
/// when the descriptor has no feature item. The bytes come from the device and may be anything: an item that is cut
/// off, or that the HID standard forbids, ends the walk, and what stood before it counts. Sizes no device can mean
/// saturate.
[[nodiscard]] std::optional<std::int64_t> largestFeatureReport(std::span<const std::uint8_t> descriptor);

}  // namespace lumo
