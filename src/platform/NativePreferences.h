// The user's preferences, where this operating system keeps them.
#pragma once

#include <memory>

#include "platform/Preferences.h"

namespace lumo {

/// Main thread.
[[nodiscard]] std::unique_ptr<Preferences> makeNativePreferences();

}  // namespace lumo
