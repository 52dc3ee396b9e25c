#include "usbip/UsbDescriptors.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include "daemon/ReportDescriptors.h"

namespace lumo::vk {
namespace {

enum DescriptorType : std::uint8_t { device = 1, configuration = 2, string = 3, hid = 0x21, report = 0x22 };
enum StringIndex : std::uint8_t { languages = 0, manufacturer = 1, product = 2, serial = 3 };

constexpr std::size_t kMaxStringUnits = 126;  // bLength is one byte

constexpr std::uint8_t low(std::size_t value) { return static_cast<std::uint8_t>(value & 0xFF); }
constexpr std::uint8_t high(std::size_t value) { return static_cast<std::uint8_t>(value >> 8 & 0xFF); }

constexpr std::uint8_t kTypingReportSize = low(kTypingReports.size());
constexpr std::uint8_t kConfigurationReportSize = low(kConfigurationReports.size());
static_assert(kTypingReports.size() < 256 && kConfigurationReports.size() < 256);

// Linux binds no HID driver to an interface without an interrupt IN endpoint, so the silent one has one too.
// By hand: one descriptor a line.
// clang-format off
constexpr auto kConfiguration = std::to_array<std::uint8_t>({
    9, configuration, 59, 0, 2, 1, 0, 0xA0, 50,                     // two interfaces, bus power, wakes the host, 100 mA
    9, 4, kTypingInterface, 0, 1, 3, 1, 1, 0,                       // HID, boot, keyboard
    9, hid, 0x11, 0x01, 0, 1, report, kTypingReportSize, 0,         // HID 1.11
    7, 5, 0x81, 3, 8, 0, 10,                                        // interrupt IN, 8 bytes every 10 ms
    9, 4, kConfigurationInterface, 0, 1, 3, 0, 0, 0,                // HID, neither boot nor protocol
    9, hid, 0x11, 0x01, 0, 1, report, kConfigurationReportSize, 0,  // HID 1.11
    7, 5, 0x82, 3, 8, 0, 10,                                        // interrupt IN, 8 bytes every 10 ms
});
// clang-format on
static_assert(kConfiguration.size() == 59);
constexpr std::size_t kTypingHidAt = 18;
constexpr std::size_t kConfigurationHidAt = 43;
constexpr std::size_t kHidSize = 9;

// By hand: one meaning a line.
// clang-format off
Bytes deviceDescriptor(const DaemonOptions& options) {
    return {
        18, device, 0x00, 0x02, 0, 0, 0, 64,  // USB 2.0, class told by the interfaces, 64 bytes a packet
        low(options.vendorId), high(options.vendorId), low(options.productId), high(options.productId),
        0x00, 0x01, manufacturer, product, serial, 1,  // release 1.00, one configuration
    };
}
// clang-format on

Bytes stringDescriptor(const std::string& utf8) {
    std::u16string units = std::filesystem::path(std::u8string(utf8.begin(), utf8.end())).u16string();
    units.resize(std::min(units.size(), kMaxStringUnits));
    Bytes bytes{low(2 + 2 * units.size()), DescriptorType::string};
    for (const char16_t unit : units) bytes.insert(bytes.end(), {low(unit), high(unit)});
    return bytes;
}

Bytes hidDescriptor(std::size_t at) {
    const auto bytes = std::span(kConfiguration).subspan(at, kHidSize);
    return {bytes.begin(), bytes.end()};
}

}  // namespace

UsbDescriptors::UsbDescriptors(const DaemonOptions& options)
    : m_device(deviceDescriptor(options)), m_product(stringDescriptor(options.name)) {}

std::optional<Bytes> UsbDescriptors::find(std::uint16_t value, std::uint16_t index) const {
    switch (value >> 8) {
        case device:
            return m_device;
        case configuration:
            return Bytes(kConfiguration.begin(), kConfiguration.end());
        case DescriptorType::string:
            return string(low(value));
        case hid:
            if (index > kConfigurationInterface) return std::nullopt;
            return hidDescriptor(index == kTypingInterface ? kTypingHidAt : kConfigurationHidAt);
        case report: {
            const auto bytes = reportDescriptorOf(index);
            if (bytes.empty()) return std::nullopt;
            return Bytes(bytes.begin(), bytes.end());
        }
        default:
            return std::nullopt;  // the device qualifier among them: there is no high speed
    }
}

std::optional<Bytes> UsbDescriptors::string(std::uint8_t index) const {
    switch (index) {
        case languages:
            return Bytes{4, DescriptorType::string, 0x09, 0x04};  // English (United States)
        case manufacturer:
            return stringDescriptor("Virtual");
        case product:
            return m_product;
        case serial:
            return stringDescriptor("VL65-0001");
        default:
            return std::nullopt;
    }
}

std::span<const std::uint8_t> reportDescriptorOf(std::uint16_t interfaceNumber) {
    if (interfaceNumber == kTypingInterface) return kTypingReports;
    if (interfaceNumber == kConfigurationInterface) return kConfigurationReports;
    return {};
}

}  // namespace lumo::vk
