#include "usbip/VhciPort.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>

namespace lumo::vk {
namespace {

constexpr const char* kController = "/sys/devices/platform/vhci_hcd.0";
constexpr const char* kStatusPath = "/sys/devices/platform/vhci_hcd.0/status";
constexpr const char* kAttachPath = "/sys/devices/platform/vhci_hcd.0/attach";
constexpr unsigned kPortIsFree = 4;
constexpr unsigned kFullSpeed = 2;
constexpr unsigned kDeviceId = 1U << 16 | 2U;  // bus and device number at the far end; only the host reads it

[[noreturn]] void fail(int error, const char* what) { throw std::system_error(error, std::generic_category(), what); }

}  // namespace

std::vector<unsigned> freePorts(std::istream& status) {
    std::vector<unsigned> ports;
    std::string line;
    std::getline(status, line);  // headings
    std::string hub;
    unsigned port = 0;
    unsigned state = 0;
    while (status >> hub >> std::dec >> port >> state && std::getline(status, line)) {
        if (hub == "hs" && state == kPortIsFree) ports.push_back(port);
    }
    return ports;
}

bool holdsDevice(const std::string& controller, unsigned port) {
    constexpr std::string_view kBus = "usb";  // usb1 with 1-1, 1-2 … in it, usb2 with 2-1 …
    const auto hasDevice = [&](const std::filesystem::directory_entry& entry) {
        const std::string name = entry.path().filename();
        if (!name.starts_with(kBus)) return false;
        return std::filesystem::exists(entry.path() / (name.substr(kBus.size()) + '-' + std::to_string(port + 1)));
    };
    return std::ranges::any_of(std::filesystem::directory_iterator(controller), hasDevice);
}

void VhciPort::attach(int hostSocket) {
    m_number = freeNumber();
    const std::string text = std::to_string(*m_number) + ' ' + std::to_string(hostSocket) + ' ' +
                             std::to_string(kDeviceId) + ' ' + std::to_string(kFullSpeed);
    const int attach = ::open(kAttachPath, O_WRONLY | O_CLOEXEC);
    if (attach < 0) fail(errno, kAttachPath);
    const ssize_t written = ::write(attach, text.data(), text.size());
    const int error = errno;
    ::close(attach);
    if (written < 0) fail(error, kAttachPath);
}

unsigned VhciPort::freeNumber() const {
    constexpr auto kPatience = std::chrono::seconds(5);
    const auto end = std::chrono::steady_clock::now() + kPatience;
    for (;;) {
        std::ifstream status(kStatusPath);
        if (!status) fail(ENODEV, kStatusPath);
        const std::vector<unsigned> ports = freePorts(status);
        if (m_number && std::ranges::find(ports, *m_number) != ports.end() && !holdsDevice(kController, *m_number))
            return *m_number;
        const bool isOwnAwaited = m_number && std::chrono::steady_clock::now() < end;
        if (!isOwnAwaited && !ports.empty()) return ports.front();
        if (!isOwnAwaited) fail(EBUSY, "vhci_hcd has no free port");
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

}  // namespace lumo::vk
