// The names this program goes by in every system it meets.
#pragma once

#include <string_view>

namespace lumo {

inline constexpr std::string_view kProgramName = "vexa-lumo-65";
inline constexpr std::string_view kIdentifier = "com.vexalumo.lumo65";
inline constexpr std::string_view kIoQueueLabel = "com.vexalumo.lumo65.ioqueue";

}  // namespace lumo
