#include "platform/macos/Activation.h"

#import <AppKit/AppKit.h>

#include "platform/macos/FatalError.h"

namespace lumo {

void becomeRegularApplication() {
    if (!NSApp) fatalError("the activation policy needs the application object");
    [NSApp setActivationPolicy:NSApplicationActivationPolicyRegular];
}

void activateIgnoringOtherApplications() {
    if (!NSApp) fatalError("activation needs the application object");
    [NSApp activateIgnoringOtherApps:YES];
}

}  // namespace lumo
