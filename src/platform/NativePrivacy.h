// The grants of the operating system this program was built for.
#pragma once

#include <memory>

#include "platform/Privacy.h"

namespace lumo {

/// Main thread.
[[nodiscard]] std::unique_ptr<Privacy> makeNativePrivacy();

}  // namespace lumo
