// A keyboard's misbehaviour as it comes.
#pragma once

#include "FirmwareModel.h"
#include "support/Chance.h"

namespace lumo::test {

/// Lasts for one to three exchanges that it meets, so that a keyboard gets well again by itself. A device that leaves
/// the bus has to be plugged in again.
[[nodiscard]] inline vk::Fault randomFault(Chance& chance) {
    using enum vk::FaultKind;
    constexpr vk::FaultKind kKinds[] = {refuse, answerShort, answerLong, answerWrong, answerNothing, hang, vanish};
    constexpr std::size_t kLengths[] = {1, 7, 8, 134, 135, 511, 512, 515, 516, 519, 520, 521, 600};
    constexpr std::uint8_t kCommands[] = {0x03, 0x04, 0x06, 0x08, 0x0A, 0x82, 0x83, 0x84, 0x8A};
    vk::Fault fault;
    fault.kind = chance.of(kKinds);
    fault.length = chance.of(kLengths);
    // Only a read has an answer that could be wrong.
    const bool isAnswer = fault.kind == answerShort || fault.kind == answerLong || fault.kind == answerWrong ||
                          fault.kind == answerNothing;
    fault.direction = isAnswer || chance.oneIn(2) ? vk::Direction::get : vk::Direction::set;
    if (chance.oneIn(2)) fault.command = chance.of(kCommands);
    fault.times = chance.between<unsigned>(1, 3);
    fault.skip = chance.between<unsigned>(0, 3);
    return fault;
}

}  // namespace lumo::test
