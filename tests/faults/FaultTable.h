// What a keyboard, or the hand that holds its cable, does to one transfer of a command.
#pragma once

#include <string>
#include <vector>

#include "faults/CommandTable.h"

namespace lumo::test {

enum class Disturbance {
    transferFails,    // refused or never answered
    answerIsAnother,  // the answer to a get has another length or command
    keyboardGoes,     // in the middle of the transfer
    keyboardBlinks,   // the same, and back as soon as it can be
    anotherComes,     // a second keyboard, right behind the transfer
    isGoneBefore,     // unplugged before the command is given
    goesAfter,        // unplugged when the command is over
};

struct Fault {
    std::string name;
    Disturbance disturbance = Disturbance::transferFails;
    std::string kind;                // as the keyboard is told, see vk::parseFault; empty: it is told nothing
    std::size_t answerLength = 520;  // of answerIsAnother
    bool namesCommand = true;        // of answerIsAnother
};

/// The faults that a transfer of that direction can have.
[[nodiscard]] std::vector<Fault> faultsOf(vk::Direction direction);

/// Those of a whole command.
[[nodiscard]] std::vector<Fault> faultsAround();

}  // namespace lumo::test
