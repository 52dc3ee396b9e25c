// Whatever sysfs says of a device, its ids are those of the first HID_ID line or none, and its name is what it calls
// itself, byte by byte.
#include <libudev.h>

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "TemporaryFolder.h"
#include "platform/linux/HidrawInterface.h"

/// Ours: libudev's is known by its name alone, and what the code under test asks of it is answered below.
struct udev_device {
    std::string path;
    udev_device* hid = nullptr;
    udev_device* usb = nullptr;
};

extern "C" const char* udev_device_get_syspath(udev_device* device) { return device->path.c_str(); }
extern "C" const char* udev_device_get_devnode(udev_device*) { return nullptr; }
extern "C" udev_device* udev_device_get_parent_with_subsystem_devtype(udev_device* device, const char* subsystem,
                                                                      const char*) {
    return std::string_view(subsystem) == "hid" ? device->hid : device->usb;
}

namespace {

using lumo::fuzz::expect;

constexpr char kNextFile = 0x1E;  // between the files' contents

std::string_view takeFile(std::string_view& rest) {
    const std::string_view file = rest.substr(0, rest.find(kNextFile));
    rest.remove_prefix(std::min(rest.size(), file.size() + 1));
    return file;
}

/// The value of the first line of that key.
std::optional<std::string> valueOf(std::string_view uevent, const std::string& key) {
    const std::string text = '\n' + std::string(uevent) + '\n';
    const std::size_t line = text.find('\n' + key + '=');
    if (line == std::string::npos) return std::nullopt;
    const std::size_t begin = line + key.size() + 2;
    return text.substr(begin, text.find('\n', begin) - begin);
}

/// Up to four digits that count.
std::optional<std::uint16_t> idOf(std::string_view hex) {
    if (hex.empty() || hex.find_first_not_of("0123456789abcdefABCDEF") != std::string_view::npos) return std::nullopt;
    hex.remove_prefix(std::min(hex.size(), hex.find_first_not_of('0')));
    if (hex.size() > 4) return std::nullopt;
    return static_cast<std::uint16_t>(std::strtoul(std::string(hex).c_str(), nullptr, 16));
}

std::optional<lumo::HidMatch> idsOf(std::string_view uevent) {
    const std::string value = valueOf(uevent, "HID_ID").value_or("");
    const std::size_t first = value.find(':');
    const std::size_t second = first == std::string::npos ? first : value.find(':', first + 1);
    if (second == std::string::npos) return std::nullopt;
    const auto vendor = idOf(std::string_view(value).substr(first + 1, second - first - 1));
    const auto product = idOf(std::string_view(value).substr(second + 1));
    if (!vendor || !product) return std::nullopt;
    return lumo::HidMatch{*vendor, *product};
}

}  // namespace

/// The HID device's uevent, its report descriptor, and what the USB device above it calls itself, if there is one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const lumo::fuzz::TemporaryFolder folder;
    std::string_view rest = lumo::fuzz::textOf(data, size);
    const std::string_view uevent = takeFile(rest);
    const std::string_view descriptor = takeFile(rest);
    folder.write("uevent", uevent);
    folder.write("report_descriptor", descriptor);
    folder.write("product", rest);

    udev_device parent{.path = folder.path()};
    udev_device device{.path = folder.path(), .hid = &parent, .usb = rest.empty() ? nullptr : &parent};
    const auto found = lumo::readHidrawInterface(&device);
    expect(found.has_value() == idsOf(uevent).has_value());
    if (!found) return 0;
    expect(found->ids == *idsOf(uevent));
    expect(found->node.empty());
    if (rest.empty()) {
        expect(found->product == valueOf(uevent, "HID_NAME"));
    } else {
        expect(found->product == rest.substr(0, rest.size() - (rest.back() == '\n' ? 1 : 0)));
    }
    return 0;
}
