// One command's talk with the keyboard, on the I/O queue from its first report to its last.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "foundation/RunLoop.h"
#include "platform/Hid.h"

namespace lumo {

/// I/O queue only; made at the start of a task and gone at its end. The device may vanish meanwhile: reports then
/// fail. Once the program is quitting, nothing more is sent or read.
class Exchange final {
public:
    Exchange(IoQueue io, std::shared_ptr<HidDevice> device) : m_io(io), m_device(std::move(device)) {}

    [[nodiscard]] bool hasDevice() const { return m_device != nullptr; }

    /// Sends one feature report 6, padded with zeros to 520 bytes; longer data goes out at its own length. True
    /// exactly when the system accepted it. No delay, no retry. docs/protocol.md, Framing.
    [[nodiscard]] bool sendReport(std::span<const std::uint8_t> data) const;

    /// Reads one feature report 6: 1 to 520 bytes, the report id among them; empty on any failure. No delay, no
    /// retry.
    [[nodiscard]] std::vector<std::uint8_t> recvReport() const;

    /// Sends a read request, waits, and reads the answer. A refused request is not looked at: the read tells.
    [[nodiscard]] std::vector<std::uint8_t> query(std::span<const std::uint8_t> request, Duration wait) const;

    /// The same, but empty at once when the request was refused.
    [[nodiscard]] std::vector<std::uint8_t> queryAccepted(std::span<const std::uint8_t> request, Duration wait) const;

    void pause(Duration duration) const { m_io.run.pause(duration); }

private:
    IoQueue m_io;
    std::shared_ptr<HidDevice> m_device;
};

}  // namespace lumo
