// ApplicationServices: trust in a process that wants to watch others.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CoreGraphics.h>

CF_ASSUME_NONNULL_BEGIN
extern "C" {

Boolean AXIsProcessTrusted(void);
Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef _Nullable options) API_AVAILABLE(macos(10.9));
extern CFStringRef kAXTrustedCheckOptionPrompt API_AVAILABLE(macos(10.9));

}  // extern "C"
CF_ASSUME_NONNULL_END
