// One command, one of its transfers, one fault.
#pragma once

#include <string>
#include <vector>

#include "faults/CommandTable.h"
#include "faults/FaultTable.h"

namespace lumo::test {

struct FaultCase {
    const Command* command = nullptr;  // null: the handshake
    std::size_t transfer = 0;          // of the command, counted from 0; means nothing for a fault around it
    Fault fault;

    [[nodiscard]] std::string name() const;

    /// The exchanges of the command, in order.
    [[nodiscard]] std::vector<ExchangePlan> exchanges() const;

    /// The line that tells a keyboard of the fault; empty when it is told nothing.
    [[nodiscard]] std::string faultLine() const;
};

/// Every fault of every transfer of every command, the handshake first.
[[nodiscard]] const std::vector<FaultCase>& allFaultCases();

}  // namespace lumo::test
