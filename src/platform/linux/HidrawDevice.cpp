#include "platform/linux/HidrawDevice.h"

#include <fcntl.h>
#include <linux/hidraw.h>
#include <sys/ioctl.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

#include "foundation/Identity.h"
#include "platform/linux/UdevRule.h"

namespace lumo {
namespace {

constexpr std::size_t kLongestReport = (1U << _IOC_SIZEBITS) - 1;

constexpr unsigned long setRequest(std::size_t length) { return _IOC(_IOC_WRITE | _IOC_READ, 'H', 0x06, length); }
constexpr unsigned long getRequest(std::size_t length) { return _IOC(_IOC_WRITE | _IOC_READ, 'H', 0x07, length); }

bool lacksRights(int error) { return error == EACCES || error == EPERM; }

}  // namespace

HidrawDevice::HidrawDevice(HidrawInterface interface, IoQueue io, std::function<void(std::string_view)> print)
    : m_interface(std::move(interface)), m_io(io), m_print(std::move(print)) {}

HidrawDevice::~HidrawDevice() {
    if (!m_node.isOpen()) return;
    // The bare number: a queue that stops drops the task on whatever thread, and closing there would wait behind a
    // device that hangs. The process is about to end then, and its end closes the node.
    m_io.run.post([node = m_node.release()] { const FileDescriptor closing(node); });
}

std::optional<std::int64_t> HidrawDevice::maxFeatureReportSize() const { return m_interface.maxFeatureReportSize; }

std::optional<std::string> HidrawDevice::product() const { return m_interface.product; }

bool HidrawDevice::setFeatureReport(std::uint8_t /*reportId: byte 0 is what the kernel reads*/,
                                    std::span<const std::uint8_t> bytes) {
    if (!isReady(bytes.size())) return false;
    const int accepted = ::ioctl(m_node.get(), setRequest(bytes.size()), bytes.data());
    return accepted >= 0 && static_cast<std::size_t>(accepted) == bytes.size();
}

std::optional<std::size_t> HidrawDevice::getFeatureReport(std::uint8_t /*reportId: byte 0 is what the kernel reads*/,
                                                          std::span<std::uint8_t> buffer) {
    if (!isReady(buffer.size())) return std::nullopt;
    const int received = ::ioctl(m_node.get(), getRequest(buffer.size()), buffer.data());
    if (received < 0) return std::nullopt;
    return static_cast<std::size_t>(received);
}

bool HidrawDevice::isReady(std::size_t reportSize) {
    if (m_gone || reportSize == 0 || reportSize > kLongestReport) return false;
    if (!m_node.isOpen()) m_node = openNode();
    return m_node.isOpen();
}

FileDescriptor HidrawDevice::openNode() {
    FileDescriptor node(::open(m_interface.node.c_str(), O_RDWR | O_CLOEXEC));
    if (!node.isOpen()) {
        explainMissingRights(errno);
        return {};
    }
    // The node's number goes to the next device as soon as this one is unplugged, and the news of that may still be
    // on its way. If this very device is in sysfs now, it was the one that was opened.
    if (sysfsIdentity(m_interface.syspath) != m_interface.identity) return {};
    return node;
}

void HidrawDevice::explainMissingRights(int error) {
    if (!lacksRights(error) || std::exchange(m_explained, true)) return;
    std::string text(kProgramName);
    text += ": cannot open " + m_interface.node + " (" + std::generic_category().message(error) +
            "). A udev rule has to allow it. Put this line into " + std::string(kUdevRuleFile) +
            " and run \"udevadm control --reload\" and \"udevadm trigger --subsystem-match=hidraw\" as root. It opens "
            "the interfaces of the keyboard where no typing arrives:\n";
    m_print(text.append(kUdevRule));
}

}  // namespace lumo
