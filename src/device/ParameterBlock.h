// Where the settings stand in the keyboard's parameter block: docs/protocol.md, "Parameter block".
#pragma once

#include "device/Report.h"

namespace lumo {

inline constexpr Report kParameterBlockRead = reportBeginningWith(kReportId, 0x84, 0, 0, 1, 0, 0x80);

struct ParameterBlock {
    using Command = Field<1>;
    using Debounce = Field<10>;
    using Effect = Field<18>;
    using Speed = Field<19>;
    using Brightness = Field<20>;
    using CustomColor = Field<21>;
    static constexpr std::size_t kFirstRecord = 66;
    static constexpr std::size_t kRecordSize = 2;  // brightness; speed in the high nibble, colour flag in bit 0
    static constexpr std::int64_t kLastRecord = 32;
    using Records = Field<kFirstRecord, kRecordSize*(kLastRecord + 1)>;
    using EndMarker = Field<134, 2>;
    static constexpr std::uint8_t kWrite = 0x04;
    static constexpr std::size_t kEnoughToPatch = 135;
    static constexpr Report kBlank = reportBeginningWith(kReportId, 0, 0, 0, 1, 0, 0x80, 0);
    static_assert(
        disjointWithin<kReportSize, Command, Debounce, Effect, Speed, Brightness, CustomColor, Records, EndMarker>());
};

}  // namespace lumo
