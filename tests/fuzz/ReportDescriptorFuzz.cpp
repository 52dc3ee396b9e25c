// Report descriptors come from the device: any bytes at all.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "platform/linux/ReportDescriptor.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const std::uint8_t> bytes(data, size);
    const auto whole = lumo::largestFeatureReport(bytes);
    // 2^64 bits and the id byte are the most that can come out.
    if (whole && (*whole < 0 || *whole > (std::int64_t{1} << 61) + 1)) std::abort();
    // What is cut off can only make the answer smaller, or absent.
    const auto cut = lumo::largestFeatureReport(bytes.first(size / 2));
    if (cut && (!whole || *cut > *whole)) std::abort();
    return 0;
}
