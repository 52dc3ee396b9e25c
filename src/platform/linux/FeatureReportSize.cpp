#include "platform/linux/FeatureReportSize.h"

#include <vector>

#include "platform/linux/ReportDescriptor.h"
#include "platform/linux/Sysfs.h"

namespace lumo {
namespace {

constexpr std::size_t kLongestDescriptor = 64 * 1024;  // the kernel takes 4096 bytes today

}  // namespace

std::optional<std::int64_t> featureReportSize(const std::string& hidPath) {
    const auto bytes = readSysfsFile(hidPath + "/report_descriptor", kLongestDescriptor);
    if (!bytes) return std::nullopt;
    const std::vector<std::uint8_t> descriptor(bytes->begin(), bytes->end());
    return largestFeatureReport(descriptor);
}

}  // namespace lumo
