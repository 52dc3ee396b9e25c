// Plays the fault cases on a real kernel: lumo-fault-matrix KEYBOARD-PROGRAM LOG-FOLDER RESULTS [EVERY]
//
// KEYBOARD-PROGRAM is lumo-usbip-keyboard or lumo-uhid-keyboard; needs the rights that it needs. EVERY: only each
// so-manieth case, in the order of the table. Prints a line for each and writes a table to RESULTS. Ends with 0 when
// every case ended as predicted and nothing was left behind.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "faults/FaultPlay.h"
#include "faults/kernel/KernelFaultBench.h"

namespace lumo::test {
namespace {

struct Counts {
    int passed = 0;
    int failed = 0;
};

/// What the process has open, by descriptor, and its threads.
std::set<std::string> belongings() {
    std::set<std::string> found;
    std::error_code isClosed;  // the folder's own descriptor goes with the walk
    for (const auto& file : std::filesystem::directory_iterator("/proc/self/fd")) {
        const auto target = std::filesystem::read_symlink(file.path(), isClosed);
        if (!isClosed && !target.string().starts_with("/proc/")) {
            found.insert("descriptor " + file.path().filename().string() + " to " + target.string());
        }
    }
    for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
        found.insert("thread " + thread.path().filename().string());
    }
    return found;
}

/// A thread that was waited for is still listed until the kernel has put it away.
std::vector<std::string> leftBehindSince(const std::set<std::string>& before) {
    constexpr auto kLimit = std::chrono::seconds(1);
    const auto end = std::chrono::steady_clock::now() + kLimit;
    std::vector<std::string> left;
    do {
        left.clear();
        std::ranges::set_difference(belongings(), before, std::back_inserter(left));
    } while (!left.empty() && std::chrono::steady_clock::now() < end);
    return left;
}

class Matrix final {
public:
    Matrix(DaemonKeyboard& keyboard, DaemonKeyboard& another) : m_keyboard(keyboard), m_another(another) {}

    void playEvery(std::size_t stride) {
        for (std::size_t i = 0; i < allFaultCases().size(); i += stride) playOne(allFaultCases()[i]);
    }

    void writeTo(const std::string& path) const {
        std::ofstream file(path);
        file << "| command | cases | as predicted |\n|---|---|---|\n";
        for (const auto& [command, counts] : m_commands) {
            file << "| " << command << " | " << counts.passed + counts.failed << " | " << counts.passed << " |\n";
        }
    }

    [[nodiscard]] Counts total() const {
        Counts total;
        for (const auto& [command, counts] : m_commands) {
            total.passed += counts.passed;
            total.failed += counts.failed;
        }
        return total;
    }

private:
    void playOne(const FaultCase& faultCase) {
        const std::set<std::string> before = belongings();
        std::vector<std::string> wrong;
        {
            KernelFaultBench bench(m_keyboard, m_another);
            wrong = play(bench, faultCase);
        }
        for (const std::string& left : leftBehindSince(before)) wrong.push_back("left behind: " + left);
        Counts& counts = m_commands[faultCase.command ? faultCase.command->name : "handshake"];
        ++(wrong.empty() ? counts.passed : counts.failed);
        std::printf("%s  %s\n", wrong.empty() ? "PASS" : "FAIL", faultCase.name().c_str());
        for (const std::string& what : wrong) std::printf("      %s\n", what.c_str());
        std::fflush(stdout);
    }

    DaemonKeyboard& m_keyboard;
    DaemonKeyboard& m_another;
    std::map<std::string, Counts> m_commands;
};

int run(const std::string& program, const std::string& logs, const std::string& results, std::size_t stride) {
    DaemonKeyboard keyboard(program, logs + "/faults.jsonl", {"--name", "Lumo under fire"});
    DaemonKeyboard another(program, logs + "/faults-another.jsonl",
                           {"--vid", "3554", "--pid", "FA09", "--name", "Lumo, the other"});
    Matrix matrix(keyboard, another);
    matrix.playEvery(stride);
    matrix.writeTo(results);
    const Counts total = matrix.total();
    std::printf("%d passed, %d failed\n", total.passed, total.failed);
    return total.failed == 0 && total.passed > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace lumo::test

int main(int argc, char** argv) {
    if (argc < 4 || argc > 5) {
        std::fprintf(stderr, "usage: lumo-fault-matrix KEYBOARD-PROGRAM LOG-FOLDER RESULTS [EVERY]\n");
        return 2;
    }
    const std::size_t stride = argc == 5 ? std::strtoul(argv[4], nullptr, 10) : 1;
    try {
        return lumo::test::run(argv[1], argv[2], argv[3], stride == 0 ? 1 : stride);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "lumo-fault-matrix: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
