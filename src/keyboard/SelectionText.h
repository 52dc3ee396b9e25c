// The line that says which keys are selected.
#pragma once

#include <set>
#include <span>
#include <string>

#include "keyboard/KeyCap.h"

namespace lumo {

/// UTF-8. Always counts "of 67", the number of keys of the layout.
[[nodiscard]] std::string selectionText(std::span<const KeyCap> keys, const std::set<std::string>& selectedIds);

}  // namespace lumo
