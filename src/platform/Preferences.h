// The few values of the user that outlast the process.
#pragma once

#include <string_view>

namespace lumo {

/// Main thread. Never fails: what cannot be kept is kept for this run only.
class Preferences {
public:
    Preferences() = default;
    Preferences(const Preferences&) = delete;
    Preferences& operator=(const Preferences&) = delete;
    virtual ~Preferences() = default;

    /// False where nothing was ever set, or where it cannot be read.
    [[nodiscard]] virtual bool boolForKey(std::string_view key) = 0;

    virtual void setBool(bool value, std::string_view key) = 0;
};

}  // namespace lumo
