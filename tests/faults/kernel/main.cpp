// Plays the fault cases on a real kernel: lumo-fault-matrix KEYBOARD-PROGRAM LOG-FOLDER PAGE [EVERY]
//
// KEYBOARD-PROGRAM is lumo-usbip-keyboard or lumo-uhid-keyboard; needs the rights that it needs. EVERY: only each
// so-manieth case, in the order of the table. Prints a line for each and writes the results to PAGE. Ends with 0 when
// every case ended as predicted and nothing was left behind.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <string>
#include <vector>

#include "faults/FaultPlay.h"
#include "faults/kernel/Belongings.h"
#include "faults/kernel/KernelFaultBench.h"
#include "faults/kernel/ResultPage.h"

namespace lumo::test {
namespace {

class Matrix final {
public:
    Matrix(DaemonKeyboard& keyboard, DaemonKeyboard& another) : m_keyboard(keyboard), m_another(another) {}

    void playEvery(std::size_t stride) {
        for (std::size_t i = 0; i < allFaultCases().size(); i += stride) playOne(allFaultCases()[i]);
    }

    [[nodiscard]] const ResultPage& results() const { return m_results; }

private:
    void playOne(const FaultCase& faultCase) {
        const Belongings before;
        std::vector<std::string> wrong;
        {
            KernelFaultBench bench(m_keyboard, m_another);
            wrong = play(bench, faultCase);
        }
        for (const std::string& left : before.addedSince()) wrong.push_back("left behind: " + left);
        m_results.add(faultCase, wrong.empty());
        std::printf("%s  %s\n", wrong.empty() ? "PASS" : "FAIL", faultCase.name().c_str());
        for (const std::string& what : wrong) std::printf("      %s\n", what.c_str());
        std::fflush(stdout);
    }

    DaemonKeyboard& m_keyboard;
    DaemonKeyboard& m_another;
    ResultPage m_results;
};

int run(const std::string& program, const std::string& logs, const std::string& page, std::size_t stride) {
    DaemonKeyboard keyboard(program, logs + "/faults.jsonl", {"--name", "Lumo under fire"});
    DaemonKeyboard another(program, logs + "/faults-another.jsonl",
                           {"--vid", "3554", "--pid", "FA09", "--name", "Lumo, the other"});
    Matrix matrix(keyboard, another);
    matrix.playEvery(stride);
    std::ofstream(page) << matrix.results().text();
    const int passed = matrix.results().passed();
    const int failed = matrix.results().failed();
    std::printf("%d passed, %d failed\n", passed, failed);
    return failed == 0 && passed > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace lumo::test

int main(int argc, char** argv) {
    if (argc < 4 || argc > 5) {
        std::fprintf(stderr, "usage: lumo-fault-matrix KEYBOARD-PROGRAM LOG-FOLDER PAGE [EVERY]\n");
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
