// What must come of a fault: worked out from the tables alone, without the program.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "faults/FaultCase.h"

namespace lumo::test {

/// From the moment the command is given until nothing is under way.
struct Course {
    std::vector<std::string> texts;  // the command's own, in order
    std::set<std::string> plugging;  // those about the keyboard's coming and going
    std::size_t transfers = 0;       // that any keyboard saw
    bool isConnected = true;
    bool isAuthenticated = true;

    friend bool operator==(const Course&, const Course&) = default;
};

/// More than one where it depends on how fast a keyboard is back.
[[nodiscard]] std::vector<Course> predict(const FaultCase& faultCase);

/// True for the texts that stand in Course::plugging.
[[nodiscard]] bool isAboutPlugging(const std::string& text);

/// In one line, for whoever looks for a difference.
[[nodiscard]] std::string describe(const Course& course);

}  // namespace lumo::test
