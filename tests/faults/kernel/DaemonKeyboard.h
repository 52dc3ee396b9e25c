// A keyboard before this machine's kernel, as a program of its own that is told what to do line by line.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <fstream>
#include <string>
#include <vector>

namespace lumo::test {

/// One thread. Ends its program with itself. Throws std::system_error when that cannot be started, std::runtime_error
/// when it does not obey.
class DaemonKeyboard final {
public:
    /// `arguments` beside the log.
    DaemonKeyboard(const std::string& program, const std::string& log, std::vector<std::string> arguments);
    DaemonKeyboard(const DaemonKeyboard&) = delete;
    DaemonKeyboard& operator=(const DaemonKeyboard&) = delete;
    ~DaemonKeyboard();

    /// Returns what follows the "ok" of its answer.
    std::string tell(const std::string& command);
    /// The whole answer, "ok …" or "error …".
    std::string ask(const std::string& command);

    /// The transfers it has seen since its start.
    [[nodiscard]] std::size_t transfers();

private:
    pid_t m_pid = -1;
    int m_input = -1;   // its standard input
    int m_output = -1;  // its standard output
    std::ifstream m_log;
    std::ifstream::pos_type m_readTo = 0;
    std::size_t m_transfers = 0;
};

}  // namespace lumo::test
