// What a key can be bound to, as the controls of the remap page hand it over.
#pragma once

#include <cstdint>
#include <string>

#include "device/KeyTableReports.h"

namespace lumo {

struct Binding {
    std::string name;
    KeyCode bytes{};
    std::uint32_t dword = 0;  // the same as a number
};

}  // namespace lumo
