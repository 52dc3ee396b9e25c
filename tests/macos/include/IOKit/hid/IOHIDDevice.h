// One HID interface.
#pragma once

#include <IOKit/IOReturn.h>
#include <IOKit/hid/IOHIDKeys.h>

CF_ASSUME_NONNULL_BEGIN
extern "C" {

typedef struct CF_BRIDGED_TYPE(id) __IOHIDDevice* IOHIDDeviceRef;

CFTypeRef _Nullable IOHIDDeviceGetProperty(IOHIDDeviceRef device, CFStringRef key);
IOReturn IOHIDDeviceSetReport(IOHIDDeviceRef device, IOHIDReportType type, CFIndex reportID, const uint8_t* report,
                              CFIndex reportLength);
IOReturn IOHIDDeviceGetReport(IOHIDDeviceRef device, IOHIDReportType type, CFIndex reportID, uint8_t* report,
                              CFIndex* reportLength);

}  // extern "C"
CF_ASSUME_NONNULL_END
