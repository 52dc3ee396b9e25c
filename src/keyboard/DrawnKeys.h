// All keys of the on-screen keyboard at rest, drawn once for a device.
#pragma once

#include <vector>

#include "keyboard/DeviceGrid.h"
#include "keyboard/DrawnCap.h"
#include "keyboard/KeyCap.h"

namespace lumo {

/// One thread at a time.
struct DrawnKeys {
    DrawnKeys(const std::vector<KeyCap>& keys, const DeviceGrid& on) : grid(on) {
        caps.reserve(keys.size());
        for (const KeyCap& key : keys) caps.emplace_back(key, KeyTouch{}, grid, sprites);
    }

    DeviceGrid grid;
    CapSprites sprites;
    std::vector<DrawnCap> caps;
};

}  // namespace lumo
