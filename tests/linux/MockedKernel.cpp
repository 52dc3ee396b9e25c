#include "linux/MockedKernel.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string_view>

namespace lumo::test {
namespace {

std::string hexOf(std::string_view bytes) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string hex;
    for (const char byte : bytes) {
        hex += kDigits[static_cast<unsigned char>(byte) >> 4U];
        hex += kDigits[static_cast<unsigned char>(byte) & 0x0FU];
    }
    return hex;
}

/// Bus 3 is USB; the kernel counts the last number up, here it is the hidraw number.
std::string hidName(const MockedInterface& interface) {
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "0003:%04X:%04X.%04X", interface.ids.vendorId, interface.ids.productId,
                  interface.hidraw);
    return name.data();
}

std::string hidIds(const MockedInterface& interface) {
    std::array<char, 32> ids{};
    std::snprintf(ids.data(), ids.size(), "0003:%08X:%08X", interface.ids.vendorId, interface.ids.productId);
    return ids.data();
}

/// The topmost device that unplugging takes away.
std::string rootPath(const MockedInterface& interface) {
    const std::string number = std::to_string(interface.hidraw);
    return interface.hasUsbParent ? "/devices/pci0000:00/usb1/1-" + number : "/devices/virtual/misc/uhid" + number;
}

std::string usbInterfacePath(const MockedInterface& interface) {
    return rootPath(interface) + "/1-" + std::to_string(interface.hidraw) + ":1.0";
}

std::string hidPath(const MockedInterface& interface) {
    return (interface.hasUsbParent ? usbInterfacePath(interface) : rootPath(interface)) + "/" + hidName(interface);
}

std::string hidrawPath(const MockedInterface& interface) {
    return hidPath(interface) + "/hidraw/hidraw" + std::to_string(interface.hidraw);
}

std::string usbText(const MockedInterface& interface) {
    std::string text = "P: " + rootPath(interface) + "\nE: SUBSYSTEM=usb\nE: DEVTYPE=usb_device\n";
    if (interface.product) text += "H: product=" + hexOf(*interface.product + "\n") + "\n";  // sysfs ends the line
    return text + "\nP: " + usbInterfacePath(interface) + "\nE: SUBSYSTEM=usb\nE: DEVTYPE=usb_interface\n\n";
}

std::string hidText(const MockedInterface& interface) {
    const std::string descriptor(interface.descriptor.begin(), interface.descriptor.end());
    return "P: " + hidPath(interface) + "\nE: SUBSYSTEM=hid\nE: HID_ID=" + hidIds(interface) +
           "\nE: HID_NAME=" + interface.hidName + "\nH: report_descriptor=" + hexOf(descriptor) + "\n\n";
}

std::string hidrawText(const MockedInterface& interface) {
    const std::string node = "hidraw" + std::to_string(interface.hidraw);
    return "P: " + hidrawPath(interface) + "\nN: " + node + "=00\nE: SUBSYSTEM=hidraw\nE: DEVNAME=/dev/" + node +
           "\nL: device=../../../" + hidName(interface) + "\n\n";
}

void check(gboolean done, GError* error) {
    if (done) return;
    const std::string message = error ? error->message : "umockdev gives no reason";
    g_clear_error(&error);
    throw std::runtime_error(message);
}

}  // namespace

MockedInterface vendorInterface() {
    return {.hidraw = 1, .descriptor = {0x06, 0x00, 0xFF, 0x09, 0x01, 0xA1, 0x01, 0x85, 0x06, 0x15, 0x00, 0x26,
                                        0xFF, 0x00, 0x75, 0x08, 0x96, 0x07, 0x02, 0x09, 0x02, 0xB1, 0x02, 0xC0}};
}

MockedInterface typingInterface() {
    return {.hidraw = 0,
            .descriptor = {0x05, 0x01, 0x09, 0x06, 0xA1, 0x01, 0x05, 0x07, 0x19, 0xE0, 0x29, 0xE7, 0x15, 0x00, 0x25,
                           0x01, 0x75, 0x01, 0x95, 0x08, 0x81, 0x02, 0x95, 0x01, 0x75, 0x08, 0x81, 0x01, 0x95, 0x06,
                           0x75, 0x08, 0x15, 0x00, 0x25, 0x65, 0x19, 0x00, 0x29, 0x65, 0x81, 0x00, 0xC0}};
}

MockedKernel::MockedKernel() : m_testbed(umockdev_testbed_new()) {
    if (!umockdev_in_mock_environment()) throw std::runtime_error("umockdev is not preloaded");
}

MockedKernel::~MockedKernel() = default;

void MockedKernel::plug(const MockedInterface& interface) {
    appear(interface);
    tell(interface, "add");
}

void MockedKernel::unplug(const MockedInterface& interface) {
    tell(interface, "remove");
    vanish(interface);
}

void MockedKernel::appear(const MockedInterface& interface) {
    const std::string text =
        (interface.hasUsbParent ? usbText(interface) : "P: " + rootPath(interface) + "\nE: SUBSYSTEM=misc\n\n") +
        hidText(interface) + hidrawText(interface);
    GError* error = nullptr;
    check(umockdev_testbed_add_from_string(m_testbed.get(), text.c_str(), &error), error);
    const std::string node = "/dev/hidraw" + std::to_string(interface.hidraw);
    check(umockdev_testbed_attach_ioctl(m_testbed.get(), node.c_str(), peer.handler(), &error), error);
}

void MockedKernel::vanish(const MockedInterface& interface) {
    // One by one from the leaf: the mock unlinks the named device from its bus or class, but none below it.
    std::vector<std::string> paths{hidrawPath(interface), hidPath(interface), rootPath(interface)};
    if (interface.hasUsbParent) paths.insert(paths.end() - 1, usbInterfacePath(interface));
    for (const std::string& path : paths) umockdev_testbed_remove_device(m_testbed.get(), ("/sys" + path).c_str());
    GError* error = nullptr;
    const std::string node = "/dev/hidraw" + std::to_string(interface.hidraw);
    check(umockdev_testbed_detach_ioctl(m_testbed.get(), node.c_str(), &error), error);
    std::filesystem::remove(nodeFile(interface));
}

void MockedKernel::tell(const MockedInterface& interface, const char* action) {
    umockdev_testbed_uevent(m_testbed.get(), sysPath(interface).c_str(), action);
}

void MockedKernel::refuseOpening(const MockedInterface& interface) {
    // Permission bits do not stop root. The kernel lets nobody write to this file.
    std::filesystem::rename(nodeFile(interface), nodeFile(interface) + ".allowed");
    std::filesystem::create_symlink("/proc/sys/kernel/osrelease", nodeFile(interface));
}

void MockedKernel::allowOpening(const MockedInterface& interface) {
    std::filesystem::rename(nodeFile(interface) + ".allowed", nodeFile(interface));
}

std::string MockedKernel::sysPath(const MockedInterface& interface) const { return "/sys" + hidrawPath(interface); }

std::string MockedKernel::nodeFile(const MockedInterface& interface) const {
    const std::unique_ptr<gchar, decltype(&g_free)> root(umockdev_testbed_get_root_dir(m_testbed.get()), &g_free);
    return std::string(root.get()) + "/dev/hidraw" + std::to_string(interface.hidraw);
}

}  // namespace lumo::test
