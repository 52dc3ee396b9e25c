#include "usbip/VhciPort.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <string>
#include <system_error>

namespace lumo::vk {
namespace {

constexpr const char* kStatusPath = "/sys/devices/platform/vhci_hcd.0/status";
constexpr const char* kAttachPath = "/sys/devices/platform/vhci_hcd.0/attach";
constexpr unsigned kPortIsFree = 4;
constexpr unsigned kFullSpeed = 2;
constexpr unsigned kDeviceId = 1U << 16 | 2U;  // bus and device number at the far end; only the host reads it

[[noreturn]] void fail(int error, const char* what) { throw std::system_error(error, std::generic_category(), what); }

}  // namespace

std::optional<unsigned> firstFreePort(std::istream& status) {
    std::string line;
    std::getline(status, line);  // headings
    std::string hub;
    unsigned port = 0;
    unsigned state = 0;
    while (status >> hub >> std::dec >> port >> state && std::getline(status, line)) {
        if (hub == "hs" && state == kPortIsFree) return port;
    }
    return std::nullopt;
}

void attachToVhci(int hostSocket) {
    std::ifstream status(kStatusPath);
    if (!status) fail(ENODEV, kStatusPath);
    const auto port = firstFreePort(status);
    if (!port) fail(EBUSY, "vhci_hcd has no free port");
    const std::string text = std::to_string(*port) + ' ' + std::to_string(hostSocket) + ' ' +
                             std::to_string(kDeviceId) + ' ' + std::to_string(kFullSpeed);
    const int attach = ::open(kAttachPath, O_WRONLY | O_CLOEXEC);
    if (attach < 0) fail(errno, kAttachPath);
    const ssize_t written = ::write(attach, text.data(), text.size());
    const int error = errno;
    ::close(attach);
    if (written < 0) fail(error, kAttachPath);
}

}  // namespace lumo::vk
