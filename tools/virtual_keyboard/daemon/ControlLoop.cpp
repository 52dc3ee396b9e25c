#include "daemon/ControlLoop.h"

#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

#include "Hex.h"

namespace lumo::vk {
namespace {

[[noreturn]] void fail(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

void writeLine(int output, std::string line) {
    line += '\n';
    for (std::string_view rest = line; !rest.empty();) {
        const ssize_t written = ::write(output, rest.data(), rest.size());
        if (written < 0) fail("writing the answer");
        rest.remove_prefix(static_cast<std::size_t>(written));
    }
}

}  // namespace

void ControlLoop::run(int input, int output) {
    while (!m_quitting) {
        const int ready = waitForInput(input);
        if (ready == input) {
            readCommands(input, output);
        } else {
            m_keyboard.serve(ready);
        }
    }
}

int ControlLoop::waitForInput(int input) const {
    std::vector<pollfd> waiting{{input, POLLIN, 0}};
    for (const int descriptor : m_keyboard.descriptors()) waiting.push_back({descriptor, POLLIN, 0});
    while (::poll(waiting.data(), waiting.size(), -1) < 0) {
        if (errno != EINTR) fail("poll");
    }
    // One at a time: serving a descriptor may close the others.
    for (const pollfd& one : waiting) {
        if (one.revents != 0) return one.fd;
    }
    return input;
}

void ControlLoop::readCommands(int input, int output) {
    std::array<char, 4096> buffer{};
    const ssize_t count = ::read(input, buffer.data(), buffer.size());
    if (count < 0) fail("reading commands");
    m_quitting = count == 0;
    m_received.append(buffer.data(), static_cast<std::size_t>(count));
    for (std::size_t end = m_received.find('\n'); end != std::string::npos; end = m_received.find('\n')) {
        const std::string line = m_received.substr(0, end);
        m_received.erase(0, end + 1);
        writeLine(output, answer(line));
    }
}

std::string ControlLoop::answer(std::string_view line) {
    constexpr std::string_view kFault = "fault ";
    if (line.starts_with(kFault)) return addFault(line.substr(kFault.size()));
    if (line == "plug") return plug();
    if (line == "registers") return registers();
    if (line == "unplug") {
        m_keyboard.unplug();
    } else if (line == "clear") {
        m_firmware.model().clearFaults();
    } else if (line == "quit") {
        m_quitting = true;
    } else {
        return "error no such command: " + std::string(line);
    }
    return "ok";
}

std::string ControlLoop::plug() {
    if (!m_keyboard.descriptors().empty()) return "error already plugged";
    try {
        m_keyboard.plug();
    } catch (const std::system_error& error) {
        return "error " + std::string(error.what());
    }
    return "ok";
}

std::string ControlLoop::addFault(std::string_view text) {
    const auto fault = parseFault(text);
    if (!fault) return "error not a fault: " + std::string(text);
    m_firmware.model().addFault(*fault);
    return "ok";
}

std::string ControlLoop::registers() {
    FirmwareModel& model = m_firmware.model();
    return "ok parameters " + hexOf(model.parameterBlock()) + " colours " + hexOf(model.colourBlock()) + " keys " +
           hexOf(model.keyTable());
}

}  // namespace lumo::vk
