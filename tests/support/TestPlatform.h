// A platform in virtual time, with the in-process keyboard for hardware and the console in memory.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "InProcessHidManager.h"
#include "support/FakedPlatform.h"
#include "support/VirtualTime.h"

namespace lumo::test {

/// Outlives the SharedObjects made from it. Plug the keyboard in before or after they exist.
class TestPlatform final : public FakedPlatform {
public:
    TestPlatform() { firmware.recordWrites(); }

    VirtualTime time;
    vk::FirmwareModel firmware;
    vk::ReportLog log;
    std::vector<std::string> console;

    /// The hardware side; its manager is handed out once, to the link.
    [[nodiscard]] vk::InProcessHidManager& hid() { return *m_hid; }

    MainQueue mainQueue() override { return time.mainQueue(); }
    std::unique_ptr<BlockingExecutor> makeIoQueue(std::string_view label) override;
    std::unique_ptr<HidManager> makeHidManager(IoQueue io) override;
    void print(std::string_view line) override { console.emplace_back(line); }

    std::string ioQueueLabel;

private:
    std::shared_ptr<vk::InProcessHidManager> m_hid =
        std::make_shared<vk::InProcessHidManager>(time.mainQueue(), time.ioQueue(), firmware, log);
};

}  // namespace lumo::test
