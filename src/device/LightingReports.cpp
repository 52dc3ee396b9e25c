#include "device/LightingReports.h"

#include <array>

#include "device/ParameterBlock.h"

namespace lumo {
namespace {

struct ColorBlock {
    using Command = Field<1>;
    using Length = Field<6, 3>;
    static constexpr std::size_t kFirstRecord = 9;
    static constexpr std::size_t kRecordSize = 21;  // r, g, b, then 18 bytes that are not ours
    static constexpr std::size_t kRecords = 21;
    using Records = Field<kFirstRecord, kRecordSize * kRecords>;
    using InnerMarker = Field<491, 2>;
    using EndMarker = Field<514, 2>;
    static constexpr std::size_t kEnoughToPatch = 516;
    static constexpr Report kBlank = reportBeginningWith(kReportId, 0, 0, 0, 1, 0);
    static_assert(disjointWithin<kReportSize, Command, Length, Records, InnerMarker, EndMarker>());
};

template <typename Block>
ReportPatch patchOf(std::span<const std::uint8_t> answer) {
    return ReportPatch(answer.size() >= Block::kEnoughToPatch ? paddedReport(answer) : Block::kBlank);
}

}  // namespace

Report colorBlockWrite(std::span<const std::uint8_t> answer, ColorBytes color) {
    auto patch = patchOf<ColorBlock>(answer);
    patch.set<ColorBlock::Command>(0x0A).set<ColorBlock::Length>(0x00, 0x02, 0x00);
    const std::array rgb{color.r, color.g, color.b};
    for (std::size_t k = 0; k < ColorBlock::kRecords; ++k) {
        patch.setAt(ColorBlock::kFirstRecord + ColorBlock::kRecordSize * k, rgb);
    }
    patch.set<ColorBlock::InnerMarker>(kMarker1, kMarker2).set<ColorBlock::EndMarker>(kMarker1, kMarker2);
    return patch.report();
}

Report parameterBlockWrite(std::span<const std::uint8_t> answer, const LightingSettings& settings) {
    const std::uint8_t hwId = asByte("hardware id", settings.hwId);
    const std::uint8_t speed = asByte("speed", settings.speed);
    const std::uint8_t brightness = asByte("brightness", settings.brightness);
    const std::uint8_t colorFlag = settings.usesCustomColor ? 1 : 0;

    auto patch = patchOf<ParameterBlock>(answer);
    patch.set<ParameterBlock::Command>(ParameterBlock::kWrite)
        .set<ParameterBlock::Effect>(hwId)
        .set<ParameterBlock::Speed>(speed)
        .set<ParameterBlock::Brightness>(brightness)
        .set<ParameterBlock::CustomColor>(colorFlag);
    if (hwId <= ParameterBlock::kLastRecord) {
        // A speed above 15 loses its high bits here: the record has one nibble for it.
        const std::array record{brightness, static_cast<std::uint8_t>((speed * 16) | colorFlag)};
        patch.setAt(ParameterBlock::kFirstRecord + ParameterBlock::kRecordSize * hwId, record);
    }
    patch.set<ParameterBlock::EndMarker>(kMarker1, kMarker2);
    return patch.report();
}

}  // namespace lumo
