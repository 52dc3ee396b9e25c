#include <algorithm>

#include "device/VexaProtocol.h"

namespace lumo {
namespace {

constexpr std::size_t kFirstRecord = 2;
constexpr std::size_t kLastRecord = 123;  // no record begins behind it
constexpr std::size_t kShortSize = 2;
constexpr std::size_t kLongSize = 6;
static_assert(kLastRecord - 1 + kLongSize == kMacroImageSize);  // records begin at even places

constexpr std::uint8_t kPress = 0x80;
constexpr std::int64_t kLeastDelay = 3;
constexpr std::int64_t kLongestShortDelay = 127;
constexpr std::int64_t kLongUnit = 100;  // ms

std::uint8_t stepByte(const MacroEvent& event, std::int64_t delayMs) {
    return static_cast<std::uint8_t>((event.isDown ? kPress : 0) | std::max(delayMs, kLeastDelay));
}

std::array<std::uint8_t, kShortSize> shortRecord(const MacroEvent& event) {
    return {stepByte(event, event.delayMs), event.keyCode};
}

std::array<std::uint8_t, kLongSize> longRecord(const MacroEvent& event) {
    const std::int64_t units = event.delayMs / kLongUnit;
    return {stepByte(event, event.delayMs % kLongUnit),
            event.keyCode,
            0x00,
            0x03,
            static_cast<std::uint8_t>(units >> 8),
            static_cast<std::uint8_t>(units)};
}

}  // namespace

MacroImage VexaProtocol::compileMacro(std::span<const MacroEvent> events) {
    MacroImage image{0x00, 0x01};
    auto at = image.begin() + kFirstRecord;
    for (const MacroEvent& event : events) {
        if (at > image.begin() + kLastRecord) break;
        at = event.delayMs > kLongestShortDelay ? std::ranges::copy(longRecord(event), at).out
                                                : std::ranges::copy(shortRecord(event), at).out;
    }
    return image;
}

}  // namespace lumo
