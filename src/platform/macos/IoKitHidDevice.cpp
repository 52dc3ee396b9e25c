#include "platform/macos/IoKitHidDevice.h"

#include <IOKit/IOReturn.h>
#include <IOKit/hid/IOHIDKeys.h>

#include <utility>

namespace lumo {
namespace {

template <typename T>
bool isOfType(T object, CFTypeID type) {
    return object && CFGetTypeID(object) == type;
}

std::string utf8(CFStringRef text) {
    // Half a surrogate pair has no UTF-8 form; a question mark keeps the rest of the name.
    constexpr UInt8 kInsteadOfUnpaired = '?';
    const CFRange all = CFRangeMake(0, CFStringGetLength(text));
    CFIndex size = 0;
    CFStringGetBytes(text, all, kCFStringEncodingUTF8, kInsteadOfUnpaired, false, nullptr, 0, &size);
    std::string result(static_cast<std::size_t>(size), '\0');
    CFStringGetBytes(text, all, kCFStringEncodingUTF8, kInsteadOfUnpaired, false,
                     reinterpret_cast<UInt8*>(result.data()), size, &size);
    return result;
}

}  // namespace

IoKitHidDevice::IoKitHidDevice(CfRef<IOHIDDeviceRef> device) : m_device(std::move(device)) {}

std::optional<std::int64_t> IoKitHidDevice::maxFeatureReportSize() const {
    const CFTypeRef value = IOHIDDeviceGetProperty(m_device.get(), CFSTR("MaxFeatureReportSize"));
    if (!isOfType(value, CFNumberGetTypeID())) return std::nullopt;
    std::int64_t size = 0;
    // False also when the value would have to be rounded or cut.
    if (!CFNumberGetValue(static_cast<CFNumberRef>(value), kCFNumberSInt64Type, &size)) return std::nullopt;
    return size;
}

std::optional<std::string> IoKitHidDevice::product() const {
    const CFTypeRef value = IOHIDDeviceGetProperty(m_device.get(), CFSTR("Product"));
    if (!isOfType(value, CFStringGetTypeID())) return std::nullopt;
    return utf8(static_cast<CFStringRef>(value));
}

bool IoKitHidDevice::setFeatureReport(std::uint8_t reportId, std::span<const std::uint8_t> bytes) {
    return IOHIDDeviceSetReport(m_device.get(), kIOHIDReportTypeFeature, reportId, bytes.data(),
                                static_cast<CFIndex>(bytes.size())) == kIOReturnSuccess;
}

std::optional<std::size_t> IoKitHidDevice::getFeatureReport(std::uint8_t reportId, std::span<std::uint8_t> buffer) {
    auto length = static_cast<CFIndex>(buffer.size());
    const IOReturn result =
        IOHIDDeviceGetReport(m_device.get(), kIOHIDReportTypeFeature, reportId, buffer.data(), &length);
    if (result != kIOReturnSuccess || length < 0) return std::nullopt;
    return static_cast<std::size_t>(length);
}

bool IoKitHidDevice::isSameInterface(IOHIDDeviceRef other) const { return CFEqual(m_device.get(), other); }

}  // namespace lumo
