// Report type and report id have changed places.
#include <IOKit/hid/IOHIDDevice.h>

IOReturn send(IOHIDDeviceRef device, const uint8_t* bytes) {
    // expected-error@+1 {{no matching function for call to 'IOHIDDeviceSetReport'}}
    return IOHIDDeviceSetReport(device, 6, kIOHIDReportTypeFeature, bytes, 520);
}
// expected-note@IOKit/hid/IOHIDDevice.h:* {{no known conversion from 'int' to 'IOHIDReportType' for 2nd argument}}
