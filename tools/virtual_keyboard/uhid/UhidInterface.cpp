#include "uhid/UhidInterface.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <system_error>

namespace lumo::vk {
namespace {

constexpr std::uint16_t kUsbBus = 0x03;  // what HID_ID then starts with, as on a cable

[[noreturn]] void fail(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

void fill(std::span<__u8> field, std::string_view text) {
    std::ranges::copy(text.substr(0, field.size() - 1), field.begin());  // the event is zeroed: what is left ends it
}

uhid_event creation(const DaemonOptions& options, int number, std::span<const std::uint8_t> reportDescriptor) {
    uhid_event event{};
    event.type = UHID_CREATE2;
    uhid_create2_req& request = event.u.create2;
    fill(request.name, options.name);
    fill(request.phys, "virtual-lumo/input" + std::to_string(number));
    request.rd_size = static_cast<__u16>(reportDescriptor.size());
    request.bus = kUsbBus;
    request.vendor = options.vendorId;
    request.product = options.productId;
    std::ranges::copy(reportDescriptor, request.rd_data);
    return event;
}

}  // namespace

UhidInterface::UhidInterface(const DaemonOptions& options, int number, std::span<const std::uint8_t> reportDescriptor)
    : m_descriptor(::open("/dev/uhid", O_RDWR | O_CLOEXEC | O_NONBLOCK)) {
    if (m_descriptor < 0) fail("/dev/uhid");
    try {
        send(creation(options, number, reportDescriptor));
    } catch (...) {
        ::close(m_descriptor);
        throw;
    }
}

UhidInterface::~UhidInterface() { ::close(m_descriptor); }  // the kernel destroys the device with its file

std::optional<uhid_event> UhidInterface::next() const {
    uhid_event event{};
    const ssize_t count = ::read(m_descriptor, &event, sizeof event);
    if (count > 0) return event;
    if (count < 0 && errno != EAGAIN && errno != EINTR) fail("reading /dev/uhid");
    return std::nullopt;
}

void UhidInterface::answerSet(std::uint32_t request, bool accepted) const {
    uhid_event event{};
    event.type = UHID_SET_REPORT_REPLY;
    event.u.set_report_reply.id = request;
    event.u.set_report_reply.err = accepted ? 0 : EIO;
    send(event);
}

void UhidInterface::refuseGet(std::uint32_t request) const {
    uhid_event event{};
    event.type = UHID_GET_REPORT_REPLY;
    event.u.get_report_reply.id = request;
    event.u.get_report_reply.err = EIO;
    send(event);
}

void UhidInterface::answerGet(std::uint32_t request, std::span<const std::uint8_t> bytes) const {
    uhid_event event{};
    event.type = UHID_GET_REPORT_REPLY;
    event.u.get_report_reply.id = request;
    const auto fitting = bytes.first(std::min<std::size_t>(bytes.size(), UHID_DATA_MAX));
    event.u.get_report_reply.size = static_cast<__u16>(fitting.size());
    std::ranges::copy(fitting, event.u.get_report_reply.data);
    send(event);
}

void UhidInterface::send(const uhid_event& event) const {
    if (::write(m_descriptor, &event, sizeof event) < 0) fail("writing /dev/uhid");
}

}  // namespace lumo::vk
