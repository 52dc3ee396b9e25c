#include "platform/macos/EventAccess.h"

#include <ApplicationServices/ApplicationServices.h>

#include "platform/macos/CfDictionary.h"

namespace lumo::event_access {

bool preflight() { return CGPreflightListenEventAccess(); }

// The answer is left: it is that of before the question.
void request() { static_cast<void>(CGRequestListenEventAccess()); }

bool isTrusted() { return AXIsProcessTrusted() != 0; }

bool isTrustedWithPrompt() {
    const auto options = makeDictionary<1>({kAXTrustedCheckOptionPrompt}, {kCFBooleanTrue});
    return AXIsProcessTrustedWithOptions(options.get()) != 0;
}

}  // namespace lumo::event_access
