// Preferences that are gone with the process: a demo leaves the user's own alone.
#pragma once

#include <set>
#include <string>

#include "platform/Preferences.h"

namespace lumo::vk {

class MemoryPreferences final : public Preferences {
public:
    bool boolForKey(std::string_view key) override { return m_true.contains(key); }
    void setBool(bool value, std::string_view key) override {
        if (value) {
            m_true.emplace(key);
        } else if (const auto found = m_true.find(key); found != m_true.end()) {
            m_true.erase(found);
        }
    }

private:
    std::set<std::string, std::less<>> m_true;
};

}  // namespace lumo::vk
