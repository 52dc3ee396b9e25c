// Plays a fault case on a bench and compares what is seen with what was predicted.
#pragma once

#include <string>
#include <vector>

#include "faults/FaultBench.h"
#include "faults/FaultCase.h"

namespace lumo::test {

/// `bench` is new: nothing is plugged in yet. Afterwards nothing is again. Returns what is wrong; empty when all is
/// well.
[[nodiscard]] std::vector<std::string> play(FaultBench& bench, const FaultCase& faultCase);

}  // namespace lumo::test
