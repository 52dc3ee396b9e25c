#include "remap/TargetText.h"

#include <array>
#include <cstdio>
#include <span>

namespace lumo {
namespace {

std::string textOf(std::span<const std::uint8_t> bytes) {
    std::string text;
    for (const std::uint8_t byte : bytes) {
        std::array<char, 5> hex{};
        (void)std::snprintf(hex.data(), hex.size(), "0x%02X", static_cast<unsigned>(byte));
        if (!text.empty()) text += ", ";
        text += hex.data();
    }
    return "[" + text + "]";
}

}  // namespace

std::string targetName(const KeyCap& key) { return key.label + " (Matrix Pos " + std::to_string(key.matrixPos) + ")"; }

std::string currentMapping(const KeyCap& key) {
    if (key.remapLabel) return "Current: " + *key.remapLabel;
    if (key.remapBytes) return "Current: " + textOf(*key.remapBytes);
    return "Default Mapping";
}

}  // namespace lumo
