#include "faults/kernel/ResultPage.h"

#include <sys/utsname.h>

#include <algorithm>
#include <sstream>

namespace lumo::test {
namespace {

std::string kernelRelease() {
    utsname system{};
    return ::uname(&system) == 0 ? system.release : "unknown";
}

void addOnce(std::vector<std::string>& names, const std::string& name) {
    if (std::ranges::find(names, name) == names.end()) names.push_back(name);
}

}  // namespace

void ResultPage::add(const FaultCase& faultCase, bool isAsPredicted) {
    const std::string command = faultCase.command ? faultCase.command->name : "handshake";
    addOnce(m_commands, command);
    addOnce(m_faults, faultCase.fault.name);
    Cell& cell = m_cells[{faultCase.fault.name, command}];
    ++cell.cases;
    if (isAsPredicted) ++cell.passed;
    ++(isAsPredicted ? m_passed : m_failed);
}

std::string ResultPage::text() const {
    std::ostringstream page;
    page << "# Faults\n\n"
         << "Written by `./test long faults`: every fault at every transfer of every command, before a real kernel\n"
         << "(Linux " << kernelRelease() << " in an emulated machine, the keyboard on its USB bus). A number says how\n"
         << "many transfers were disturbed so; where not all came out as predicted, it says how many did. Predicted\n"
         << "are the status texts with their order, the number of transfers and what is published; afterwards the\n"
         << "next command has to work, the key table that is known has to be the keyboard's, and neither a descriptor\n"
         << "nor a thread may be left behind. A keyboard is replugged at once as soon as the kernel has put the old\n"
         << "one away and freed its socket.\n\n"
         << m_passed + m_failed << " cases, " << m_passed << " as predicted, " << m_failed << " not.\n\n| fault |";
    for (const std::string& command : m_commands) page << ' ' << command << " |";
    page << "\n|---|";
    for (std::size_t i = 0; i < m_commands.size(); ++i) page << "---|";
    for (const std::string& fault : m_faults) {
        page << "\n| " << fault << " |";
        for (const std::string& command : m_commands) page << ' ' << cellText(fault, command) << " |";
    }
    page << '\n';
    return page.str();
}

std::string ResultPage::cellText(const std::string& fault, const std::string& command) const {
    const auto found = m_cells.find({fault, command});
    if (found == m_cells.end()) return "–";
    const auto& [passed, cases] = found->second;
    return passed == cases ? std::to_string(cases) : std::to_string(passed) + " of " + std::to_string(cases);
}

}  // namespace lumo::test
