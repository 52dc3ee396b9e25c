// What the remap page says of the key that an action would be bound to. UTF-8.
#pragma once

#include <string>
#include <string_view>

#include "keyboard/KeyCap.h"

namespace lumo {

inline constexpr std::string_view kTargetHeading = "TARGET SWITCH: ";
inline constexpr std::string_view kTargetPrompt =
    "Select a switch on the keyboard above, then click an action below to bind.";

/// The key by its label and its place in the matrix.
[[nodiscard]] std::string targetName(const KeyCap& key);

/// What it is bound to: by name, by its code where it has no name, or not at all.
[[nodiscard]] std::string currentMapping(const KeyCap& key);

}  // namespace lumo
