#include "faults/kernel/DaemonKeyboard.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace lumo::test {
namespace {

[[noreturn]] void fail(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

std::array<int, 2> makePipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) < 0) fail("pipe2");
    return ends;
}

pid_t start(const std::string& program, std::vector<std::string> arguments, int input, int output) {
    std::vector<char*> words;
    for (std::string& argument : arguments) words.push_back(argument.data());
    words.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t pid = -1;
    const int error = ::posix_spawn(&pid, program.c_str(), &actions, nullptr, words.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) throw std::system_error(error, std::generic_category(), program);
    return pid;
}

}  // namespace

DaemonKeyboard::DaemonKeyboard(const std::string& program, const std::string& log, std::vector<std::string> arguments) {
    std::ofstream{log};  // it may be read before the program has made it
    m_log.open(log);
    arguments.insert(arguments.begin(), {program, "--log", log});
    const auto [input, toInput] = makePipe();
    const auto [fromOutput, output] = makePipe();
    m_input = toInput;
    m_output = fromOutput;
    m_pid = start(program, std::move(arguments), input, output);
    ::close(input);
    ::close(output);
}

DaemonKeyboard::~DaemonKeyboard() {
    ::close(m_input);  // which ends it
    ::close(m_output);
    while (::waitpid(m_pid, nullptr, 0) < 0 && errno == EINTR) {
    }
}

std::string DaemonKeyboard::ask(const std::string& command) {
    const std::string line = command + '\n';
    if (::write(m_input, line.data(), line.size()) != static_cast<ssize_t>(line.size())) fail("telling the keyboard");
    std::string answer;
    for (char letter = 0; ::read(m_output, &letter, 1) == 1;) {
        if (letter == '\n') return answer;
        answer += letter;
    }
    throw std::runtime_error("the keyboard ended at \"" + command + '"');
}

std::string DaemonKeyboard::tell(const std::string& command) {
    const std::string answer = ask(command);
    if (!answer.starts_with("ok")) throw std::runtime_error('"' + command + "\" was answered \"" + answer + '"');
    return answer.substr(2);
}

std::size_t DaemonKeyboard::transfers() {
    m_log.clear();
    // A line that is still being written ends without a newline and is read again.
    for (std::string line; std::getline(m_log, line) && !m_log.eof();) {
        ++m_transfers;
        m_readTo = m_log.tellg();
    }
    m_log.clear();
    m_log.seekg(m_readTo);
    return m_transfers;
}

}  // namespace lumo::test
