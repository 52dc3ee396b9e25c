#include "faults/FaultCase.h"

#include <algorithm>

#include "Hex.h"

namespace lumo::test {
namespace {

std::vector<TransferPlan> transfersOf(const FaultCase& faultCase) {
    std::vector<TransferPlan> transfers;
    for (const ExchangePlan& plan : faultCase.exchanges())
        transfers.insert(transfers.end(), plan.transfers.begin(), plan.transfers.end());
    return transfers;
}

std::string describe(const TransferPlan& step) {
    return (step.direction == vk::Direction::set ? "set " : "get ") + vk::hexOf(std::vector{step.command});
}

void addCases(std::vector<FaultCase>& cases, const Command* command) {
    const std::vector<TransferPlan> transfers = transfersOf({command, 0, {}});
    for (std::size_t transfer = 0; transfer < transfers.size(); ++transfer) {
        for (const Fault& fault : faultsOf(transfers[transfer].direction)) cases.push_back({command, transfer, fault});
    }
    if (!command) return;  // plugging in is what gives the command
    for (const Fault& fault : faultsAround()) cases.push_back({command, 0, fault});
}

}  // namespace

std::vector<ExchangePlan> FaultCase::exchanges() const {
    return command ? command->exchanges : std::vector{handshakePlan()};
}

std::string FaultCase::name() const {
    const std::string commandName = command ? command->name : "handshake";
    const bool isAround = fault.disturbance == Disturbance::isGoneBefore || fault.disturbance == Disturbance::goesAfter;
    if (isAround) return commandName + ": " + fault.name;
    return commandName + ", transfer " + std::to_string(transfer + 1) + " (" + describe(transfersOf(*this)[transfer]) +
           "): " + fault.name;
}

std::string FaultCase::faultLine() const {
    if (fault.kind.empty()) return {};
    const std::vector<TransferPlan> transfers = transfersOf(*this);
    const TransferPlan& step = transfers[transfer];
    const auto isSame = [&step](const TransferPlan& other) {
        return other.direction == step.direction && other.command == step.command;
    };
    const auto before =
        std::count_if(transfers.begin(), transfers.begin() + static_cast<std::ptrdiff_t>(transfer), isSame);
    return describe(step) + ' ' + fault.kind + " skip " + std::to_string(before) + " once";
}

const std::vector<FaultCase>& allFaultCases() {
    static const std::vector<FaultCase> cases = [] {
        std::vector<FaultCase> made;
        addCases(made, nullptr);
        for (const Command& command : commandTable()) addCases(made, &command);
        return made;
    }();
    return cases;
}

}  // namespace lumo::test
