// What the process holds that the system has to give back: open descriptors and threads.
#pragma once

#include <set>
#include <string>
#include <vector>

namespace lumo::test {

class Belongings final {
public:
    /// Those of now.
    Belongings();

    /// True when a descriptor of any hidraw node is among them, also of one that is gone.
    [[nodiscard]] bool haveNode() const;

    /// What is there now and was not then, by name. A thread that was waited for is still listed until the kernel has
    /// put it away, so it is looked at for a second.
    [[nodiscard]] std::vector<std::string> addedSince() const;

private:
    std::set<std::string> m_names;
};

}  // namespace lumo::test
