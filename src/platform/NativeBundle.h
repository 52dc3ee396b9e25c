// The resources of the running program, where this operating system keeps them.
#pragma once

#include <memory>

#include "platform/Bundle.h"

namespace lumo {

/// Main thread.
[[nodiscard]] std::unique_ptr<Bundle> makeNativeBundle();

}  // namespace lumo
