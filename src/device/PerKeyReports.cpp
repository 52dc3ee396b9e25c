#include "device/PerKeyReports.h"

#include <array>

namespace lumo {
namespace {

struct BankReport {
    static constexpr std::size_t kFirstColor = 8;
    static constexpr std::int64_t kLastOffset = 497;
    using Header = Field<0, 8>;
    using EndMarker = Field<514, 2>;
    static_assert(disjointWithin<kReportSize, Header, EndMarker>());
    static_assert(kFirstColor + kLastOffset + 3 <= kReportSize);
};

struct PlanesReport {
    static constexpr std::size_t kLeds = 126;
    using Header = Field<0, 8>;
    using Red = Field<8, kLeds>;
    using Green = Field<134, kLeds>;
    using Blue = Field<260, kLeds>;
    using PlanesMarker = Field<386, 2>;
    using EndMarker = Field<514, 2>;
    static_assert(disjointWithin<kReportSize, Header, Red, Green, Blue, PlanesMarker, EndMarker>());
};

ColorBytes colorOf(const LedColors& colors, std::int64_t ledIndex) {
    const auto found = colors.find(ledIndex);
    return found == colors.end() ? kDefaultColorBytes : found->second;
}

}  // namespace

Report colorBankWrite(ColorBank bank, std::span<const KeyColorPlace> places, const LedColors& colors) {
    ReportPatch patch{Report{}};
    patch.set<BankReport::Header>(kReportId, 0x09, static_cast<std::uint8_t>(bank), 0x00, 0x01, 0x00, 0x00, 0x02);
    const std::int64_t bankNumber = bank == ColorBank::first ? 1 : 2;
    for (const KeyColorPlace& place : places) {
        if (place.bank != bankNumber || place.bankOffset < 0 || place.bankOffset > BankReport::kLastOffset) continue;
        const ColorBytes color = colorOf(colors, place.ledIndex);
        patch.setAt(BankReport::kFirstColor + static_cast<std::size_t>(place.bankOffset),
                    std::array{color.r, color.g, color.b});
    }
    return patch.set<BankReport::EndMarker>(kMarker1, kMarker2).report();
}

Report ledPlanesWrite(const LedColors& colors) {
    ReportPatch patch{Report{}};
    patch.set<PlanesReport::Header>(kReportId, 0x06, 0x00, 0x00, 0x01, 0x00, 0x7A, 0x01);
    for (const auto& [ledIndex, color] : colors) {
        if (ledIndex < 0 || ledIndex >= static_cast<std::int64_t>(PlanesReport::kLeds)) continue;
        const auto led = static_cast<std::size_t>(ledIndex);
        patch.setAt(PlanesReport::Red::kFirst + led, std::array{color.r});
        patch.setAt(PlanesReport::Green::kFirst + led, std::array{color.g});
        patch.setAt(PlanesReport::Blue::kFirst + led, std::array{color.b});
    }
    return patch.set<PlanesReport::PlanesMarker>(kMarker1, kMarker2)
        .set<PlanesReport::EndMarker>(kMarker1, kMarker2)
        .report();
}

}  // namespace lumo
