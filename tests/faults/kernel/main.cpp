// Plays the fault cases on a real kernel: lumo-fault-matrix KEYBOARD-PROGRAM LOG-FOLDER RESULTS [EVERY]
//
// KEYBOARD-PROGRAM is lumo-usbip-keyboard or lumo-uhid-keyboard; needs the rights that it needs. EVERY: only each
// so-manieth case, in the order of the table. Prints a line for each and writes a table to RESULTS. Ends with 0 when
// every case ended as predicted and nothing was left behind.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "faults/FaultPlay.h"
#include "faults/kernel/KernelFaultBench.h"

namespace lumo::test {
namespace {

struct Counts {
    int passed = 0;
    int failed = 0;
};

/// Files that the process has open, and its threads.
std::size_t belongings() {
    const auto count = [](const char* folder) {
        const std::filesystem::directory_iterator entries(folder);
        return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
    };
    return count("/proc/self/fd") + count("/proc/self/task");
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
        const std::size_t before = belongings();
        std::vector<std::string> wrong;
        {
            KernelFaultBench bench(m_keyboard, m_another);
            wrong = play(bench, faultCase);
        }
        if (belongings() != before) wrong.emplace_back("something was left behind");
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
