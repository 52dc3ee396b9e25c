// The desktop that the running program is on.
#pragma once

#include <memory>

#include "platform/Desktop.h"

namespace lumo {

/// Main thread, after the application object exists.
[[nodiscard]] std::unique_ptr<Desktop> makeNativeDesktop();

}  // namespace lumo
