// The link and the models over the in-process keyboard, in virtual time.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "app/SharedObjects.h"
#include "support/StatusTexts.h"
#include "support/TestPlatform.h"

namespace lumo::test {

class LinkFixture : public testing::Test {
protected:
    TestPlatform platform;
    VirtualTime& time = platform.time;
    vk::FirmwareModel& firmware = platform.firmware;
    vk::InProcessHidManager& hid = platform.hid();
    SharedObjects objects{platform};

    VexaProtocol& link() { return objects.vexaProtocol(); }
    KeyboardModel& keyboard() { return objects.keyboardModel(); }
    UIState& state() { return objects.uiState(); }

    /// Plugs the keyboard in, lets the handshake pass and forgets its reports.
    void connect() {
        link();
        hid.plugKeyboard();
        time.settle();
        firmware.forgetWrites();
    }

    /// Every status text that is published from now on, in order.
    void recordStatuses() { m_texts.emplace(link()); }
    const std::vector<std::string>& statuses() { return m_texts.value().all(); }

    std::vector<std::uint8_t> commandsSent() const {
        std::vector<std::uint8_t> commands;
        for (const auto& report : platform.firmware.writes()) commands.push_back(report.at(1));
        return commands;
    }

    void fault(std::string_view text) {
        const auto parsed = vk::parseFault(text);
        ASSERT_TRUE(parsed) << text;
        firmware.addFault(*parsed);
    }

private:
    std::optional<StatusTexts> m_texts;
};

}  // namespace lumo::test
