// A named macro, and the macros the program starts with.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "macro/MacroEvent.h"

namespace lumo {

struct MacroItem {
    MacroItem(std::string itemName, std::vector<MacroEvent> itemEvents)
        : name(std::move(itemName)), events(std::move(itemEvents)) {}

    Uuid id = Uuid::random();
    std::string name;
    std::vector<MacroEvent> events;  // in playing order
};

/// "Rapid WASD", "Super Jump", "Rapid Fire".
[[nodiscard]] std::vector<MacroItem> builtInMacros();

/// The six steps the editor starts with. They are not those of the first macro.
[[nodiscard]] std::vector<MacroEvent> initialEditorSteps();

}  // namespace lumo
