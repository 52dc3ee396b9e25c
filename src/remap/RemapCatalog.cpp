#include "remap/RemapCatalog.h"

#include <algorithm>
#include <iterator>

namespace lumo {
namespace {

constexpr bool isConsumerControl(const KeyCode& code) { return code[0] == 0x02 && code[1] == 0; }
constexpr bool isShortcut(const KeyCode& code) { return code[0] == 0x00 && code[3] == 0; }
constexpr bool isMouseButton(const KeyCode& code) {
    return code[0] == 0x01 && code[1] >= 1 && code[1] <= 5 && code[2] == 1 && code[3] == 0;
}

constexpr std::uint32_t asNumber(const KeyCode& code) {
    std::uint32_t number = 0;
    for (const std::uint8_t byte : code) number = number << 8U | byte;
    return number;
}

/// Every code is of that kind and says the same both times, and no name or code is there twice.
constexpr bool isSound(std::span<const RemapAction> actions, bool (*isOfKind)(const KeyCode&)) {
    return std::ranges::all_of(actions, [=](const RemapAction& action) {
        return isOfKind(action.codeBytes) && asNumber(action.codeBytes) == action.dword &&
               std::ranges::count(actions, action.name, &RemapAction::name) == 1 &&
               std::ranges::count(actions, action.dword, &RemapAction::dword) == 1;
    });
}

static_assert(isSound(kMediaActions, isConsumerControl));
static_assert(isSound(kSystemActions, isShortcut));
static_assert(isSound(kMouseActions, isMouseButton));

}  // namespace

std::vector<RemapItem> remapItems(std::span<const RemapAction> actions) {
    std::vector<RemapItem> items;
    items.reserve(actions.size());
    std::ranges::transform(actions, std::back_inserter(items), [](const RemapAction& action) {
        return RemapItem{Uuid::random(), std::string(action.name), std::string(action.iconFile), action.codeBytes,
                         action.dword};
    });
    return items;
}

}  // namespace lumo
