// Which of the keyboard's interfaces takes the configuration reports.
#pragma once

#include <cstdint>
#include <optional>

namespace lumo {

/// No interface number tells, only the largest feature report: no other interface has one as large.
[[nodiscard]] constexpr bool isConfigurationInterface(std::optional<std::int64_t> maxFeatureReportSize) {
    constexpr std::int64_t kSmallest = 520;  // bytes
    return maxFeatureReportSize.value_or(0) >= kSmallest;
}

}  // namespace lumo
