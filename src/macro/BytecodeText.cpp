#include "macro/BytecodeText.h"

#include <cstdio>

namespace lumo {
namespace {

constexpr std::size_t kBytesInLine = 16;

std::string hexByte(std::size_t byte) {
    std::array<char, 3> digits{};
    (void)std::snprintf(digits.data(), digits.size(), "%02X", static_cast<unsigned>(byte & 0xFF));
    return digits.data();
}

}  // namespace

std::string bytecodeText(const MacroImage& image) {
    std::string text;
    for (std::size_t at = 0; at < image.size(); ++at) {
        if (at % kBytesInLine == 0) text += (at == 0 ? "" : "\n") + hexByte(at) + ":";
        text += " " + hexByte(image[at]);
    }
    return text;
}

}  // namespace lumo
