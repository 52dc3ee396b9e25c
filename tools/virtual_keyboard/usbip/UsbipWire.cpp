#include "usbip/UsbipWire.h"

namespace lumo::vk {
namespace {

enum Command : std::uint32_t { submit = 1, unlink = 2, submitDone = 3, unlinkDone = 4 };

// Places in the header, in bytes.
constexpr std::size_t kCommandAt = 0;
constexpr std::size_t kSequenceAt = 4;
constexpr std::size_t kDirectionAt = 12;  // 1: to the host
constexpr std::size_t kEndpointAt = 16;
constexpr std::size_t kSubmitLengthAt = 24;
constexpr std::size_t kSetupAt = 40;
constexpr std::size_t kVictimAt = 20;
constexpr std::size_t kStatusAt = 20;
constexpr std::size_t kReplyLengthAt = 24;

std::uint32_t be32(std::span<const std::uint8_t> bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (const std::uint8_t byte : bytes.subspan(at, 4)) value = value << 8 | byte;
    return value;
}

void putBe32(UsbipHeader& header, std::size_t at, std::uint32_t value) {
    for (std::size_t i = 0; i < 4; ++i) header[at + i] = static_cast<std::uint8_t>(value >> (24 - 8 * i) & 0xFF);
}

std::uint16_t le16(std::span<const std::uint8_t> bytes, std::size_t at) {
    return static_cast<std::uint16_t>(bytes[at] | bytes[at + 1] << 8);
}

UsbSetup parseSetup(std::span<const std::uint8_t> bytes) {
    return {bytes[0], bytes[1], le16(bytes, 2), le16(bytes, 4), le16(bytes, 6)};
}

}  // namespace

UsbipCommand parseUsbip(std::span<const std::uint8_t, kUsbipHeaderSize> header) {
    const std::uint32_t sequence = be32(header, kSequenceAt);
    switch (be32(header, kCommandAt)) {
        case submit:
            return UsbipSubmit{sequence, be32(header, kDirectionAt) == 1, be32(header, kEndpointAt),
                               be32(header, kSubmitLengthAt), parseSetup(header.subspan<kSetupAt, 8>())};
        case unlink:
            return UsbipUnlink{sequence, be32(header, kVictimAt)};
        default:
            return std::monostate{};
    }
}

UsbipHeader submitReply(std::uint32_t sequence, std::int32_t status, std::uint32_t length) {
    UsbipHeader header{};
    putBe32(header, kCommandAt, submitDone);
    putBe32(header, kSequenceAt, sequence);
    putBe32(header, kStatusAt, static_cast<std::uint32_t>(status));
    putBe32(header, kReplyLengthAt, length);
    return header;
}

UsbipHeader unlinkReply(std::uint32_t sequence, std::int32_t status) {
    UsbipHeader header{};
    putBe32(header, kCommandAt, unlinkDone);
    putBe32(header, kSequenceAt, sequence);
    putBe32(header, kStatusAt, static_cast<std::uint32_t>(status));
    return header;
}

}  // namespace lumo::vk
