#include "keyboard/SelectionText.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace lumo {
namespace {

std::string textOf(const KeyCap& key) {
    std::array<char, 5> code{};
    (void)std::snprintf(code.data(), code.size(), "0x%02X", static_cast<unsigned>(key.hidCode));
    return "Selected: " + key.label + " " + code.data() + " • LED Index: " + std::to_string(key.ledIndex);
}

}  // namespace

std::string selectionText(std::span<const KeyCap> keys, const std::set<std::string>& selectedIds) {
    if (selectedIds.empty()) return "Click any key on the keyboard to customize lighting or remap function.";
    if (selectedIds.size() == 1) {
        const auto key = std::ranges::find(keys, *selectedIds.begin(), &KeyCap::id);
        if (key != keys.end()) return textOf(*key);
    }
    return std::to_string(selectedIds.size()) + " of 67 keys selected";
}

}  // namespace lumo
