// A program with its keyboards, on which a fault case is played.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/SharedObjects.h"

namespace lumo::test {

class FaultBench {
public:
    FaultBench() = default;
    FaultBench(const FaultBench&) = delete;
    FaultBench& operator=(const FaultBench&) = delete;
    virtual ~FaultBench() = default;

    [[nodiscard]] virtual SharedObjects& objects() = 0;

    virtual void plug() = 0;
    virtual void unplug() = 0;
    virtual void plugAnother() = 0;
    /// Tells the first keyboard of a fault, see vk::parseFault.
    virtual void tellFault(const std::string& line) = 0;
    virtual void clearFaults() = 0;

    /// Transfers that any of the keyboards has seen.
    [[nodiscard]] virtual std::size_t transfers() = 0;
    /// The key table that the first keyboard holds, a whole report.
    [[nodiscard]] virtual std::vector<std::uint8_t> keyTable() = 0;

    /// Does something on the main thread as soon as so many transfers were seen, while the program runs.
    virtual void when(std::size_t transfers, std::function<void()> act) = 0;
    /// Lets the program run until that holds and nothing is under way. False when it never does.
    [[nodiscard]] virtual bool runUntil(const std::function<bool()>& holds) = 0;
};

}  // namespace lumo::test
