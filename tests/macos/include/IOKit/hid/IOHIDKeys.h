// Kinds of HID reports.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <stdint.h>

typedef uint32_t IOOptionBits;
enum IOHIDReportType {
    kIOHIDReportTypeInput = 0,
    kIOHIDReportTypeOutput = 1,
    kIOHIDReportTypeFeature = 2,
};
typedef enum IOHIDReportType IOHIDReportType;
