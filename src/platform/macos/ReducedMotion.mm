#include "platform/macos/ReducedMotion.h"

#import <AppKit/AppKit.h>

namespace lumo {

bool prefersReducedMotion() { return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion; }

}  // namespace lumo
