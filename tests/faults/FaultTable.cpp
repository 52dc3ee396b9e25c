#include "faults/FaultTable.h"

namespace lumo::test {
namespace {

std::vector<Fault> faultsOfEither() {
    return {{"refused", Disturbance::transferFails, "refuse"},
            {"no answer for 5 s", Disturbance::transferFails, "hang"},
            {"unplugged", Disturbance::keyboardGoes, "vanish"},
            {"replugged at once", Disturbance::keyboardBlinks, "vanish"},
            {"a second keyboard", Disturbance::anotherComes, ""}};
}

}  // namespace

std::vector<Fault> faultsOf(vk::Direction direction) {
    std::vector<Fault> faults = faultsOfEither();
    if (direction == vk::Direction::set) return faults;
    faults.push_back({"an empty answer", Disturbance::answerIsAnother, "nothing", 0});
    for (const std::size_t length : {1U, 7U, 134U, 135U, 515U, 516U, 520U}) {
        const std::string bytes = std::to_string(length);
        faults.push_back({bytes + " bytes", Disturbance::answerIsAnother, "short " + bytes, length});
    }
    faults.push_back({"another command", Disturbance::answerIsAnother, "wrong", 520, false});
    return faults;
}

std::vector<Fault> faultsAround() {
    return {{"unplugged before", Disturbance::isGoneBefore, ""}, {"unplugged after", Disturbance::goesAfter, ""}};
}

}  // namespace lumo::test
