// The link and the models over the in-process keyboard, in virtual time.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "app/SharedObjects.h"
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
    void recordStatuses() {
        m_lastStatus = link().statusMessage.get();
        m_recording = link().observe([this] { noteStatus(); });  // sees what the write before stored
    }
    const std::vector<std::string>& statuses() {
        noteStatus();
        return m_statuses;
    }

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
    void noteStatus() {
        const std::string& now = link().statusMessage.get();
        if (now != m_lastStatus) m_statuses.push_back(now);
        m_lastStatus = now;
    }
    std::vector<std::string> m_statuses;
    std::string m_lastStatus;
    Subscription m_recording;
};

}  // namespace lumo::test
