// What the per-key upload needs of the keyboard model, which knows the link but not the other way round.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "foundation/Color.h"

namespace lumo {

/// Where one key's colour goes: its LED number, and its three bytes in one half of the matrix-ordered table.
struct KeyColorPlace {
    std::int64_t ledIndex = 0;
    std::int64_t bank = 0;        // 1 or 2; a key in any other bank is not sent
    std::int64_t bankOffset = 0;  // byte offset inside the bank
};

/// LED number to colour.
using LedColors = std::map<std::int64_t, ColorBytes>;

class PerKeyColors {
public:
    PerKeyColors() = default;
    PerKeyColors(const PerKeyColors&) = delete;
    PerKeyColors& operator=(const PerKeyColors&) = delete;
    virtual ~PerKeyColors() = default;

    /// Main thread: uploads every key's colour through the link.
    virtual void syncToDevice() = 0;

    /// Any thread: all keys, in layout order, as they are now.
    [[nodiscard]] virtual std::vector<KeyColorPlace> colorPlaces() const = 0;
};

}  // namespace lumo
