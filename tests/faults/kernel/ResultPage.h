// What came of the fault cases, as a page of the documentation.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "faults/FaultCase.h"

namespace lumo::test {

class ResultPage final {
public:
    void add(const FaultCase& faultCase, bool isAsPredicted);

    [[nodiscard]] int passed() const { return m_passed; }
    [[nodiscard]] int failed() const { return m_failed; }

    /// Markdown: a row for each fault, a column for each command, in the order in which they were added.
    [[nodiscard]] std::string text() const;

private:
    struct Cell {
        int passed = 0;
        int cases = 0;
    };
    [[nodiscard]] std::string cellText(const std::string& fault, const std::string& command) const;

    std::vector<std::string> m_faults;
    std::vector<std::string> m_commands;
    std::map<std::pair<std::string, std::string>, Cell> m_cells;  // by fault and command
    int m_passed = 0;
    int m_failed = 0;
};

}  // namespace lumo::test
