// A callback whose device and context have changed places.
#include <IOKit/hid/IOHIDManager.h>

static void removed(IOHIDDeviceRef, IOReturn, void*, void*) {}

void watch(IOHIDManagerRef manager) {
    IOHIDManagerRegisterDeviceRemovalCallback(manager, &removed, nullptr);  // expected-error {{no matching function}}
}
// expected-note@IOKit/hid/IOHIDManager.h:* {{no known conversion from 'void (*)(IOHIDDeviceRef, IOReturn}}
