// Every status text that is published, in order.
#pragma once

#include <string>
#include <vector>

#include "device/VexaProtocol.h"

namespace lumo::test {

/// Main thread; from its making on. A text that is published again right behind itself is not told apart.
class StatusTexts final {
public:
    explicit StatusTexts(VexaProtocol& link)
        : m_link(link),
          m_last(link.statusMessage.get()),
          m_changes(link.observe([this] { note(); })) {}  // sees what the write before stored

    const std::vector<std::string>& all() {
        note();
        return m_texts;
    }

private:
    void note() {
        const std::string& now = m_link.statusMessage.get();
        if (now != m_last) m_texts.push_back(now);
        m_last = now;
    }

    VexaProtocol& m_link;
    std::vector<std::string> m_texts;
    std::string m_last;
    Subscription m_changes;
};

}  // namespace lumo::test
