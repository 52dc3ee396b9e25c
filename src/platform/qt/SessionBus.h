// Whether there is a session bus to talk on.
#pragma once

namespace lumo {

/// True when one runs already: asking for one where there is none might start it.
[[nodiscard]] bool hasSessionBus();

}  // namespace lumo
