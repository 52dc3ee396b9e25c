// The HID manager.
#pragma once

#include <IOKit/hid/IOHIDDevice.h>

CF_ASSUME_NONNULL_BEGIN
extern "C" {

typedef struct CF_BRIDGED_TYPE(id) __IOHIDManager* IOHIDManagerRef;
typedef void (*IOHIDDeviceCallback)(void* _Nullable context, IOReturn result, void* _Nullable sender,
                                    IOHIDDeviceRef device);

IOHIDManagerRef _Nullable IOHIDManagerCreate(CFAllocatorRef _Nullable allocator,
                                             IOOptionBits options) CF_RETURNS_RETAINED;
IOReturn IOHIDManagerOpen(IOHIDManagerRef manager, IOOptionBits options);
CFSetRef _Nullable IOHIDManagerCopyDevices(IOHIDManagerRef manager) CF_RETURNS_RETAINED;
void IOHIDManagerSetDeviceMatchingMultiple(IOHIDManagerRef manager, CFArrayRef _Nullable multiple);
void IOHIDManagerRegisterDeviceMatchingCallback(IOHIDManagerRef manager, IOHIDDeviceCallback _Nullable callback,
                                                void* _Nullable context);
void IOHIDManagerRegisterDeviceRemovalCallback(IOHIDManagerRef manager, IOHIDDeviceCallback _Nullable callback,
                                               void* _Nullable context);
void IOHIDManagerScheduleWithRunLoop(IOHIDManagerRef manager, CFRunLoopRef runLoop, CFStringRef runLoopMode);
// From the reference pages alone.
void IOHIDManagerUnscheduleFromRunLoop(IOHIDManagerRef manager, CFRunLoopRef runLoop, CFStringRef runLoopMode);

}  // extern "C"
CF_ASSUME_NONNULL_END
