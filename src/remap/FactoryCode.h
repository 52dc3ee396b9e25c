// What a key does as it leaves the factory. docs/protocol.md, "Key codes".
#pragma once

#include "device/KeyTableReports.h"
#include "keyboard/KeyCap.h"

namespace lumo {

/// Decided by the key's label. An ordinary key is given its default code as it stands, in the numbering of virtual
/// keys, other than when it is bound to a letter by hand.
[[nodiscard]] KeyCode factoryCode(const KeyCap& key);

}  // namespace lumo
