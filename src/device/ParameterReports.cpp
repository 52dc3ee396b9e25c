#include "device/ParameterReports.h"

#include "device/ParameterBlock.h"

namespace lumo {
namespace {

template <typename Setting>
std::optional<Report> settingWrite(std::span<const std::uint8_t> answer, std::uint8_t value) {
    // Without the keyboard's own bytes there is nothing to start from: the others would be lost.
    if (answer.size() < ParameterBlock::kEnoughToPatch) return std::nullopt;
    ReportPatch patch(paddedReport(answer));
    patch.set<ParameterBlock::Command>(ParameterBlock::kWrite)
        .set<Setting>(value)
        .template set<ParameterBlock::EndMarker>(kMarker1, kMarker2);
    return patch.report();
}

}  // namespace

std::optional<Report> debounceWrite(std::span<const std::uint8_t> answer, std::uint8_t level) {
    return settingWrite<ParameterBlock::Debounce>(answer, level);
}

std::optional<Report> brightnessWrite(std::span<const std::uint8_t> answer, std::uint8_t level) {
    return settingWrite<ParameterBlock::Brightness>(answer, level);
}

}  // namespace lumo
