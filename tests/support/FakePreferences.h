// Preferences in memory.
#pragma once

#include <map>
#include <string>

#include "platform/Preferences.h"
#include "support/Journal.h"

namespace lumo::test {

class FakePreferences final : public Preferences {
public:
    explicit FakePreferences(Journal& journal) : m_journal(journal) {}

    std::map<std::string, bool, std::less<>> values;

    bool boolForKey(std::string_view key) override {
        const auto found = values.find(key);
        return found != values.end() && found->second;
    }
    void setBool(bool value, std::string_view key) override {
        m_journal.push_back("set " + std::string(key) + (value ? " true" : " false"));
        values.insert_or_assign(std::string(key), value);
    }

private:
    Journal& m_journal;
};

}  // namespace lumo::test
