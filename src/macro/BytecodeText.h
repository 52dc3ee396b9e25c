// A macro image as hexadecimal text.
#pragma once

#include <string>

#include "device/MacroImage.h"

namespace lumo {

/// Eight lines of 16 bytes, each after the place of its first byte: "10: 99 57 …". No line feed at the end.
[[nodiscard]] std::string bytecodeText(const MacroImage& image);

}  // namespace lumo
