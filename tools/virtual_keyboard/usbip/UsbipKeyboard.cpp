#include "usbip/UsbipKeyboard.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

namespace lumo::vk {

UsbipKeyboard::UsbipKeyboard(const DaemonOptions& options, LoggedFirmware& firmware) : m_unplugged(options, firmware) {}

void UsbipKeyboard::plug() {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw std::system_error(errno, std::generic_category(), "socketpair");
    }
    m_connection.emplace(ends[0], m_unplugged);
    try {
        m_port.attach(ends[1]);
    } catch (...) {
        m_connection.reset();
        ::close(ends[1]);
        throw;
    }
    ::close(ends[1]);
}

void UsbipKeyboard::unplug() { m_connection.reset(); }

std::vector<int> UsbipKeyboard::descriptors() const {
    if (!m_connection) return {};
    return {m_connection->descriptor()};
}

void UsbipKeyboard::serve(int) {
    if (!m_connection->serveOne()) unplug();
}

}  // namespace lumo::vk
