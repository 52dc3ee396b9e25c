// One action of the catalogue, as the remap page lists it.
#pragma once

#include <cstdint>
#include <string>

#include "device/KeyTableReports.h"
#include "foundation/Uuid.h"

namespace lumo {

/// A value. Two lists of the same actions differ in the ids of their items.
struct RemapItem {
    Uuid id = Uuid::random();
    std::string name;         // shown, and kept as the label of a key that is bound to it
    std::string iconFile;     // in the folder "fun55x55"
    KeyCode codeBytes{};      // what the keyboard is told
    std::uint32_t dword = 0;  // the same four bytes as a number, first byte on top; nothing sends it
};

}  // namespace lumo
