#include "faults/kernel/Belongings.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iterator>
#include <system_error>

namespace lumo::test {

Belongings::Belongings() {
    std::error_code isClosed;  // the folder's own descriptor goes with the walk
    for (const auto& file : std::filesystem::directory_iterator("/proc/self/fd")) {
        const std::string target = std::filesystem::read_symlink(file.path(), isClosed).string();
        if (isClosed || target.starts_with("/proc/")) continue;
        m_names.insert("descriptor " + file.path().filename().string() + " to " + target);
    }
    for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
        m_names.insert("thread " + thread.path().filename().string());
    }
}

bool Belongings::haveNode() const {
    return std::ranges::any_of(m_names, [](const std::string& name) { return name.find("/dev/hidraw") != name.npos; });
}

std::vector<std::string> Belongings::addedSince() const {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    std::vector<std::string> added;
    do {
        added.clear();
        std::ranges::set_difference(Belongings().m_names, m_names, std::back_inserter(added));
    } while (!added.empty() && std::chrono::steady_clock::now() < end);
    return added;
}

}  // namespace lumo::test
