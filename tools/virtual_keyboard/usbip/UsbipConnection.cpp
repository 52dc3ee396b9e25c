#include "usbip/UsbipConnection.h"

#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace lumo::vk {
namespace {

constexpr std::uint32_t kMaxTransfer = 1U << 16;  // wLength has 16 bits; more is nonsense

}  // namespace

UsbipConnection::UsbipConnection(int socket, UsbDevice device) : m_socket(socket), m_device(std::move(device)) {}

UsbipConnection::~UsbipConnection() { ::close(m_socket); }

bool UsbipConnection::serveOne() {
    UsbipHeader header{};
    if (!receive(header)) return false;
    const UsbipCommand command = parseUsbip(header);
    if (const auto* submit = std::get_if<UsbipSubmit>(&command)) return serve(*submit);
    if (const auto* unlink = std::get_if<UsbipUnlink>(&command)) return serve(*unlink);
    return false;
}

bool UsbipConnection::serve(const UsbipSubmit& submit) {
    if (submit.length > kMaxTransfer) return false;
    Bytes data(submit.toHost ? 0 : submit.length);
    if (!receive(data)) return false;
    if (submit.endpoint != 0) {
        m_pending.insert(submit.sequence);  // nobody types on this keyboard
        return true;
    }
    const FirmwareModel::Answer answer = m_device.control(submit.setup, data);
    switch (answer.outcome) {
        case Outcome::vanished:
            return false;
        case Outcome::hung:
            m_pending.insert(submit.sequence);
            return true;
        case Outcome::refused:
            return send(submitReply(submit.sequence, -EPIPE, 0));
        case Outcome::answered:
            break;
    }
    const std::size_t transferred = submit.toHost ? answer.bytes.size() : data.size();
    Bytes reply;
    reply.reserve(kUsbipHeaderSize + answer.bytes.size());
    const UsbipHeader header = submitReply(submit.sequence, 0, static_cast<std::uint32_t>(transferred));
    reply.assign(header.begin(), header.end());
    reply.insert(reply.end(), answer.bytes.begin(), answer.bytes.end());
    return send(reply);
}

bool UsbipConnection::serve(const UsbipUnlink& unlink) {
    // Always answered, also while hanging: the kernel waits for this reply without a time limit.
    const bool wasPending = m_pending.erase(unlink.victim) > 0;
    return send(unlinkReply(unlink.sequence, wasPending ? -ECONNRESET : 0));
}

bool UsbipConnection::receive(std::span<std::uint8_t> bytes) const {
    while (!bytes.empty()) {
        const ssize_t count = ::recv(m_socket, bytes.data(), bytes.size(), MSG_WAITALL);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

bool UsbipConnection::send(std::span<const std::uint8_t> bytes) const {
    while (!bytes.empty()) {
        const ssize_t count = ::send(m_socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

}  // namespace lumo::vk
