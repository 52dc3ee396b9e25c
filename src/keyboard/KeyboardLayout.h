// The keyboard's 67 keys as they leave the factory.
#pragma once

#include <vector>

#include "keyboard/KeyCap.h"

namespace lumo {

/// All keys by `kid`, each with the default colour and no remap.
[[nodiscard]] std::vector<KeyCap> defaultLayout();

}  // namespace lumo
