#include "platform/linux/HidrawInterface.h"

#include <charconv>
#include <string_view>

#include "platform/linux/FeatureReportSize.h"

namespace lumo {
namespace {

constexpr std::size_t kPageSize = 4096;  // what sysfs gives of one text attribute

std::string pathOf(udev_device* device) {
    const char* const path = udev_device_get_syspath(device);
    return path ? path : "";
}

std::string nodeOf(udev_device* device) {
    const char* const node = udev_device_get_devnode(device);
    return node ? node : "";
}

std::optional<std::uint16_t> idFrom(std::string_view hex) {
    std::uint32_t id = 0;
    const auto [end, error] = std::from_chars(hex.data(), hex.data() + hex.size(), id, 16);
    if (error != std::errc{} || end != hex.data() + hex.size() || id > 0xFFFF) return std::nullopt;
    return static_cast<std::uint16_t>(id);
}

/// "0003:0000258A:0000010C": bus, vendor, product.
std::optional<HidMatch> idsFrom(std::string_view hidId) {
    const std::size_t first = hidId.find(':');
    const std::size_t second = hidId.rfind(':');
    if (first == std::string_view::npos || first == second) return std::nullopt;
    const auto vendor = idFrom(hidId.substr(first + 1, second - first - 1));
    const auto product = idFrom(hidId.substr(second + 1));
    if (!vendor || !product) return std::nullopt;
    return HidMatch{*vendor, *product};
}

/// The kernel puts vendor and product into HID_NAME, so it is no substitute where a USB device has no product name.
std::optional<std::string> productOf(udev_device* device, std::string_view hidUevent) {
    udev_device* const usb = udev_device_get_parent_with_subsystem_devtype(device, "usb", "usb_device");
    if (!usb) return ueventValue(hidUevent, "HID_NAME");
    auto product = readSysfsFile(pathOf(usb) + "/product", kPageSize);
    if (product && product->ends_with('\n')) product->pop_back();  // the one that sysfs adds
    return product;
}

}  // namespace

std::optional<HidrawInterface> readHidrawInterface(udev_device* device) {
    udev_device* const hid = udev_device_get_parent_with_subsystem_devtype(device, "hid", nullptr);
    const auto identity = sysfsIdentity(pathOf(device));
    if (!hid || !identity) return std::nullopt;
    const std::string hidPath = pathOf(hid);
    const auto uevent = readSysfsFile(hidPath + "/uevent", kPageSize);
    const auto ids = uevent ? idsFrom(ueventValue(*uevent, "HID_ID").value_or("")) : std::nullopt;
    if (!ids) return std::nullopt;
    return HidrawInterface{
        pathOf(device), nodeOf(device), *identity, *ids, productOf(device, *uevent), featureReportSize(hidPath)};
}

}  // namespace lumo
