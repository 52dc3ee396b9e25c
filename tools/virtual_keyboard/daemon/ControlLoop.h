// Serves a kernel and, line by line, whoever holds the other end of stdin.
#pragma once

#include <string>
#include <string_view>

#include "daemon/KernelKeyboard.h"
#include "daemon/LoggedFirmware.h"

namespace lumo::vk {

/// One thread. Keyboard and firmware outlive the loop.
class ControlLoop final {
public:
    ControlLoop(KernelKeyboard& keyboard, LoggedFirmware& firmware) : m_keyboard(keyboard), m_firmware(firmware) {}

    /// Reads commands from `input` and answers on `output`, until "quit" or the end of `input`. Throws
    /// std::system_error when either breaks.
    void run(int input, int output);

    /// One command line without its newline; the answer without one.
    [[nodiscard]] std::string answer(std::string_view line);

private:
    [[nodiscard]] int waitForInput(int input) const;
    void readCommands(int input, int output);
    [[nodiscard]] std::string plug();
    [[nodiscard]] std::string addFault(std::string_view text);
    [[nodiscard]] std::string registers();

    KernelKeyboard& m_keyboard;
    LoggedFirmware& m_firmware;
    std::string m_received;
    bool m_quitting = false;
};

}  // namespace lumo::vk
