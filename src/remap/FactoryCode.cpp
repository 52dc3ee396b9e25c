#include "remap/FactoryCode.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace lumo {
namespace {

struct Special {
    std::string_view label;
    KeyCode code{};
};

// Modifiers carry their bit in byte 1 and no key. A right Win key would be an ordinary one.
constexpr auto kSpecials = std::to_array<Special>({
    {"LShift", {0x00, 0x02, 0x00, 0x00}},
    {"RShift", {0x00, 0x20, 0x00, 0x00}},
    {"LCtrl", {0x00, 0x01, 0x00, 0x00}},
    {"RCtrl", {0x00, 0x10, 0x00, 0x00}},
    {"LAlt", {0x00, 0x04, 0x00, 0x00}},
    {"RAlt", {0x00, 0x40, 0x00, 0x00}},
    {"LWin", {0x00, 0x08, 0x00, 0x00}},
    {"FN", {0x0D, 0x00, 0x00, 0x00}},
});

constexpr bool areAllDifferent() {
    return std::ranges::all_of(kSpecials, [](const Special& special) {
        return std::ranges::count(kSpecials, special.label, &Special::label) == 1 &&
               std::ranges::count(kSpecials, special.code, &Special::code) == 1;
    });
}
static_assert(areAllDifferent());

}  // namespace

KeyCode factoryCode(const KeyCap& key) {
    const auto* const special = std::ranges::find(kSpecials, key.label, &Special::label);
    return special != kSpecials.end() ? special->code : KeyCode{0x00, 0x00, 0x00, key.hidCode};
}

}  // namespace lumo
